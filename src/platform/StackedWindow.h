#pragma once

#include <optional>

#include "platform/Form.h"
#include "platform/FormWindow.h"

namespace orvanta {

class StackingHost;

/// A window of a host that stacks its windows itself.
class StackedWindow : public FormWindow {
 public:
  StackedWindow(StackingHost& host, Form& form, WindowKind kind);
  ~StackedWindow() override;
  StackedWindow(const StackedWindow&) = delete;
  StackedWindow& operator=(const StackedWindow&) = delete;

  Form& form;
  const WindowKind kind;
  Rect place;
  std::optional<Region> shape;
  Form* owner = nullptr;
  bool visible = false;
  bool minimised = false;
  Rect dirty;  ///< the area to be painted, in pixels of the form

  /// Whether the screen point belongs to the window as it is now.
  bool Covers(Point screen) const;
  void PaintDirty();

  void SetPlace(const Rect& to) override { place = to; }
  void SetShape(const Region& to) override { shape = to; }
  void SetOwner(Form& to) override { owner = &to; }
  void SetVisible(bool to) override;
  void SetMinimised(bool to) override;
  void Raise() override;
  void Invalidate(const Rect& area) override { dirty = Union(dirty, area); }
  void PaintNow() override { PaintDirty(); }

 protected:
  /// Paints a visible part of the form.
  virtual void Paint(const Rect& area) = 0;

 private:
  StackingHost& host_;
};

}  // namespace orvanta
