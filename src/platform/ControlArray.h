#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "platform/Control.h"

namespace orvanta {

/// Controls with the same name, distinguished by `Index`. Element 0 always exists, and so do further ones if
/// the design has them; others are loaded and unloaded by number. The address of an element does not change
/// while it is loaded.
template <class T>
class ControlArray {
 public:
  ControlArray(Container& parent, std::string name, int designed = 1)
      : parent_(parent), name_(std::move(name)) {
    for (int i = 0; i < designed; ++i) Add(i);
  }

  /// The element `i`, which must be loaded.
  T& operator()(int i) { return *elements_.at(static_cast<std::size_t>(i)); }
  const T& operator()(int i) const { return *elements_.at(static_cast<std::size_t>(i)); }
  template <class Button>
  requires std::is_enum_v<Button> T& operator()(Button button) { return (*this)(static_cast<int>(button)); }
  template <class Button>
  requires std::is_enum_v<Button>
  const T& operator()(Button button) const { return (*this)(static_cast<int>(button)); }
  /// Highest index.
  int UBound() const { return static_cast<int>(elements_.size()) - 1; }

  /// Adds the next element: designed like element 0, not visible.
  void LoadNext() {
    Add(UBound() + 1);
    elements_.back()->CopyDesign(*elements_.front());
  }
  /// Unloads every element above 0.
  void UnloadAbove0() { elements_.resize(1); }

  template <class Action>
  void ForEach(Action action) {
    for (auto& element : elements_) action(*element);
  }
  void Show(bool visible) {
    ForEach([&](T& element) { element.Visible = visible; });
  }

  /// The handler of all elements; gets the element's index.
  std::function<void(std::int16_t)> Click;

 private:
  void Add(int i) {
    const auto index = static_cast<std::int16_t>(i);
    elements_.push_back(std::make_unique<T>(parent_, name_, index));
    elements_.back()->Click = [this, index] {
      if (Click) Click(index);
    };
  }

  Container& parent_;
  std::string name_;
  std::vector<std::unique_ptr<T>> elements_;
};

}  // namespace orvanta
