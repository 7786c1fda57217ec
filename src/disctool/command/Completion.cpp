// Completion scripts, made from the table of commands.

#include "disctool/Translation.h"
#include "disctool/command/Arguments.h"
#include "disctool/command/CommandHelp.h"

namespace orvanta {
namespace {

/// What an argument or the value of an option is, according to its name in the table.
enum class Wanted { Disc, Folder, File, Command, Shell, Text };

Wanted WantedFor(std::string_view name) {
  if (name.ends_with("...")) name.remove_suffix(3);
  if (name == "DISC" || name == "A" || name == "B") return Wanted::Disc;
  if (name == "DIR" || name == "OUT") return Wanted::Folder;
  if (name == "FILE") return Wanted::File;
  if (name == "NAME") return Wanted::Command;
  return name == "SHELL" ? Wanted::Shell : Wanted::Text;
}

constexpr std::string_view kShells = "bash zsh fish";

std::string Names() {
  std::string names;
  for (const CommandInfo& command : Commands()) names.append(names.empty() ? "" : " ").append(command.name);
  return names;
}

std::string Flags(std::span<const OptionInfo> options) {
  std::string flags;
  for (const OptionInfo& option : options) flags.append(flags.empty() ? "--" : " --").append(option.name);
  return flags;
}

std::string BashOf(Wanted wanted) {
  const auto words = [](std::string_view list) {
    return "mapfile -t COMPREPLY < <(compgen -W '" + std::string(list) + "' -- \"$cur\")";
  };
  switch (wanted) {
    case Wanted::Disc:
    case Wanted::File: return "_filedir";
    case Wanted::Folder: return "_filedir -d";
    case Wanted::Command: return words("orvanta-disc " + Names());
    case Wanted::Shell: return words(kShells);
    case Wanted::Text: break;
  }
  return ":";
}

std::string BashValues() {
  std::string cases;
  const auto add = [&](const OptionInfo& option) {
    if (!option.value.empty() && cases.find("--" + std::string(option.name) + ")") == cases.npos)
      cases += "    --" + std::string(option.name) + ") " + BashOf(WantedFor(option.value)) + "; return ;;\n";
  };
  for (const OptionInfo& option : GeneralOptions()) add(option);
  for (const CommandInfo& command : Commands())
    for (const OptionInfo& option : command.options) add(option);
  return cases;
}

std::string BashArguments(const CommandInfo& command) {
  std::string cases;
  const auto names = ArgumentNames(command);
  for (std::size_t i = 0; i < names.size(); ++i) {
    const std::string place = names[i].ends_with("...") ? "*" : std::to_string(i);
    cases += "    " + std::string(command.name) + ":" + place + ") " + BashOf(WantedFor(names[i])) + " ;;\n";
  }
  return cases;
}

std::string Bash() {
  std::string script =
      "# bash completion for orvanta-disc, made by `orvanta-disc --completion bash`\n\n"
      "_orvanta_disc() {\n  local cur prev words cword command='' i arguments=0\n"
      "  _init_completion || return\n  case $prev in\n" +
      BashValues() +
      "  esac\n  for ((i = 1; i < cword; i++)); do\n"
      "    [[ ${words[i]} == -* ]] && continue\n"
      "    if [[ -z $command ]]; then command=${words[i]}; else arguments=$((arguments + 1)); fi\n  done\n"
      "  if [[ $cur == -* ]]; then\n    local options='" +
      Flags(GeneralOptions()) + "'\n    case $command in\n";
  for (const CommandInfo& command : Commands())
    if (!command.options.empty())
      script +=
          "      " + std::string(command.name) + ") options='--help " + Flags(command.options) + "' ;;\n";
  script +=
      "    esac\n    mapfile -t COMPREPLY < <(compgen -W \"$options\" -- \"$cur\")\n    return\n  fi\n"
      "  case $command:$arguments in\n    :*) mapfile -t COMPREPLY < <(compgen -W '" +
      Names() + "' -- \"$cur\") ;;\n";
  for (const CommandInfo& command : Commands()) script += BashArguments(command);
  return script + "  esac\n} && complete -F _orvanta_disc orvanta-disc\n";
}

/// Text for single quotes in zsh and fish, without the characters that `_arguments` interprets.
std::string Quotable(const std::string& text) {
  std::string safe;
  for (const char c : text) {
    if (c == ':' || c == '[' || c == ']') safe += '\\';
    safe += c == '\'' ? '"' : c;
  }
  return safe;
}

std::string ZshOf(Wanted wanted) {
  switch (wanted) {
    case Wanted::Disc:
    case Wanted::File: return "_files";
    case Wanted::Folder: return "_files -/";
    case Wanted::Command: return "(orvanta-disc " + Names() + ")";
    case Wanted::Shell: return "(" + std::string(kShells) + ")";
    case Wanted::Text: break;
  }
  return " ";
}

std::string ZshOptions(std::span<const OptionInfo> options) {
  std::string lines;
  for (const OptionInfo& option : options) {
    lines += " \\\n    '--" + std::string(option.name) + "[" + Quotable(Translated(option.help)) + "]";
    if (!option.value.empty())
      lines += ":" + std::string(option.value) + ":" + ZshOf(WantedFor(option.value));
    lines += "'";
  }
  return lines;
}

std::string Zsh() {
  std::string script =
      "#compdef orvanta-disc\n\n_orvanta_disc() {\n  local context state line\n  local -a commands=(";
  for (const CommandInfo& command : Commands())
    script += "\n    '" + std::string(command.name) + ":" + Quotable(Translated(command.summary)) + "'";
  script += ")\n  _arguments -C" + ZshOptions(GeneralOptions()) +
            " \\\n    '1:command:->command' '*::argument:->arguments'\n"
            "  if [[ $state == command ]]; then _describe command commands; return; fi\n"
            "  case $words[1] in\n";
  for (const CommandInfo& command : Commands()) {
    script += "  " + std::string(command.name) + ") _arguments '--help'" + ZshOptions(command.options);
    for (const std::string_view name : ArgumentNames(command))
      script += std::string(" '") + (name.ends_with("...") ? "*" : "") + ":" +
                std::string(name.substr(0, name.find('.'))) + ":" + ZshOf(WantedFor(name)) + "'";
    script += " ;;\n";
  }
  return script + "  esac\n}\n\n_orvanta_disc \"$@\"\n";
}

std::string FishOptions(const std::string& when, std::span<const OptionInfo> options) {
  std::string lines;
  for (const OptionInfo& option : options) {
    lines += "complete -c orvanta-disc -n '" + when + "' -l " + std::string(option.name);
    if (!option.value.empty()) lines += " -r";
    if (WantedFor(option.value) == Wanted::File) lines += " -F";
    if (WantedFor(option.value) == Wanted::Shell) lines += " -f -a '" + std::string(kShells) + "'";
    if (WantedFor(option.value) == Wanted::Command) lines += " -f -a 'orvanta-disc " + Names() + "'";
    lines += " -d '" + Quotable(Translated(option.help)) + "'\n";
  }
  return lines;
}

std::string Fish() {
  std::string script =
      "complete -c orvanta-disc -f\n" + FishOptions("__fish_use_subcommand", GeneralOptions());
  for (const CommandInfo& command : Commands()) {
    const std::string name(command.name), when = "__fish_seen_subcommand_from " + name;
    script += "complete -c orvanta-disc -n __fish_use_subcommand -a " + name + " -d '" +
              Quotable(Translated(command.summary)) + "'\n" + FishOptions(when, command.options) +
              "complete -c orvanta-disc -n '" + when + "' -F\n";
  }
  return script;
}

}  // namespace

std::string Completion(std::string_view shell) {
  if (shell == "bash") return Bash();
  if (shell == "zsh") return Zsh();
  return shell == "fish" ? Fish() : std::string();
}

}  // namespace orvanta
