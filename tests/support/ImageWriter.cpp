#include "support/ImageWriter.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <utility>
#include <vector>

namespace orvanta::test {
namespace {

namespace fs = std::filesystem;
constexpr std::size_t kSector = 2048;

std::string Both(std::uint64_t number, std::size_t bytes) { return Low(number, bytes) + High(number, bytes); }
std::string Field(const std::string& name, const std::string& rest) {
  return name + Low(rest.size() + 4, 1) + "\1" + rest;
}
std::string Padded(std::string text, std::size_t size, char fill = '\0') {
  text.resize(size, fill);
  return text;
}

/// Letters up to U+07FF are enough for the tests.
std::string Ucs2(const std::string& utf8) {
  std::string text;
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    unsigned c = static_cast<unsigned char>(utf8[i]);
    if (c >= 0xC0) c = (c & 0x1F) << 6 | (static_cast<unsigned char>(utf8[++i]) & 0x3F);
    text += High(c, 2);
  }
  return text;
}

class Writer {
 public:
  Writer(const fs::path& folder, const ImageStyle& style) : folder_(folder), style_(style) {}

  std::string Write() {
    std::vector<fs::path> folders{folder_}, files;
    for (const auto& entry : fs::recursive_directory_iterator(folder_)) {
      if (entry.is_symlink()) continue;
      (entry.is_directory() ? folders : files).push_back(entry.path());
    }
    std::uint32_t next = 20;
    const auto place = [&](std::uint64_t bytes) {
      return Place{std::exchange(next, next + Blocks(bytes)), bytes};
    };
    for (const bool joliet : {false, true})
      for (const fs::path& folder : folders) {
        places_[joliet][folder] = place(Blocks(Records(folder, joliet).size()) * kSector);
      }
    for (const fs::path& file : files) places_[0][file] = places_[1][file] = place(fs::file_size(file));
    std::string image(next * kSector, '\0');
    const auto put = [&](std::size_t block, const std::string& bytes) {
      image.replace(block * kSector, bytes.size(), bytes);
    };
    put(16, Descriptor('\1', false));
    if (style_.joliet) put(17, Descriptor('\2', true));
    put(style_.joliet ? 18 : 17,
        "\xFF"
        "CD001\1");
    for (const bool joliet : {false, true})
      for (const fs::path& folder : folders) put(places_[joliet][folder].block, Records(folder, joliet));
    for (const fs::path& file : files) {
      std::ifstream in(file, std::ios::binary);
      put(places_[0][file].block, {std::istreambuf_iterator(in), {}});
    }
    return image;
  }

 private:
  struct Place {
    std::uint32_t block = 0;
    std::uint64_t size = 0;
  };

  static std::uint32_t Blocks(std::uint64_t bytes) {
    return static_cast<std::uint32_t>((bytes + kSector - 1) / kSector);
  }
  std::string Descriptor(char type, bool joliet) {
    std::string text =
        Padded(type + std::string("CD001\1"), 40) + Padded(joliet ? Ucs2("P") : "PLYTA", 32, ' ');
    text = Padded(Padded(text, 88) + (joliet ? "%/E" : ""), 156);
    return Padded(text + Record(folder_, std::string(1, '\0'), "", joliet), kSector);
  }
  std::string Record(const fs::path& path, const std::string& name, const std::string& use, bool joliet) {
    const bool isFolder = !fs::is_symlink(path) && fs::is_directory(path);
    const Place place = fs::is_symlink(path) ? Place() : places_[joliet][path];
    std::string record = Both(place.block + style_.address, 4) + Both(place.size, 4) + std::string(7, '\0') +
                         (isFolder ? "\2" : std::string(1, '\0')) + std::string(2, '\0') + Both(1, 2) +
                         Low(name.size(), 1) + name;
    if (name.size() % 2 == 0) record += '\0';
    return Low(record.size() + use.size() + 2, 1) + '\0' + record + use;
  }
  std::string RockRidge(const fs::path& path) {
    if (!style_.rockRidge) return {};
    const auto mode = static_cast<std::uint32_t>(fs::symlink_status(path).permissions());
    const std::uint32_t type = fs::is_symlink(path) ? 0120000 : fs::is_directory(path) ? 0040000 : 0100000;
    std::string use = Field("PX", Both(type | mode, 4) + std::string(24, '\0'));
    if (fs::is_symlink(path)) {
      std::string parts;
      for (const fs::path& part : fs::read_symlink(path))
        parts += part == ".."  ? Low(4, 2)
                 : part == "/" ? Low(8, 2)
                               : '\0' + Low(part.native().size(), 1) + part.native();
      use += Field("SL", '\0' + parts);
    }
    return use + Field("NM", '\0' + style_.encode(path.filename()));
  }
  std::string Records(const fs::path& folder, bool joliet) {
    const std::string first = style_.rockRidge && !joliet && folder == folder_
                                  ? Field("SP", std::string("\xBE\xEF\0", 3))
                                  : std::string();
    std::string text = Record(folder, std::string(1, '\0'), first, joliet);
    text += Record(folder == folder_ ? folder : folder.parent_path(), "\1", "", joliet);
    for (const auto& entry : fs::directory_iterator(folder)) {
      if (entry.is_symlink() && (joliet || !style_.rockRidge)) continue;
      std::string name = entry.path().filename();
      const std::string use = joliet ? "" : RockRidge(entry.path());
      if (style_.rockRidge && !joliet) name = "F" + std::to_string(number_++ % 100000);
      name = joliet ? Ucs2(name + ";1") : style_.encode(name) + ".;1";
      const std::string record = Record(entry.path(), name, use, joliet);
      if (text.size() / kSector != (text.size() + record.size()) / kSector)
        text.resize(Blocks(text.size()) * kSector);
      text += record;
    }
    return text;
  }

  const fs::path folder_;
  const ImageStyle& style_;
  std::map<fs::path, Place> places_[2];
  std::size_t number_ = 10000;
};

}  // namespace

std::string Low(std::uint64_t number, std::size_t bytes) {
  std::string text;
  for (std::size_t i = 0; i < bytes; ++i, number >>= 8) text += static_cast<char>(number & 0xFF);
  return text;
}

std::string High(std::uint64_t number, std::size_t bytes) {
  const std::string low = Low(number, bytes);
  return {low.rbegin(), low.rend()};
}

std::string IsoImage(const fs::path& folder, const ImageStyle& style) {
  return Writer(folder, style).Write();
}

std::string InSectors(const std::string& iso, std::size_t stride, std::size_t userData, std::size_t pregap) {
  std::string image(pregap * stride, '\0');
  for (std::size_t at = 0; at < iso.size(); at += kSector) {
    std::string sector(stride, '\0');
    if (stride >= 2352)
      sector.replace(0, 16,
                     '\0' + std::string(10, '\xFF') + std::string(4, '\0') + Low(userData == 24 ? 2 : 1, 1));
    sector.replace(userData, kSector, iso, at, kSector);
    image += sector;
  }
  return image;
}

}  // namespace orvanta::test
