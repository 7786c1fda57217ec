#include "disctool/JsonObject.h"

#include "disctool/OutputText.h"

namespace orvanta {

namespace {
constexpr int kVersion = 1;
}

JsonObject& JsonObject::Text(std::string_view name, std::string_view utf8) {
  return Value(name, JsonText(utf8));
}

JsonObject& JsonObject::Value(std::string_view name, std::string_view json) {
  if (!members_.empty()) members_ += ", ";
  members_.append(JsonText(name)).append(": ").append(json);
  return *this;
}

std::string JsonArray(std::span<const std::string> values) {
  std::string text = "[";
  for (const std::string& value : values) text.append(text.size() > 1 ? ", " : "").append(value);
  return text + "]";
}

JsonObject JsonLine(std::string_view disc) {
  JsonObject line;
  line.Number("version", kVersion).Text("disc", disc);
  return line;
}

}  // namespace orvanta
