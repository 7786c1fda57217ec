#pragma once

#include <functional>

#include "platform/EventLoop.h"
#include "platform/Property.h"

namespace orvanta {

/// Ticks while it is enabled and the event loop runs. Enabling it starts a new interval. Late ticks merge
/// into one.
class Timer : public PropertyOwner {
 public:
  /// `interval` in milliseconds, at least 1.
  Timer(Form& form, Milliseconds interval, std::function<void()> handler);
  ~Timer();
  Timer(const Timer&) = delete;
  Timer& operator=(const Timer&) = delete;

  Property<bool> Enabled;

  /// When the next tick is due; `kNever` while disabled.
  Milliseconds Due() const { return due_; }
  Form& OwnerForm() const { return form_; }
  /// Starts the next interval, then calls the handler.
  void Tick(Milliseconds now);
  void PropertyChanged(const void* property) override;

 private:
  Form& form_;
  const Milliseconds interval_;
  std::function<void()> handler_;
  Milliseconds due_ = kNever;
};

}  // namespace orvanta
