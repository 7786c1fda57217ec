#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "config/IniRead.h"
#include "config/Schema.h"

namespace orvanta {

/// The file that every setting is asked of first.
inline constexpr std::string_view kMenuFile = "Menu.ini";

/// The keys of the fixed sections, by their kind: `settings.Whole({"GLOBAL", "BackX"})`. Each call is one
/// lookup and one conversion; `Values.h` tells what an empty or senseless value gives.
class Settings {
 public:
  /// `ini` must outlive the settings.
  explicit Settings(const INI_Read& ini) : ini_(&ini) {}

  std::int16_t Whole(KeyRef<Kind::Whole> key) const;
  float Single(KeyRef<Kind::Single> key) const;
  double Double(KeyRef<Kind::Double> key) const;
  bool Boolean(KeyRef<Kind::Boolean> key) const;
  /// Red in the low byte, then green, then blue.
  std::int32_t Colour(KeyRef<Kind::Colour> key) const;
  std::string Text(KeyRef<Kind::Text> key) const { return Value(key); }
  std::string Any(KeyRef<Kind::Any> key) const { return Value(key); }

  /// Windows paths. That of an empty value is the folder itself: ask `Has` before an optional one.
  std::string Picture(KeyRef<Kind::Picture> key) const;
  /// What the paths of a button's three pictures begin with.
  std::string Base(KeyRef<Kind::Base> key) const;
  std::string Font(KeyRef<Kind::Font> key) const;
  std::string Sound(KeyRef<Kind::Sound> key) const;

  /// The key is there and not empty. A lookup of its own.
  template <Kind K>
  bool Has(KeyRef<K> key) const {
    return !Value(key).empty();
  }

 private:
  template <Kind K>
  std::string Value(KeyRef<K> key) const {
    return ini_->IniRead(key.section, key.name, kMenuFile);
  }

  const INI_Read* ini_;
};

}  // namespace orvanta
