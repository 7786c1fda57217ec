#include "disctool/command/CommandHelp.h"

#include <algorithm>

#include "disctool/Translation.h"
#include "disctool/command/Arguments.h"

namespace orvanta {
namespace {

constexpr std::size_t kWidth = 79;

/// The width of a text in UTF-8 on a terminal, for letters of width one.
std::size_t Places(std::string_view utf8) {
  return static_cast<std::size_t>(
      std::ranges::count_if(utf8, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

/// `text` wrapped into lines. The first begins at `column`, the others after `indent` blanks.
std::string Wrapped(std::string_view text, std::size_t column, std::size_t indent) {
  std::string lines;
  while (!text.empty()) {
    const auto length = std::min(text.find(' '), text.size());
    const std::string_view word = text.substr(0, length);
    text.remove_prefix(std::min(length + 1, text.size()));
    const bool starts = lines.empty();
    if (!starts && column + 1 + Places(word) > kWidth) {
      lines.append("\n").append(indent, ' ');
      column = indent;
    } else if (!starts) {
      lines += ' ';
      ++column;
    }
    lines += word;
    column += Places(word);
  }
  return lines + "\n";
}

/// "  name    text", with the text in its own column.
std::string Row(const std::string& name, const std::string& text, std::size_t column) {
  std::string row = "  " + name;
  row.append(std::max(column, Places(row) + 2) - Places(row), ' ');
  return row + Wrapped(text, std::max(column, Places(row)), column);
}

std::string Rows(std::span<const OptionInfo> options) {
  std::string rows;
  for (const OptionInfo& option : options)
    rows +=
        Row("--" + std::string(option.name) + (option.value.empty() ? "" : " " + std::string(option.value)),
            Translated(option.help), 22);
  return rows;
}

std::string DiscsAre() {
  return Translated(
      "DISC is a folder with a disc's files, a mounted disc, or an image of a disc. Names of files that "
      "begin "
      "with a dash follow \"--\".");
}

}  // namespace

std::string HelpText() {
  std::string text = Translated("usage: %1", "orvanta-disc COMMAND [OPTION...] [ARGUMENT...]") + "\n\n" +
                     Translated("Opens, checks and archives discs for Orvanta Shell.") + "\n\n" +
                     Translated("Commands:") + "\n";
  for (const CommandInfo& command : Commands())
    text += Row(std::string(command.name) + " " + std::string(command.arguments), Translated(command.summary),
                26);
  text += "\n" + Translated("Options:") + "\n" + Rows(GeneralOptions());
  return text + "\n" + Wrapped(DiscsAre(), 0, 0) + "\n" +
         Translated("'orvanta-disc COMMAND --help' explains a command.") + "\n";
}

std::string HelpText(const CommandInfo& command) {
  const std::string usage = "orvanta-disc " + std::string(command.name) +
                            (command.options.empty() ? " " : " [OPTION...] ") +
                            std::string(command.arguments);
  std::string text = Translated("usage: %1", usage) + "\n\n" + Wrapped(Translated(command.description), 0, 0);
  if (!command.options.empty()) text += "\n" + Translated("Options:") + "\n" + Rows(command.options);
  text += "\n" + Translated("Examples:") + "\n";
  for (const ExampleInfo& example : command.examples)
    text += "  " + std::string(example.line) + "\n      " + Wrapped(Translated(example.help), 6, 6);
  return text;
}

}  // namespace orvanta
