#include "platform/CommandLine.h"

#include <algorithm>

namespace orvanta {
namespace {

constexpr std::string_view kSeparators = " \t";

class Splitter {
 public:
  explicit Splitter(std::string_view text) : rest_(text) {}

  bool SkipSeparators() {
    rest_.remove_prefix(std::min(rest_.find_first_not_of(kSeparators), rest_.size()));
    return !rest_.empty();
  }

  std::string NextArgument() {
    std::string argument;
    bool quoted = false;
    while (!rest_.empty() && (quoted || kSeparators.find(rest_.front()) == std::string_view::npos)) {
      if (TakeBackslashes(argument)) continue;
      if (rest_.front() != '"') {
        argument += Take();
        continue;
      }
      Take();
      if (quoted && rest_.starts_with('"'))
        argument += Take();
      else
        quoted = !quoted;
    }
    return argument;
  }

 private:
  char Take() {
    const char taken = rest_.front();
    rest_.remove_prefix(1);
    return taken;
  }

  /// Takes a run of backslashes, and the quote after it if they make it literal. False if there is no run.
  bool TakeBackslashes(std::string& argument) {
    const std::size_t count = std::min(rest_.find_first_not_of('\\'), rest_.size());
    if (count == 0) return false;
    rest_.remove_prefix(count);
    const bool beforeQuote = rest_.starts_with('"');
    argument.append(beforeQuote ? count / 2 : count, '\\');
    if (beforeQuote && count % 2 == 1) argument += Take();
    return true;
  }

  std::string_view rest_;
};

}  // namespace

std::vector<std::string> SplitArguments(std::string_view parameters) {
  std::vector<std::string> arguments;
  Splitter splitter(parameters);
  while (splitter.SkipSeparators()) arguments.push_back(splitter.NextArgument());
  return arguments;
}

}  // namespace orvanta
