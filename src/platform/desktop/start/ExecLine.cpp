#include "platform/desktop/start/ExecLine.h"

#include <string_view>

namespace orvanta {
namespace {

bool AsksForTarget(std::string_view word) {
  for (std::size_t at = word.find('%'); at != std::string_view::npos; at = word.find('%', at + 2))
    if (std::string_view("fFuU").find(word.substr(at + 1, 1)) != std::string_view::npos &&
        at + 1 < word.size())
      return true;
  return false;
}

std::string Value(char code, const ExecFields& fields) {
  switch (code) {
    case '%': return "%";
    case 'f':
    case 'F': return fields.path;
    case 'u':
    case 'U': return fields.uri;
    case 'c': return fields.name;
    case 'k': return fields.entry;
    default: return "";
  }
}

std::string Filled(std::string_view word, const ExecFields& fields) {
  std::string filled;
  for (std::size_t i = 0; i < word.size(); ++i) {
    if (word[i] != '%')
      filled += word[i];
    else if (++i < word.size())
      filled += Value(word[i], fields);
  }
  return filled;
}

}  // namespace

std::vector<std::string> ExpandExec(const std::vector<std::string>& words, const ExecFields& fields) {
  std::vector<std::string> arguments;
  bool asked = false;
  for (const std::string& word : words) {
    asked = asked || AsksForTarget(word);
    if (word == "%i" && !fields.icon.empty()) arguments.insert(arguments.end(), {"--icon", fields.icon});
    std::string filled = Filled(word, fields);
    // A word that consisted only of a code without a value is dropped; an empty word stays an argument.
    if (!filled.empty() || word.empty()) arguments.push_back(std::move(filled));
  }
  if (!asked && !arguments.empty()) arguments.push_back(fields.path);
  return arguments;
}

}  // namespace orvanta
