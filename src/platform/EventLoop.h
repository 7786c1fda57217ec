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

/// Milliseconds of a clock that never goes back.
using Milliseconds = std::int64_t;
inline constexpr Milliseconds kNever = std::numeric_limits<Milliseconds>::max();

/// What the event loop needs of a host: the clock, the waiting and the raw input.
class EventSource {
 public:
  virtual Milliseconds Now() = 0;
  /// Takes in what has happened so far without waiting and posts it to the loop; paints what is dirty.
  virtual void TakeInput() = 0;
  /// Waits until there is input or the clock has reached `deadline`, without using the processor.
  virtual void WaitForInput(Milliseconds deadline) = 0;

 protected:
  ~EventSource() = default;
};

/// Delivers input and timer ticks to forms, one at a time, on the program's one thread. Nothing is delivered
/// outside `Pump` and what calls it. Handlers may pump again.
class EventLoop {
 public:
  explicit EventLoop(EventSource& source);
  EventLoop(const EventLoop&) = delete;
  EventLoop& operator=(const EventLoop&) = delete;
  ~EventLoop();

  /// Queues an event. Of moves on one form with the same buttons only the last is kept.
  void Post(const FormEvent& event);

  /// Delivers what is due now: input first, then ticks. What becomes due meanwhile waits for the next pump.
  void Pump();
  /// Waits for something to deliver, to `deadline` at the longest, then pumps.
  void PumpOrWait(Milliseconds deadline);
  void RunUntil(const std::function<bool()>& done);

  /// While it lives only `form` and the forms that it owns get input; with null, none does. Ticks go on. What
  /// is pressed as it begins is let go of.
  class Modal {
   public:
    Modal(EventLoop& loop, Form* form);
    ~Modal() { End(); }
    /// Its window is gone, though the call that showed it may not have returned yet.
    void End() { std::erase(loop_.modal_, this); }
    Modal(const Modal&) = delete;
    Modal& operator=(const Modal&) = delete;

   private:
    friend EventLoop;
    EventLoop& loop_;
    Form* const form_;
  };

  /// One delivery to a form: while any lives, unloaded forms are kept. The last one to end, also by an
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

  /// How many deliveries are running, one inside the other.
  int Depth() const { return depth_; }

  void Add(Form& form) { forms_.push_back(&form); }
  void Add(Timer& timer) { timers_.push_back(&timer); }
  void Remove(Timer& timer) { std::erase(timers_, &timer); }
  /// Drops what is queued for a form that is going.
  void Forget(const Form& form);
  /// Keeps an unloaded form until the outermost delivery has ended, since its own handlers may be running.
  void Bury(std::unique_ptr<Form> form);

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
  std::vector<std::unique_ptr<Form>> graveyard_;
  int depth_ = 0;
};

}  // namespace orvanta
