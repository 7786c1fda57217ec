#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <mutex>

#include "platform/Picture.h"

namespace orvanta {

/// Hands the newest picture of a film from the thread that decodes it to the program's thread. Pictures that
/// the program has not fetched are replaced, and it is called once for all that came since it last looked.
class FrameBox : public std::enable_shared_from_this<FrameBox> {
 public:
  /// `OnFrame` is called on the thread of `receiver`, out of its event loop.
  FrameBox(QObject& receiver, std::function<void()> onFrame)
      : receiver_(&receiver), onFrame_(std::move(onFrame)) {}

  /// Any thread.
  void Put(PicturePtr picture);
  PicturePtr Newest() const;
  /// Nobody is called any more. On the receiver's thread, before the receiver goes.
  void Close();

 private:
  void Announce();

  mutable std::mutex mutex_;
  QObject* receiver_;
  std::function<void()> onFrame_;
  PicturePtr newest_;
  bool announced_ = false;
};

using FrameBoxPtr = std::shared_ptr<FrameBox>;

}  // namespace orvanta
