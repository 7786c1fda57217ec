#include "platform/desktop/media/FrameMailbox.h"

#include <QCoreApplication>
#include <QEvent>

namespace orvanta {

void FrameNotifier::Notify() {
  // Qt owns the event from now on, and drops it if the notifier is destroyed first.
  QCoreApplication::postEvent(this, std::make_unique<QEvent>(QEvent::User).release());
}

bool FrameNotifier::event(QEvent* event) {
  if (event->type() != QEvent::User) return QObject::event(event);
  onNotify_();
  return true;
}

void FrameMailbox::Put(PicturePtr picture) {
  const std::scoped_lock lock(mutex_);
  newest_.swap(picture);
  if (!std::exchange(changed_, true) && notifier_) notifier_->Notify();
}

PicturePtr FrameMailbox::Newest() const {
  const std::scoped_lock lock(mutex_);
  return newest_;
}

bool FrameMailbox::TakeChanged() {
  const std::scoped_lock lock(mutex_);
  return std::exchange(changed_, false);
}

void FrameMailbox::Close() {
  const std::scoped_lock lock(mutex_);
  notifier_ = nullptr;
}

}  // namespace orvanta
