#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <mutex>
#include <utility>

#include "platform/Picture.h"

namespace orvanta {

/// Calls `onNotify` from the event loop of the thread that it belongs to, once for each `Notify`.
class FrameNotifier : public QObject {
 public:
  explicit FrameNotifier(std::function<void()> onNotify) : onNotify_(std::move(onNotify)) {}
  /// Any thread.
  void Notify();

 protected:
  bool event(QEvent* event) override;

 private:
  std::function<void()> onNotify_;
};

/// Passes the newest picture of a film from the thread that decodes it to the program's thread. A new picture
/// replaces one that the program has not fetched yet, and one notification stands for all of them.
class FrameMailbox {
 public:
  explicit FrameMailbox(FrameNotifier& notifier) : notifier_(&notifier) {}

  /// Any thread.
  void Put(PicturePtr picture);
  PicturePtr Newest() const;
  /// True if a picture has arrived since the last call.
  bool TakeChanged();
  /// Stops the notifications. Must be called before the notifier is destroyed.
  void Close();

 private:
  mutable std::mutex mutex_;
  FrameNotifier* notifier_;
  PicturePtr newest_;
  bool changed_ = false;
};

using FrameMailboxPtr = std::shared_ptr<FrameMailbox>;

}  // namespace orvanta
