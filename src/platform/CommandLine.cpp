#include "platform/CommandLine.h"

#include <algorithm>

namespace orvanta {
namespace {

constexpr std::string_view Separators = " \t";

class Splitter {
 public:
  explicit Splitter(std::string_view text) : rest(text) {}

  bool skipSeparators() {
    rest.remove_prefix(std::min(rest.find_first_not_of(Separators), rest.size()));
    return !rest.empty();
  }

  std::string nextArgument() {
    std::string argument;
    bool quoted = false;
    while (!rest.empty() && (quoted || Separators.find(rest.front()) == std::string_view::npos)) {
      if (takeBackslashes(argument)) continue;
      if (rest.front() != '"') {
        argument += take();
        continue;
      }
      take();
      if (quoted && rest.starts_with('"'))
        argument += take();
      else
        quoted = !quoted;
    }
    return argument;
  }

 private:
  char take() {
    const char taken = rest.front();
    rest.remove_prefix(1);
    return taken;
  }

  /// Takes a run of backslashes, and the quote after it if they make it literal. False if there is no run.
  bool takeBackslashes(std::string& argument) {
    const std::size_t count = std::min(rest.find_first_not_of('\\'), rest.size());
    if (count == 0) return false;
    rest.remove_prefix(count);
    const bool beforeQuote = rest.starts_with('"');
    argument.append(beforeQuote ? count / 2 : count, '\\');
    if (beforeQuote && count % 2 == 1) argument += take();
    return true;
  }

  std::string_view rest;
};

}  // namespace

std::vector<std::string> SplitArguments(std::string_view parameters) {
  std::vector<std::string> arguments;
  Splitter splitter(parameters);
  while (splitter.skipSeparators()) arguments.push_back(splitter.nextArgument());
  return arguments;
}

}  // namespace orvanta
