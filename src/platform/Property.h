#pragma once

#include <utility>

namespace orvanta {

/// An owner of properties, which is notified after each change of one.
class PropertyOwner {
 public:
  virtual void PropertyChanged(const void* property) = 0;

 protected:
  ~PropertyOwner() = default;
};

/// A value that is assigned and read like a field and notifies its owner when it has changed. Assigning the
/// same value again changes nothing.
template <class T>
class Property {
 public:
  explicit Property(PropertyOwner& owner, T initial = T{}) : owner_(owner), value_(std::move(initial)) {}
  Property(const Property&) = delete;
  Property& operator=(const Property& other) { return *this = other.value_; }

  Property& operator=(T value) {
    if (value == value_) return *this;
    value_ = std::move(value);
    owner_.PropertyChanged(this);
    return *this;
  }

  operator const T&() const { return value_; }
  const T& operator()() const { return value_; }

  /// Changes the value without notifying the owner; for the owner itself.
  void SetQuietly(T value) { value_ = std::move(value); }

 private:
  PropertyOwner& owner_;
  T value_;
};

}  // namespace orvanta
