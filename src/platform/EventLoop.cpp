#include "platform/EventLoop.h"

#include <algorithm>
#include <utility>

#include "platform/Form.h"
#include "platform/Timer.h"

namespace orvanta {

EventLoop::Modal::Modal(EventLoop& loop, Form* form) : loop_(loop), form_(form) {
  loop_.modal_.push_back(this);
  for (Form* other : loop_.forms_) other->EndPress();
}

EventLoop::Delivery::~Delivery() {
  if (--loop_.depth_ > 0) return;
  // Deleting a form may hand over another (the whole-screen window of a film), so the list is taken first.
  while (!loop_.deletedLater_.empty()) std::exchange(loop_.deletedLater_, {}).clear();
}

EventLoop::EventLoop(EventSource& source) : source_(source) {}

EventLoop::~EventLoop() = default;

void EventLoop::Post(const FormEvent& event) {
  if (event.kind == FormEvent::Kind::MouseMove && !queue_.empty()) {
    FormEvent& last = queue_.back().event;
    if (last.kind == event.kind && last.form == event.form && last.held == event.held) {
      last.place = event.place;
      return;
    }
  }
  queue_.push_back({++lastNumber_, event});
}

void EventLoop::Pump() {
  source_.TakeInput();
  const Milliseconds now = source_.Now();
  DeliverInput(lastNumber_);
  DeliverTicks(now);
}

void EventLoop::PumpOrWait(Milliseconds deadline) {
  for (const Timer* timer : timers_) deadline = std::min(deadline, timer->Due());
  if (queue_.empty() && source_.Now() < deadline) source_.WaitForInput(deadline);
  Pump();
}

void EventLoop::RunUntil(const std::function<bool()>& done) {
  while (!done()) PumpOrWait(kNever);
}

void EventLoop::DeliverInput(std::uint64_t last) {
  while (!queue_.empty() && queue_.front().number <= last) {
    const FormEvent event = queue_.front().event;
    queue_.pop_front();
    Delivery delivery(*this);
    if (!Blocked(event)) event.form->Deliver(event);
  }
}

void EventLoop::DeliverTicks(Milliseconds now) {
  // Look the earliest timer up each time: a handler may remove timers, or deliver their ticks by pumping. A
  // tick sets the timer to a time after now.
  const auto earliest = [this] {
    return std::min_element(timers_.begin(), timers_.end(),
                            [](const Timer* a, const Timer* b) { return a->Due() < b->Due(); });
  };
  for (auto timer = earliest(); timer != timers_.end() && (*timer)->Due() <= now; timer = earliest()) {
    Delivery delivery(*this);
    (*timer)->Tick(now);
  }
}

bool EventLoop::Blocked(const FormEvent& event) const {
  if (modal_.empty() || !event.IsInput()) return false;
  const Form* const modal = modal_.back()->form_;
  return !modal || (event.form != modal && event.form->Owner() != modal);
}

void EventLoop::Forget(const Form& form) {
  std::erase_if(queue_, [&](const Queued& queued) { return queued.event.form == &form; });
  std::erase(forms_, &form);
  std::erase_if(timers_, [&](const Timer* timer) { return &timer->OwnerForm() == &form; });
}

void EventLoop::DeleteLater(std::unique_ptr<Form> form) {
  // Outside of deliveries nobody needs the form any more, and it must not outlive the host of its window.
  Delivery delivery(*this);
  deletedLater_.push_back(std::move(form));
}

}  // namespace orvanta
