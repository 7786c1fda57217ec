#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <limits>
#include <memory>
#include <vector>

#include "platform/FormEvent.h"

namespace orvanta {

class Timer;

/// Milliseconds on a clock that never goes backwards.
using Milliseconds = std::int64_t;
inline constexpr Milliseconds kNever = std::numeric_limits<Milliseconds>::max();

/// What the event loop needs from a host: the clock, waiting, and raw input.
class EventSource {
 public:
  virtual Milliseconds Now() = 0;
  /// Posts the input that has arrived so far to the loop, without waiting, and paints what needs repainting.
  virtual void TakeInput() = 0;
  /// Waits until there is input or the clock reaches `deadline`, without using the processor.
  virtual void WaitForInput(Milliseconds deadline) = 0;

 protected:
  ~EventSource() = default;
};

/// Delivers input and timer ticks to forms, one at a time, on the program's one thread. Nothing is delivered
/// except during `Pump` and functions that call it. Handlers may pump again.
class EventLoop {
 public:
  explicit EventLoop(EventSource& source);
  EventLoop(const EventLoop&) = delete;
  EventLoop& operator=(const EventLoop&) = delete;
  ~EventLoop();

  /// Queues an event. Of successive moves on one form with the same buttons only the last is kept.
  void Post(const FormEvent& event);

  /// Delivers what is due now: input first, then ticks. What becomes due meanwhile waits for the next pump.
  void Pump();
  /// Waits until there is something to deliver, but no longer than `deadline`, then pumps.
  void PumpOrWait(Milliseconds deadline);
  void RunUntil(const std::function<bool()>& done);

  /// While it exists, only `form` and the forms that it owns get input; if `form` is null, none does. Ticks
  /// go on. Buttons that are pressed when it begins are released without a click.
  class Modal {
   public:
    Modal(EventLoop& loop, Form* form);
    ~Modal() { End(); }
    /// Its window has closed, although the call that showed it may not have returned yet.
    void End() { std::erase(loop_.modal_, this); }
    Modal(const Modal&) = delete;
    Modal& operator=(const Modal&) = delete;

   private:
    friend EventLoop;
    EventLoop& loop_;
    Form* const form_;
  };

  /// One delivery to a form. While any exists, unloaded forms are kept; the last one to end, even by an
  /// exception, destroys them.
  class Delivery {
   public:
    explicit Delivery(EventLoop& loop) : loop_(loop) { ++loop_.depth_; }
    ~Delivery();
    Delivery(const Delivery&) = delete;
    Delivery& operator=(const Delivery&) = delete;

   private:
    EventLoop& loop_;
  };

  /// How many nested deliveries are running.
  int Depth() const { return depth_; }

  void Add(Form& form) { forms_.push_back(&form); }
  void Add(Timer& timer) { timers_.push_back(&timer); }
  void Remove(Timer& timer) { std::erase(timers_, &timer); }
  /// Drops the queued events of a form that is about to be destroyed.
  void Forget(const Form& form);
  /// Destroys an unloaded form once the outermost delivery has ended, since its own handlers may be running.
  void DeleteLater(std::unique_ptr<Form> form);

 private:
  struct Queued {
    std::uint64_t number;
    FormEvent event;
  };
  void DeliverInput(std::uint64_t last);
  void DeliverTicks(Milliseconds now);
  bool Blocked(const FormEvent& event) const;

  EventSource& source_;
  std::deque<Queued> queue_;
  std::uint64_t lastNumber_ = 0;
  std::vector<Timer*> timers_;  // in the order of their creation
  std::vector<Form*> forms_;
  std::vector<const Modal*> modal_;
  std::vector<std::unique_ptr<Form>> deletedLater_;
  int depth_ = 0;
};

}  // namespace orvanta
