#pragma once

#include <unistd.h>

#include <utility>

namespace orvanta {

/// Owns a file descriptor and closes it in the end. -1 means none.
class Descriptor {
 public:
  Descriptor() = default;
  explicit Descriptor(int owned) : number_(owned) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor() { reset(); }

  void reset() {
    if (number_ >= 0) ::close(number_);
    number_ = -1;
  }
  int get() const { return number_; }
  explicit operator bool() const { return number_ >= 0; }

 private:
  int number_ = -1;
};

}  // namespace orvanta
