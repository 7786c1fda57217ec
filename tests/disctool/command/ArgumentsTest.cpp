#include <gtest/gtest.h>

#include "disctool/command/Arguments.h"
#include "disctool/command/CommandHelp.h"

namespace orvanta::test {
namespace {

TEST(Arguments, MistakesGetTheNearestName) {
  struct Case {
    std::vector<std::string> arguments;
    const char* problem;
  };
  const Case cases[] = {
      {{"tree", "--json", "a"}, ""},
      {{"tree", "--", "--json"}, ""},
      {{"--help"}, ""},
      {{"open", "--clear-cache"}, ""},
      {{}, "a command is missing"},
      {{"chekc", "a"}, "there is no command 'chekc'; did you mean check?"},
      {{"check", "--strcit", "a"}, "'check' has no option --strcit; did you mean --strict?"},
      {{"tree", "--strict", "a"}, "'tree' has no option --strict"},
      {{"check", "--json=1", "a"}, "--json takes no value"},
      {{"open", "--zoom=auto", "a"}, ""},
      {{"open", "--cache-limit", "500M", "a"}, ""},
      {{"open", "--cache-limit=lots", "a"}, "--cache-limit cannot be 'lots'"},
      {{"open", "--zoom", "0", "a"}, "--zoom cannot be '0'"},
      {{"open", "--zoom=2.5", "a"}, "--zoom cannot be '2.5'"},
      {{"--man"}, "--man needs a value"},
      {{"get", "a", "GLOBAL"}, "the arguments of 'get' are: DISC SECTION KEY"},
  };
  for (const Case& one : cases) EXPECT_EQ(ParseArguments(one.arguments).problem, one.problem);
}

TEST(Arguments, EveryCommandAndOptionIsInHelpManualPageAndCompletions) {
  for (const CommandInfo& command : Commands()) {
    std::vector<std::string> names{std::string(command.name)};
    for (const OptionInfo& option : command.options) names.emplace_back(option.name);
    for (const char* shell : {"bash", "zsh", "fish"})
      for (const std::string& name : names)
        EXPECT_NE(Completion(shell).find(name), std::string::npos) << shell;
    EXPECT_NE(HelpText().find("\n  " + names[0]), std::string::npos);
    for (const std::string& name : names) EXPECT_NE(HelpText(command).find(name), std::string::npos);
    EXPECT_TRUE(ManPage(command.name, "1").starts_with(".TH ORVANTA\\-DISC\\-"));
    EXPECT_FALSE(command.examples.empty()) << command.name;
  }
}

}  // namespace
}  // namespace orvanta::test
