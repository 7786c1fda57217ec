#include "disctool/image/sectors/SheetFile.h"

#include "config/PathWalk.h"
#include "config/Windows1250.h"
#include "disctool/OutputText.h"
#include "disctool/Translation.h"

namespace orvanta {

Bytes OpenSheetFile(const std::filesystem::path& sheet, std::string_view named, std::string& problem) {
  const std::string name = IsUtf8(named) ? std::string(named) : FromWindows1250(named);
  std::vector<std::string> names;
  AddNames(names, name.size() > 1 && name[1] == ':' ? std::string_view(name).substr(2) : name);
  if (!names.empty()) {
    const std::string last = names.back();
    const std::filesystem::path renamed =
        sheet.stem().string() + std::filesystem::path(last).extension().string();
    for (const auto& tried : {names, {last}, {renamed.string()}}) {
      const std::filesystem::path folder = sheet.has_parent_path() ? sheet.parent_path() : ".";
      if (const FoundPath found = WalkPath(HostLookup(), folder, tried))
        return OpenBytes(found.path, problem);
    }
  }
  problem = sheet.string() + ": " + Translated("its data file is not there: %1", Printable(name));
  return nullptr;
}

}  // namespace orvanta
