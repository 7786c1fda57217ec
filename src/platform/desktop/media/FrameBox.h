#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <mutex>
#include <utility>

#include "platform/Picture.h"

namespace orvanta {

/// Calls `rung` on its own thread, out of the event loop, for every `Ring` of any thread.
class FrameBell : public QObject {
 public:
  explicit FrameBell(std::function<void()> rung) : rung_(std::move(rung)) {}
  void Ring();

 protected:
  bool event(QEvent* event) override;

 private:
  std::function<void()> rung_;
};

/// Hands the newest picture of a film from the thread that decodes it to the program's thread. Pictures that
/// the program has not fetched are replaced, and the bell rings once for all that came since it last looked.
class FrameBox {
 public:
  explicit FrameBox(FrameBell& bell) : bell_(&bell) {}

  /// Any thread.
  void Put(PicturePtr picture);
  PicturePtr Newest() const;
  /// True if a picture has come in since the last call.
  bool TakeNews();
  /// The bell is left alone from now on. To be called before it goes.
  void Close();

 private:
  mutable std::mutex mutex_;
  FrameBell* bell_;
  PicturePtr newest_;
  bool news_ = false;
};

using FrameBoxPtr = std::shared_ptr<FrameBox>;

}  // namespace orvanta
