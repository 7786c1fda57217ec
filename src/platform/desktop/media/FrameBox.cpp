#include "platform/desktop/media/FrameBox.h"

#include <QCoreApplication>
#include <QEvent>

namespace orvanta {

void FrameBell::Ring() {
  // The event belongs to Qt from here on, which forgets it if the bell goes first.
  QCoreApplication::postEvent(this, std::make_unique<QEvent>(QEvent::User).release());
}

bool FrameBell::event(QEvent* event) {
  if (event->type() != QEvent::User) return QObject::event(event);
  rung_();
  return true;
}

void FrameBox::Put(PicturePtr picture) {
  const std::scoped_lock lock(mutex_);
  newest_.swap(picture);
  if (!std::exchange(news_, true) && bell_) bell_->Ring();
}

PicturePtr FrameBox::Newest() const {
  const std::scoped_lock lock(mutex_);
  return newest_;
}

bool FrameBox::TakeNews() {
  const std::scoped_lock lock(mutex_);
  return std::exchange(news_, false);
}

void FrameBox::Close() {
  const std::scoped_lock lock(mutex_);
  bell_ = nullptr;
}

}  // namespace orvanta
