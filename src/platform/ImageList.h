#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Picture.h"

namespace orvanta {

/// The pictures of a form, numbered from 1; some have a text key as well.
class ImageList {
 public:
  void Add(PicturePtr picture, std::string key = {}) {
    entries_.push_back({std::move(key), std::move(picture)});
  }
  int Count() const { return static_cast<int>(entries_.size()); }

  /// The picture with a number or key; the empty picture if there is none.
  PicturePtr operator()(int number) const {
    return number >= 1 && number <= Count() ? entries_[static_cast<std::size_t>(number) - 1].picture
                                            : nullptr;
  }
  PicturePtr operator()(std::string_view key) const {
    for (const Entry& entry : entries_) {
      if (entry.key == key) return entry.picture;
    }
    return nullptr;
  }

 private:
  struct Entry {
    std::string key;
    PicturePtr picture;
  };
  std::vector<Entry> entries_;
};

}  // namespace orvanta
