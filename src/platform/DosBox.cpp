#include "platform/DosBox.h"

#include <algorithm>
#include <cstdint>
#include <fstream>

#include "platform/AsciiText.h"
#include "platform/VolumeFiles.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t LongestStem = 8, LongestExtension = 3, LongestLabel = 11;

char Capital(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

std::string Capitals(std::string_view text) {
  std::string capitals(text);
  std::transform(capitals.begin(), capitals.end(), capitals.begin(), Capital);
  return capitals;
}

bool IsLetterOrDigit(char c) { return (c >= '0' && c <= '9') || (Capital(c) >= 'A' && Capital(c) <= 'Z'); }

bool IsDosCharacter(char c) {
  return IsLetterOrDigit(c) || std::string_view("!#$%&'()-@^_`{}").find(c) != std::string_view::npos;
}

bool IsDosName(std::string_view name) {
  const std::string_view stem = name.substr(0, name.find('.'));
  const std::string_view extension = name.substr(std::min(stem.size() + 1, name.size()));
  return !stem.empty() && stem.size() <= LongestStem && extension.size() <= LongestExtension &&
         extension.empty() == (stem.size() == name.size()) &&
         std::all_of(stem.begin(), stem.end(), IsDosCharacter) &&
         std::all_of(extension.begin(), extension.end(), IsDosCharacter);
}

/// The hash over all bytes of the name, as Wine 1.0 computed it. `name` is not empty.
unsigned Hash(std::string_view name) {
  const auto small = [](char c) { return static_cast<unsigned char>(FoldAscii(c)); };
  unsigned hash = 0xBEEF;
  for (std::size_t i = 0; i < name.size(); ++i) {
    const unsigned next = i + 1 < name.size() ? small(name[i + 1]) : 0U;
    hash = ((hash << 3) ^ (hash >> 5) ^ small(name[i]) ^ (next << 8)) & 0xFFFF;
  }
  return hash;
}

/// The first characters of a part of a name; an underscore replaces each that Wine considers unfit.
std::string Mangled(std::string_view part, std::size_t longest) {
  std::string mangled;
  for (const char c : part.substr(0, longest)) {
    const bool fit = static_cast<unsigned char>(c) < 0x80 &&
                     std::string_view("*?<>|\"+=,;[] ~.").find(c) == std::string_view::npos;
    mangled += fit ? Capital(c) : '_';
  }
  return mangled;
}

/// Four characters of the name, "~", and three characters for the hash.
std::string HashedName(std::string_view name) {
  constexpr std::string_view Digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZ012345";
  constexpr std::size_t Beginning = 4;
  // A dot at the beginning or the end does not separate an extension.
  std::size_t dot = name.substr(0, name.size() - 1).rfind('.');
  if (dot == 0) dot = std::string_view::npos;
  std::string hashed = Mangled(name.substr(0, dot), Beginning);
  hashed.resize(Beginning + 1, '~');
  const unsigned hash = Hash(name);
  for (const unsigned shift : {10U, 5U, 0U}) hashed += Digits[hash >> shift & 31];
  return dot == std::string_view::npos ? hashed
                                       : hashed + "." + Mangled(name.substr(dot + 1), LongestExtension);
}

/// The names that lead from `disc` to `file`, each after a backslash. Nothing if it is not inside.
std::string DosPath(const fs::path& file, const fs::path& disc) {
  std::string path;
  const fs::path below = file.lexically_relative(disc);
  if (below.empty() || *below.begin() == "..") return {};
  for (const fs::path& name : below)
    if (name != ".") path += "\\" + DosName(name.string());
  return path;
}

std::string Quoted(const std::string& word) {
  return word.empty() || word.find_first_of(" \t") != word.npos ? "\"" + word + "\"" : word;
}

std::string Parameters(const StartRequest& request, const fs::path& disc) {
  const auto onDisc = [](const StartArgument& argument) { return !argument.file.empty(); };
  if (std::none_of(request.arguments.begin(), request.arguments.end(), onDisc)) return request.parameters;
  std::string line;
  for (const StartArgument& argument : request.arguments) {
    std::string word = argument.text;
    if (onDisc(argument)) word = "D:" + DosPath(argument.file, disc);
    if (word == "D:") word += "\\";
    line += (line.empty() ? "" : " ") + Quoted(word);
  }
  return line;
}

/// DOS allows eleven characters. A mounted folder usually has the name of its disc.
std::string Label(const fs::path& disc) {
  std::string label;
  std::ifstream file(disc / VolumeLabelFile);
  if (!std::getline(file, label)) label = (disc / "").parent_path().filename().string();
  label = Capitals(label);
  std::replace_if(
      label.begin(), label.end(), [](char c) { return !IsLetterOrDigit(c); }, '_');
  return label.empty() ? "DISC" : label.substr(0, LongestLabel);
}

}  // namespace

std::string DosName(std::string_view name) {
  return name.empty() || IsDosName(name) ? Capitals(name) : HashedName(name);
}

std::vector<std::string> DosBoxArguments(const fs::path& file, const StartRequest& request,
                                         const fs::path& disc) {
  const std::string below = DosPath(file.parent_path(), disc);
  const bool elsewhere = DosPath(file, disc).empty();
  const std::string root = elsewhere ? file.parent_path().string() : disc.string();
  std::vector<std::string> lines{"mount c \"" + root + "\"",
                                 "mount d \"" + disc.string() + "\" -t cdrom -label " + Label(disc), "c:"};
  if (!below.empty()) lines.push_back("cd " + below);
  lines.push_back(DosName(file.filename().string()) + " " + Parameters(request, disc));
  lines.emplace_back("exit");
  std::vector<std::string> arguments;
  for (const std::string& line : lines) arguments.insert(arguments.end(), {"-c", line});
  return arguments;
}

}  // namespace orvanta
