#include "disctool/export/WebIndex.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "disctool/OutputText.h"
#include "platform/AsciiText.h"

namespace orvanta {
namespace {

constexpr int kDeepest = 40;

/// Of the formats that such discs have.
constexpr std::array<std::string_view, 32> kPlayed{
    ".wav",  ".mp3", ".mp2", ".mpa", ".mid",  ".midi", ".rmi",  ".kar",  ".au",  ".snd", ".aif",
    ".aiff", ".ogg", ".oga", ".wma", ".flac", ".avi",  ".mpg",  ".mpeg", ".mpe", ".m1v", ".mpv",
    ".dat",  ".mov", ".qt",  ".mp4", ".wmv",  ".asf",  ".webm", ".ogv",  ".flc", ".fli"};

std::string_view NameOf(FileKind kind) {
  switch (kind) {
    case FileKind::Native: return "native";
    case FileKind::Script: return "script";
    case FileKind::Dos: return "dos";
    case FileKind::Windows16: return "windows16";
    case FileKind::Windows32: return "windows32";
    case FileKind::Windows64: return "windows64";
    case FileKind::WindowsFile: return "windowsFile";
    case FileKind::Document:
    case FileKind::Broken: break;
  }
  return "document";
}

FileKind KindOf(const DiscTree& disc, const std::string& path, std::uintmax_t size) {
  const FileBytes bytes{size, [&](std::uint64_t offset, std::size_t count) {
                          return disc.Read(path, offset, count).value_or(std::string());
                        }};
  return FactsOf(bytes, path, false).kind;
}

void AddFolder(const DiscTree& disc, const std::string& folder, int depth, WebFiles& files) {
  if (depth > kDeepest) return;
  for (const std::string& name : disc.List(folder)) {
    // Bytes that are not UTF-8 have no place in an address.
    if (Printable(name) != name) continue;
    const std::string path = folder.empty() ? name : folder + '/' + name;
    const DiscTree::Entry entry = disc.EntryAt(path);
    if (entry.kind == DiscTree::Kind::Folder) AddFolder(disc, path, depth + 1, files);
    if (entry.kind == DiscTree::Kind::File)
      files[path] = {.size = entry.size, .kind = KindOf(disc, path, entry.size)};
  }
}

std::string FileJson(const WebFile& file) {
  std::string json = "{\"size\": " + std::to_string(file.size);
  if (const std::string_view kind = NameOf(file.kind); kind != "document")
    json += ", \"kind\": " + JsonText(kind);
  if (file.read) json += ", \"read\": true";
  if (!file.as.empty()) json += ", \"as\": " + JsonText(file.as);
  if (!file.data.empty()) json += ", \"data\": " + JsonText(file.data);
  return json + "}";
}

}  // namespace

WebFiles ListWebFiles(const DiscTree& disc) {
  WebFiles files;
  AddFolder(disc, {}, 0, files);
  for (const char* name : {"D:\\Data\\Menu.ini", "D:\\Data\\Param.ini"}) {
    const FoundPath found = disc.Find(name);
    if (const auto file = files.find(found.path.string()); file != files.end()) file->second.read = true;
  }
  return files;
}

bool IsPlayed(const std::string& path) {
  return std::ranges::any_of(kPlayed, [&](std::string_view extension) {
    return path.size() > extension.size() &&
           EqualNoCaseAscii(std::string_view(path).substr(path.size() - extension.size()), extension);
  });
}

std::string WebIndexJson(const std::string& title, const WebFiles& files) {
  std::string json = "{\"title\": " + JsonText(title) + ",\n\"files\": {";
  const char* separator = "\n";
  for (const auto& [path, file] : files) {
    json += separator + JsonText(path) + ": " + FileJson(file);
    separator = ",\n";
  }
  return json + "\n}}\n";
}

}  // namespace orvanta
