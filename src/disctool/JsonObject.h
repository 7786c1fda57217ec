#pragma once

#include <concepts>
#include <span>
#include <string>
#include <string_view>

namespace orvanta {

/// A JSON object in the making, in one line.
class JsonObject {
 public:
  JsonObject& Text(std::string_view name, std::string_view utf8);
  JsonObject& Number(std::string_view name, std::integral auto value) {
    return Value(name, std::to_string(value));
  }
  JsonObject& Flag(std::string_view name, bool value) { return Value(name, value ? "true" : "false"); }
  /// `json` is a value that is already written.
  JsonObject& Value(std::string_view name, std::string_view json);

  std::string Done() const { return "{" + members_ + "}"; }

 private:
  std::string members_;
};

/// An array of values that are already written.
std::string JsonArray(std::span<const std::string> values);

/// How each line of `--json` begins: the version of its form, which counts up when a field goes or changes
/// its meaning, and the disc as its user named it.
JsonObject JsonLine(std::string_view disc);

}  // namespace orvanta
