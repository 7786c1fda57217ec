#pragma once

#include <concepts>
#include <span>
#include <string>
#include <string_view>

namespace orvanta {

/// Builds a JSON object on one line.
class JsonObject {
 public:
  JsonObject& Text(std::string_view name, std::string_view utf8);
  JsonObject& Number(std::string_view name, std::integral auto value) {
    return Value(name, std::to_string(value));
  }
  JsonObject& Flag(std::string_view name, bool value) { return Value(name, value ? "true" : "false"); }
  /// `json` is a complete JSON value.
  JsonObject& Value(std::string_view name, std::string_view json);

  std::string Done() const { return "{" + members_ + "}"; }

 private:
  std::string members_;
};

/// An array of complete JSON values.
std::string JsonArray(std::span<const std::string> values);

/// The beginning of each line of `--json`: the version of the format, which is raised when a field is removed
/// or changes its meaning, and the disc as the user wrote it.
JsonObject JsonLine(std::string_view disc);

}  // namespace orvanta
