#pragma once

#include <string>

#include "platform/StackedWindow.h"
#include "platform/headless/RecordingCanvas.h"

namespace orvanta {

/// A window that exists only in memory: it records what it was told and what was painted on it.
class HeadlessWindow final : public StackedWindow {
 public:
  using StackedWindow::StackedWindow;

  std::string caption;
  Pointer pointer = Pointer::Default;

  /// Everything that the whole form would paint now.
  RecordingCanvas Painted() const;

  void SetCaption(const std::string& to) override { caption = to; }
  void SetPointer(Pointer to) override { pointer = to; }
  void SetVisible(bool to) override;

 protected:
  void Paint(const Rect& area) override;
};

}  // namespace orvanta
