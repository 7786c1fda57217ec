#include "platform/desktop/start/ProgramKind.h"

#include <sys/stat.h>

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>

namespace orvanta {
namespace {

constexpr std::size_t DosHeaderSize = 28;
/// A header that tells of another one behind it is this long and ends with that one's place.
constexpr std::size_t LongDosHeaderSize = 64;
constexpr std::size_t NewHeaderPlace = 0x3C;
constexpr std::size_t PeHeaderSize = 24;

std::string ReadAt(const Descriptor& file, std::uint64_t offset, std::size_t count) {
  std::string bytes(count, '\0');
  const ssize_t got = pread(file.get(), bytes.data(), count, static_cast<off_t>(offset));
  bytes.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
  return bytes;
}

std::uint32_t Little(std::string_view bytes, std::size_t at, std::size_t size) {
  std::uint32_t value = 0;
  for (std::size_t i = size; i-- > 0;) value = value << 8 | static_cast<unsigned char>(bytes[at + i]);
  return value;
}

/// The DOS image that the MZ header describes lies wholly in the file.
bool IsDosImage(std::string_view header, std::uint64_t fileSize) {
  constexpr std::uint32_t PageSize = 512;
  constexpr std::uint32_t ParagraphSize = 16;
  const std::uint32_t bytesOnLastPage = Little(header, 2, 2);
  const std::uint32_t pages = Little(header, 4, 2);
  const std::uint32_t headerSize = Little(header, 8, 2) * ParagraphSize;
  if (pages == 0 || bytesOnLastPage > PageSize) return false;
  const std::uint32_t unused = bytesOnLastPage == 0 ? 0 : PageSize - bytesOnLastPage;
  const std::uint32_t imageSize = pages * PageSize - unused;
  return headerSize >= DosHeaderSize && headerSize <= imageSize && imageSize <= fileSize;
}

/// What the header behind the DOS one says; nothing if there is no such header.
std::optional<ProgramKind> KindOfNewHeader(const std::string& header) {
  if (header.starts_with(std::string_view("PE\0\0", 4)))
    return header.size() == PeHeaderSize ? ProgramKind::Windows : ProgramKind::Broken;
  if (header.starts_with("NE")) return ProgramKind::Windows;
  // Linear executables are DOS programs with a DOS extender, as far as discs go.
  if (header.starts_with("LE") || header.starts_with("LX")) return ProgramKind::Dos;
  return std::nullopt;
}

ProgramKind KindOfMz(const Descriptor& file, const std::string& header) {
  struct stat status {};
  if (header.size() < DosHeaderSize || fstat(file.get(), &status) != 0) return ProgramKind::Broken;
  const auto size = static_cast<std::uint64_t>(status.st_size);
  if (header.size() == LongDosHeaderSize) {
    const std::uint32_t place = Little(header, NewHeaderPlace, 4);
    if (const auto kind = KindOfNewHeader(ReadAt(file, place, PeHeaderSize))) return *kind;
    // Relocations behind the long header announce a new header. Packers of DOS programs put text where its
    // place would stand, and that points far beyond the file.
    const bool announced = Little(header, 0x18, 2) >= LongDosHeaderSize;
    if (announced && place >= LongDosHeaderSize && place < size) return ProgramKind::Broken;
  }
  return IsDosImage(header, size) ? ProgramKind::Dos : ProgramKind::Broken;
}

std::string LowerExtension(const std::filesystem::path& name) {
  std::string extension = name.extension().string();
  std::ranges::transform(extension, extension.begin(), [](char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
  });
  return extension;
}

}  // namespace

ProgramKind KindOfProgram(const Descriptor& file, const std::filesystem::path& name, bool executable) {
  const std::string beginning = ReadAt(file, 0, LongDosHeaderSize);
  if (executable && (beginning.starts_with("\x7f"
                                           "ELF") ||
                     beginning.starts_with("#!")))
    return ProgramKind::Native;
  if (beginning.starts_with("MZ")) return KindOfMz(file, beginning);
  const std::string extension = LowerExtension(name);
  if (extension == ".bat" || extension == ".msi") return ProgramKind::WindowsFile;
  if (extension == ".com") return beginning.empty() ? ProgramKind::Broken : ProgramKind::Dos;
  if (extension == ".exe") return ProgramKind::Broken;
  return ProgramKind::Document;
}

}  // namespace orvanta
