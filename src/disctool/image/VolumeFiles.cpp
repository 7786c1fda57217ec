#include "disctool/image/VolumeFiles.h"

#include <array>
#include <cstdio>
#include <fstream>
#include <system_error>

#include "disctool/image/OpenTree.h"
#include "platform/VolumeFiles.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

void WriteNew(const fs::path& file, const std::string& text) {
  std::error_code error;
  if (!text.empty() && !fs::exists(fs::symlink_status(file, error)))
    std::ofstream(file, std::ios::binary) << text << '\n';
}

}  // namespace

void WriteVolumeFiles(const fs::path& disc, const fs::path& copy) {
  std::error_code error;
  if (fs::is_directory(disc, error)) return;
  std::string problem;
  const auto image = OpenTree(disc, problem);
  if (!image) return;
  WriteNew(copy / VolumeLabelFile, image->Label());
  if (const auto serial = image->Serial()) {
    std::array<char, 9> digits{};
    std::snprintf(digits.data(), digits.size(), "%08x", static_cast<unsigned>(*serial));
    WriteNew(copy / VolumeSerialFile, digits.data());
  }
}

}  // namespace orvanta
