#include "disctool/command/Arguments.h"

#include <algorithm>

#include "disctool/Translation.h"
#include "disctool/disc/NearestName.h"

namespace orvanta {
namespace {

constexpr OptionInfo kGeneral[] = {
    {"help", "", Translatable("Show this help; after a command, the help of that command.")},
    {"version", "", Translatable("Show the version.")},
    {"completion", "SHELL", Translatable("Write the completions for bash, zsh or fish.")},
    {"man", "NAME", Translatable("Write a manual page: orvanta-disc or one of the commands.")}};

std::string DidYouMean(std::string_view name, const std::vector<std::string_view>& known) {
  const std::string_view nearest = NearestName(name, known);
  return nearest.empty() ? std::string() : Translated("; did you mean %1?", nearest);
}

/// Whether the missing discs are not needed.
bool NeedsNoArgument(const Request& request) { return request.Has("clear-cache") || request.Has("explain"); }

/// "500M" or "4G" in bytes; the units are powers of 1000.
std::optional<std::uintmax_t> SizeIn(std::string_view text) {
  constexpr std::string_view kUnits = "KMGT";
  constexpr std::uintmax_t kMost = 1'000'000'000;
  std::uintmax_t size = 0;
  const auto digits = std::min(text.find_first_not_of("0123456789"), text.size());
  for (const char c : text.substr(0, digits))
    size = std::min(size * 10 + static_cast<unsigned>(c - '0'), kMost);
  const std::string_view unit = text.substr(digits);
  if (digits == 0 || unit.size() > 1 || kUnits.find(unit) == kUnits.npos) return std::nullopt;
  for (std::size_t i = 0; !unit.empty() && i <= kUnits.find(unit); ++i)
    size = std::min(size, kMost * kMost / 1000) * 1000;
  return size;
}

/// Whether the value is valid for the option.
bool Fits(const OptionInfo& option, const std::string& value) {
  if (option.name == "cache-limit") return SizeIn(value).has_value();
  if (option.name != "zoom") return true;
  const bool isNumber = value.size() == 1 && value[0] >= '1' && value[0] <= '8';
  return isNumber || (value == "auto" && option.value.ends_with("auto"));
}

class Parser {
 public:
  explicit Parser(std::span<const std::string> arguments) : arguments_(arguments) {}

  Request Parse() {
    bool ended = false;
    for (at_ = 0; at_ < arguments_.size() && request_.problem.empty(); ++at_) {
      const std::string& argument = arguments_[at_];
      if (!ended && argument == "--") {
        ended = true;
      } else if (!ended && argument.size() > 1 && argument[0] == '-') {
        Option(argument);
      } else {
        Word(argument);
      }
    }
    if (request_.problem.empty()) CheckWords();
    return std::move(request_);
  }

 private:
  void Word(const std::string& word) {
    if (request_.command) return request_.words.push_back(word);
    request_.command = FindCommand(word);
    if (request_.command) return;
    std::vector<std::string_view> names;
    for (const CommandInfo& command : Commands()) names.push_back(command.name);
    request_.problem = Translated("there is no command '%1'", word) + DidYouMean(word, names);
  }

  const OptionInfo* Find(std::string_view name) const {
    for (const OptionInfo& option : GeneralOptions())
      if (option.name == name) return &option;
    if (!request_.command) return nullptr;
    const auto found = std::ranges::find(request_.command->options, name, &OptionInfo::name);
    return found == request_.command->options.end() ? nullptr : &*found;
  }

  void Unknown(const std::string& argument, std::string_view name) {
    std::vector<std::string_view> names;
    for (const OptionInfo& option : GeneralOptions()) names.push_back(option.name);
    if (request_.command)
      for (const OptionInfo& option : request_.command->options) names.push_back(option.name);
    const std::string_view nearest = NearestName(name, names);
    request_.problem = request_.command
                           ? Translated("'%1' has no option %2", request_.command->name, argument)
                           : Translated("%1 is not an option of orvanta-disc itself", argument);
    if (!nearest.empty()) request_.problem += Translated("; did you mean %1?", "--" + std::string(nearest));
  }

  void Option(const std::string& argument) {
    if (argument == "-h") return void(request_.options["help"]);
    if (argument == "-v") return void(request_.options["version"]);
    const std::string name = argument.substr(std::min(argument.find_first_not_of('-'), argument.size()));
    const auto equals = name.find('=');
    const OptionInfo* option = argument.starts_with("--") ? Find(name.substr(0, equals)) : nullptr;
    if (!option) return Unknown(argument, name.substr(0, equals));
    std::string& value = request_.options[std::string(option->name)];
    if (equals != name.npos && option->value.empty())
      request_.problem = Translated("--%1 takes no value", option->name);
    if (option->value.empty()) return;
    if (equals != name.npos) {
      value = name.substr(equals + 1);
    } else if (at_ + 1 < arguments_.size()) {
      value = arguments_[++at_];
    } else {
      request_.problem = Translated("--%1 needs a value", option->name);
      return;
    }
    if (!Fits(*option, value)) request_.problem = Translated("--%1 cannot be '%2'", option->name, value);
  }

  void CheckWords() {
    for (const char* general : {"help", "version", "completion", "man"})
      if (request_.Has(general)) return;
    if (!request_.command) {
      request_.problem = Translated("a command is missing");
      return;
    }
    const auto names = ArgumentNames(*request_.command);
    const bool many = !names.empty() && names.back().ends_with("...");
    const std::size_t given = request_.words.size();
    const std::size_t least = NeedsNoArgument(request_) ? names.size() - 1 : names.size();
    if (given >= least && (many || given <= names.size())) return;
    request_.problem =
        Translated("the arguments of '%1' are: %2", request_.command->name, request_.command->arguments);
  }

  std::span<const std::string> arguments_;
  std::size_t at_ = 0;
  Request request_;
};

}  // namespace

std::string Request::Option(std::string_view option) const {
  const auto found = options.find(option);
  return found == options.end() ? std::string() : found->second;
}

std::optional<int> Request::Zoom() const {
  const std::string value = Option("zoom");
  return value.empty() || value == "auto" ? std::optional<int>() : value[0] - '0';
}

std::optional<std::uintmax_t> Request::CacheLimit() const { return SizeIn(Option("cache-limit")); }

Request ParseArguments(std::span<const std::string> arguments) { return Parser(arguments).Parse(); }

std::span<const OptionInfo> GeneralOptions() { return kGeneral; }

std::vector<std::string_view> ArgumentNames(const CommandInfo& command) {
  std::vector<std::string_view> names;
  for (std::string_view rest = command.arguments; !rest.empty();) {
    const auto length = std::min(rest.find(' '), rest.size());
    names.push_back(rest.substr(0, length));
    rest.remove_prefix(std::min(length + 1, rest.size()));
  }
  return names;
}

}  // namespace orvanta
