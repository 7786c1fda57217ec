#pragma once

#include "platform/StackedWindow.h"

namespace orvanta {

class WebHost;

/// A window on a canvas of its own.
class WebWindow final : public StackedWindow {
 public:
  WebWindow(WebHost& host, Form& form, WindowKind kind);
  ~WebWindow() override;

  /// The browser's number for it.
  int Number() const { return number_; }

  void SetPlace(const Rect& to) override;
  void SetShape(const Region& to) override;
  void SetCaption(const std::string& to) override;
  void SetPointer(Pointer to) override;
  void SetVisible(bool to) override;
  void SetMinimised(bool to) override;

 protected:
  void Paint(const Rect& area) override;

 private:
  const int number_;
};

}  // namespace orvanta
