#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "config/IniRead.h"
#include "config/Schema.h"

namespace orvanta {

/// The settings of the fixed sections, by their kind: `settings.Whole({"GLOBAL", "BackX"})`. Each call does
/// one lookup and one conversion; `Values.h` defines the result for empty and malformed values.
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

  /// These are Windows paths. For an empty value the result is the folder itself, so ask `Has` first if the
  /// key is optional.
  std::string Picture(KeyRef<Kind::Picture> key) const;
  /// The common start of the paths of a button's three pictures.
  std::string Base(KeyRef<Kind::Base> key) const;
  std::string Font(KeyRef<Kind::Font> key) const;
  std::string Sound(KeyRef<Kind::Sound> key) const;

  /// Whether the key exists and is not empty; does a lookup of its own.
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
