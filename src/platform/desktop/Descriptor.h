#pragma once

#include <unistd.h>

#include <utility>

namespace orvanta {

/// Owns a file descriptor; closed at the end. -1 is none.
class Descriptor {
 public:
  Descriptor() = default;
  explicit Descriptor(int owned) : number(owned) {}
  Descriptor(Descriptor&& other) noexcept : number(std::exchange(other.number, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number, other.number);
    return *this;
  }
  ~Descriptor() { reset(); }

  void reset() {
    if (number >= 0) ::close(number);
    number = -1;
  }
  int get() const { return number; }
  explicit operator bool() const { return number >= 0; }

 private:
  int number = -1;
};

}  // namespace orvanta
