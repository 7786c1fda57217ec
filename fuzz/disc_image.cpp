#include <array>
#include <cstdint>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "disctool/image/sectors/ReadTracks.h"
#include "disctool/image/volume/OpenImage.h"

namespace {

namespace fs = std::filesystem;

/// A folder for the images, which the next input overwrites.
const fs::path& Folder() {
  static const fs::path folder = [] {
    std::string pattern = (fs::temp_directory_path() / "orvanta-fuzz-XXXXXX").string();
    if (!mkdtemp(pattern.data())) std::abort();
    return fs::path(pattern);
  }();
  return folder;
}

void Write(const std::string& name, std::string_view bytes) {
  std::ofstream(Folder() / name, std::ios::binary)
      .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

/// Reads everything that there is, as far as a hostile image allows it to be found.
void ReadAll(const orvanta::DiscTree& disc) {
  constexpr std::size_t kMostFolders = 100;
  std::deque<std::string> folders{""};
  for (std::size_t i = 0; i < kMostFolders && !folders.empty(); ++i) {
    const std::string folder = folders.front();
    folders.pop_front();
    for (const std::string& name : disc.List(folder)) {
      const std::string path = folder.empty() ? name : folder + "/" + name;
      // A name that leads anywhere else would be a way out.
      if (name.empty() || name == ".." || name.find('/') != name.npos) std::abort();
      if (disc.EntryAt(path).kind == orvanta::DiscTree::Kind::Folder) folders.push_back(path);
      disc.Read(path, 0, 4096);
    }
  }
}

}  // namespace

/// The first byte says what the rest is: an image, or a sheet of any kind before a NUL and then its data.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::array<const char*, 4> kNames = {"x.iso", "x.cue", "x.ccd", "x.mds"};
  constexpr std::array<const char*, 4> kDataNames = {"", "x.bin", "x.img", "x.mdf"};
  if (size == 0) return 0;
  const std::size_t kind = data[0] % kNames.size();
  std::string_view input(reinterpret_cast<const char*>(data) + 1, size - 1);
  // An MDS has NULs of its own: its first 512 bytes are the sheet.
  const std::size_t sheet = kind == 0 ? input.size() : kind == 3 ? 512 : input.find('\0');
  Write(kNames[kind], input.substr(0, sheet));
  if (kind != 0) Write(kDataNames[kind], input.substr(std::min(sheet, input.size())));
  std::string problem;
  if (const auto disc = orvanta::OpenImage(Folder() / kNames[kind], problem)) ReadAll(*disc);
  return 0;
}
