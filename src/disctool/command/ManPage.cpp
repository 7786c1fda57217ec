// Manual pages, made from the table of commands.

#include "disctool/Translation.h"
#include "disctool/command/Arguments.h"
#include "disctool/command/CommandHelp.h"

namespace orvanta {
namespace {

/// Text that groff shows exactly as it is.
std::string Roff(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    if (escaped.empty() && (c == '.' || c == '\'')) escaped += "\\&";
    if (c == '\\') {
      escaped += "\\e";
    } else if (c == '-') {
      escaped += "\\-";
    } else {
      escaped += c;
    }
  }
  return escaped;
}

/// The same for prose, where a single dash is a hyphen.
std::string Prose(std::string text) {
  std::string escaped;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\\') {
      escaped += "\\e";
    } else if (text.compare(i, 2, "--") == 0) {
      escaped += "\\-\\-";
      ++i;
    } else {
      escaped += text[i];
    }
  }
  return escaped;
}

std::string Heading(std::string_view name, std::string_view version) {
  std::string upper(name);
  for (char& c : upper) c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  return ".TH " + Roff(upper) + " 1 \"\" \"Orvanta Shell " + std::string(version) + "\" \"" +
         Translated("User Commands") + "\"\n";
}

std::string Section(const std::string& title) { return ".SH " + title + "\n"; }

std::string OptionRows(std::span<const OptionInfo> options) {
  std::string rows;
  for (const OptionInfo& option : options) {
    rows += ".TP\n.B " + Roff("--" + std::string(option.name));
    if (!option.value.empty()) rows += " \\fI" + Roff(option.value) + "\\fR";
    rows += "\n" + Prose(Translated(option.help)) + "\n";
  }
  return rows;
}

std::string ExitStatus() {
  const auto row = [](const char* status, const std::string& text) {
    return ".TP\n.B " + std::string(status) + "\n" + text + "\n";
  };
  return Section(Translated("EXIT STATUS")) + row("0", Translated("Success.")) +
         row("1", Translated("Something is wrong with a disc, or nothing was found.")) +
         row("2", Translated("The arguments are wrong.")) +
         row("4", Translated("A disc could not be read; 5 if something is wrong with another one, too."));
}

std::string ToolPage(std::string_view version) {
  std::string page = Heading("orvanta-disc", version) + Section(Translated("NAME")) + "orvanta\\-disc \\- " +
                     Translated("open, check and archive discs for Orvanta Shell") + "\n" +
                     Section(Translated("SYNOPSIS")) +
                     ".B orvanta\\-disc\n\\fICOMMAND\\fR [\\fIOPTION\\fR...] [\\fIARGUMENT\\fR...]\n" +
                     Section(Translated("COMMANDS"));
  std::string pages;
  for (const CommandInfo& command : Commands()) {
    page += ".TP\n.B " + Roff(command.name) + " \\fI" + Roff(command.arguments) + "\\fR\n" +
            Translated(command.summary) + ".\n";
    pages += ".BR orvanta\\-disc\\-" + Roff(command.name) + " (1),\n";
  }
  page += ".P\n" +
          Prose(Translated(
              "DISC is a folder with a disc's files, a mounted disc, or an image of a disc. Names of "
              "files that begin with a dash follow \"--\".")) +
          "\n" + Section(Translated("OPTIONS")) + OptionRows(GeneralOptions()) + ExitStatus() +
          Section(Translated("FILES")) + ".TP\n.I $XDG_CACHE_HOME/orvanta\n" +
          Translated("The unpacked images; ~/.cache/orvanta if the variable is not set.") + "\n" +
          Section(Translated("SEE ALSO")) + pages + ".BR orvanta (1),\n" +
          Translated("how to make a disc: /usr/share/doc/orvanta/discs.md") + "\n";
  return page;
}

std::string CommandPage(const CommandInfo& command, std::string_view version) {
  const std::string name = "orvanta-disc-" + std::string(command.name);
  std::string page = Heading(name, version) + Section(Translated("NAME")) + Roff(name) + " \\- " +
                     Translated(command.summary) + "\n" + Section(Translated("SYNOPSIS")) +
                     ".B orvanta\\-disc " + Roff(command.name) + "\n";
  if (!command.options.empty()) page += "[\\fIOPTION\\fR...] ";
  page += "\\fI" + Roff(command.arguments) + "\\fR\n" + Section(Translated("DESCRIPTION")) +
          Prose(Translated(command.description)) + "\n";
  if (!command.options.empty()) page += Section(Translated("OPTIONS")) + OptionRows(command.options);
  page += Section(Translated("EXAMPLES"));
  for (const ExampleInfo& example : command.examples)
    page += ".TP\n.B " + Roff(example.line) + "\n" + Prose(Translated(example.help)) + "\n";
  return page + ExitStatus() + Section(Translated("SEE ALSO")) + ".BR orvanta\\-disc (1)\n";
}

}  // namespace

std::string ManPage(std::string_view name, std::string_view version) {
  if (name == "orvanta-disc") return ToolPage(version);
  const CommandInfo* command = FindCommand(name);
  return command ? CommandPage(*command, version) : std::string();
}

}  // namespace orvanta
