#include "platform/Runner.h"

#include <algorithm>
#include <array>
#include <system_error>

#include "platform/ExecutableSearch.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

bool HasWine32(const fs::path& wine) {
  constexpr std::array kPlaces = {"lib/wine/i386-windows", "lib/i386-linux-gnu/wine/i386-windows",
                                  "lib32/wine/i386-windows", "lib/i386-linux-gnu/wine", "lib32/wine"};
  std::error_code error;
  const fs::path root = fs::canonical(wine, error).parent_path().parent_path();
  return std::any_of(kPlaces.begin(), kPlaces.end(),
                     [&](const char* place) { return fs::is_directory(root / place, error); });
}

Runner Find(const std::string& name, std::string_view searchPath) {
  const auto path = FindExecutable(name, searchPath);
  return path ? Runner{name, *path, {}} : Runner{name, {}, name};
}

Runner FindWine32(std::string_view searchPath) {
  Runner wine = Find("wine", searchPath);
  if (wine.missing.empty() && !HasWine32(wine.path)) wine.missing = "wine32";
  return wine;
}

}  // namespace

Runner FindRunner(const FileFacts& facts, std::string_view searchPath) {
  std::error_code ignored;
  switch (facts.kind) {
    case FileKind::Document:
    case FileKind::Broken: break;
    case FileKind::Native:
      if (!facts.interpreter.empty() && !fs::exists(facts.interpreter, ignored))
        return {{}, {}, facts.interpreter};
      break;
    case FileKind::Script: return Find(facts.interpreter, searchPath);
    case FileKind::Dos: return Find("dosbox", searchPath);
    case FileKind::Windows16:
    case FileKind::Windows32: return FindWine32(searchPath);
    case FileKind::Windows64:
    case FileKind::WindowsFile: return Find("wine", searchPath);
  }
  return {};
}

}  // namespace orvanta
