#include "platform/Timer.h"

#include <utility>

#include "platform/Form.h"
#include "platform/Host.h"

namespace orvanta {

Timer::Timer(Form& form, Milliseconds interval, std::function<void()> handler)
    : Enabled(*this), form_(form), interval_(interval), handler_(std::move(handler)) {
  form_.TheHost().Loop().Add(*this);
}

Timer::~Timer() { form_.TheHost().Loop().Remove(*this); }

void Timer::Tick(Milliseconds now) {
  due_ += interval_;
  if (due_ <= now) due_ = now + interval_;
  handler_();
  form_.Settle();
}

void Timer::PropertyChanged(const void*) { due_ = Enabled ? form_.TheHost().Now() + interval_ : kNever; }

}  // namespace orvanta
