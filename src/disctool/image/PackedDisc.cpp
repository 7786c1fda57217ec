#include "disctool/image/PackedDisc.h"

#include "disctool/image/PackedArchive.h"
#include "disctool/image/PackedVolume.h"
#include "disctool/image/volume/OpenImage.h"

namespace orvanta {

std::unique_ptr<PackedDisc> OpenPackedDisc(const std::filesystem::path& disc, std::string& problem) {
  const Bytes bytes = OpenBytes(disc, problem);
  if (!bytes) return nullptr;
  if (IsArchiveFile(*bytes)) return std::make_unique<PackedArchive>(disc, bytes->State());
  std::string state;
  std::unique_ptr<const Volume> volume = OpenVolume(disc, problem, &state);
  return volume ? std::make_unique<PackedVolume>(bytes->State() + state, std::move(volume)) : nullptr;
}

}  // namespace orvanta
