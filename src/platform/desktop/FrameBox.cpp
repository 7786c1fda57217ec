#include "platform/desktop/FrameBox.h"

#include <QMetaObject>

namespace orvanta {

void FrameBox::Put(PicturePtr picture) {
  const std::scoped_lock lock(mutex_);
  newest_.swap(picture);
  if (announced_ || !receiver_) return;
  announced_ = true;
  QMetaObject::invokeMethod(
      receiver_, [self = shared_from_this()] { self->Announce(); }, Qt::QueuedConnection);
}

PicturePtr FrameBox::Newest() const {
  const std::scoped_lock lock(mutex_);
  return newest_;
}

void FrameBox::Close() {
  const std::scoped_lock lock(mutex_);
  receiver_ = nullptr;
}

void FrameBox::Announce() {
  {
    const std::scoped_lock lock(mutex_);
    announced_ = false;
    if (!receiver_) return;
  }
  onFrame_();  // unlocked: it fetches the picture
}

}  // namespace orvanta
