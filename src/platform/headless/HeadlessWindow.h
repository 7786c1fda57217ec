#pragma once

#include <optional>

#include "platform/Form.h"
#include "platform/FormWindow.h"
#include "platform/headless/RecordingCanvas.h"

namespace orvanta {

class HeadlessHost;

/// A window that is only remembered: what it was told, and what was painted on it.
class HeadlessWindow final : public FormWindow {
 public:
  HeadlessWindow(HeadlessHost& host, Form& form, WindowKind kind);
  ~HeadlessWindow() override;

  Form& form;
  const WindowKind kind;
  Rect place;
  std::optional<Region> shape;
  std::string caption;
  Pointer pointer = Pointer::Default;
  Form* owner = nullptr;
  bool visible = false;
  bool minimised = false;
  Rect dirty;

  /// Whether the point of the screen belongs to the window as it stands now.
  bool Covers(Point screen) const;
  /// Everything that the whole form would paint now.
  RecordingCanvas Look() const;
  void PaintDirty();

  void SetPlace(const Rect& to) override { place = to; }
  void SetShape(const Region& to) override { shape = to; }
  void SetCaption(const std::string& to) override { caption = to; }
  void SetPointer(Pointer to) override { pointer = to; }
  void SetOwner(Form& to) override { owner = &to; }
  void SetVisible(bool to) override;
  void SetMinimised(bool to) override;
  void Raise() override;
  void Invalidate(const Rect& area) override { dirty = Union(dirty, area); }
  void PaintNow() override { PaintDirty(); }

 private:
  HeadlessHost& host_;
};

}  // namespace orvanta
