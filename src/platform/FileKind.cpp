#include "platform/FileKind.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <memory>
#include <optional>

namespace orvanta {
namespace {

constexpr std::size_t kDosHeaderSize = 28;
/// A header that announces another one has this length and ends with the position of that one.
constexpr std::size_t kLongDosHeaderSize = 64;
constexpr std::size_t kNewHeaderPlace = 0x3C;
constexpr std::size_t kPeHeaderSize = 24;
constexpr std::string_view kElfMark = "\x7f\x45LF";

std::uint64_t Little(std::string_view bytes, std::size_t at, std::size_t size) {
  std::uint64_t value = 0;
  for (std::size_t i = size; i-- > 0;) value = value << 8 | static_cast<unsigned char>(bytes[at + i]);
  return value;
}

/// Whether the DOS image that the MZ header describes lies wholly in the file.
bool IsDosImage(std::string_view header, std::uint64_t fileSize) {
  constexpr std::uint64_t kPageSize = 512;
  constexpr std::uint64_t kParagraphSize = 16;
  const std::uint64_t bytesOnLastPage = Little(header, 2, 2);
  const std::uint64_t pages = Little(header, 4, 2);
  const std::uint64_t headerSize = Little(header, 8, 2) * kParagraphSize;
  if (pages == 0 || bytesOnLastPage > kPageSize) return false;
  const std::uint64_t unused = bytesOnLastPage == 0 ? 0 : kPageSize - bytesOnLastPage;
  const std::uint64_t imageSize = pages * kPageSize - unused;
  return headerSize >= kDosHeaderSize && headerSize <= imageSize && imageSize <= fileSize;
}

/// Whether the sections that the header places in the file are all there, which is not so if the file was cut
/// short.
bool HasAllSections(const FileBytes& file, std::uint64_t place, std::string_view header) {
  constexpr std::size_t kSectionSize = 40;
  const std::uint64_t count = Little(header, 6, 2), table = place + kPeHeaderSize + Little(header, 20, 2);
  for (std::uint64_t i = 0; i < count; ++i) {
    const std::string section = file.read(table + i * kSectionSize, kSectionSize);
    if (section.size() < kSectionSize) return false;
    if (Little(section, 16, 4) != 0 && Little(section, 20, 4) >= file.size) return false;
  }
  return true;
}

FileKind KindOfPe(const FileBytes& file, std::uint64_t place, std::string_view header) {
  constexpr std::uint64_t X86_64 = 0x8664;
  if (header.size() < kPeHeaderSize || !HasAllSections(file, place, header)) return FileKind::Broken;
  return Little(header, 4, 2) == X86_64 ? FileKind::Windows64 : FileKind::Windows32;
}

/// The kind according to the header after the DOS header; nothing if there is no such header.
std::optional<FileKind> KindOfNewHeader(const FileBytes& file, std::uint64_t place) {
  const std::string header = file.read(place, kPeHeaderSize);
  if (header.starts_with(std::string_view("PE\0\0", 4))) return KindOfPe(file, place, header);
  if (header.starts_with("NE")) return FileKind::Windows16;
  // On discs, linear executables are DOS programs with a DOS extender.
  if (header.starts_with("LE") || header.starts_with("LX")) return FileKind::Dos;
  return std::nullopt;
}

FileKind KindOfMz(const FileBytes& file, const std::string& header) {
  if (header.size() < kDosHeaderSize) return FileKind::Broken;
  if (header.size() == kLongDosHeaderSize) {
    const std::uint64_t place = Little(header, kNewHeaderPlace, 4);
    if (const auto kind = KindOfNewHeader(file, place)) return *kind;
    // Relocations after the long header announce a new header. Packers of DOS programs put text where its
    // position would be, which then points far beyond the file.
    const bool announced = Little(header, 0x18, 2) >= kLongDosHeaderSize;
    if (announced && place >= kLongDosHeaderSize && place < file.size) return FileKind::Broken;
  }
  return IsDosImage(header, file.size) ? FileKind::Dos : FileKind::Broken;
}

/// A native program and its loader. Programs for another processor or byte order are left for the system to
/// refuse.
FileFacts FactsOfElf(const FileBytes& file, std::string_view header) {
  constexpr char kBits64 = 2, kLittleEndian = 1;
  constexpr std::size_t kLongHeaderSize = 64, kShortHeaderSize = 52, kLongestPath = 4096;
  constexpr std::uint64_t kLoaderSegment = 3;
  const bool wide = header.size() > 4 && header[4] == kBits64;
  if (header.size() < (wide ? kLongHeaderSize : kShortHeaderSize)) return {FileKind::Broken};
  if (header[5] != kLittleEndian) return {FileKind::Native};
  const std::uint64_t table = wide ? Little(header, 0x20, 8) : Little(header, 0x1C, 4);
  const std::uint64_t size = Little(header, wide ? 0x36 : 0x2A, 2),
                      count = Little(header, wide ? 0x38 : 0x2C, 2);
  for (std::uint64_t i = 0; i < count; ++i) {
    const std::string segment = file.read(table + i * size, wide ? 56 : 32);
    if (segment.size() < (wide ? 56U : 32U)) return {FileKind::Broken};
    const std::uint64_t place = wide ? Little(segment, 8, 8) : Little(segment, 4, 4);
    const std::uint64_t length = wide ? Little(segment, 0x20, 8) : Little(segment, 0x10, 4);
    if (place > file.size || length > file.size - place) return {FileKind::Broken};
    if (Little(segment, 0, 4) != kLoaderSegment) continue;
    const std::string loader =
        file.read(place, static_cast<std::size_t>(std::min<std::uint64_t>(length, kLongestPath)));
    return {FileKind::Native, loader.substr(0, loader.find('\0'))};
  }
  return {FileKind::Native};
}

std::string NextWord(std::string_view& line) {
  constexpr std::string_view kBlanks = " \t";
  line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
  const std::string_view word = line.substr(0, line.find_first_of(kBlanks));
  line.remove_prefix(word.size());
  return std::string(word);
}

/// `beginning` starts with `#!`.
FileFacts FactsOfScript(std::string_view beginning) {
  std::string_view line = beginning.substr(2, beginning.find('\n') - 2);
  std::string interpreter = NextWord(line);
  const std::string first = NextWord(line);
  const bool namesAnother = !first.empty() && !first.starts_with('-');
  if (std::filesystem::path(interpreter).filename() == "env" && namesAnother) interpreter = first;
  return {FileKind::Script, interpreter};
}

bool IsConsoleProgram(const FileBytes& file, std::string_view header) {
  constexpr std::size_t kSubsystemPlace = kPeHeaderSize + 68, kConsole = 3;
  const std::string subsystem = file.read(Little(header, kNewHeaderPlace, 4) + kSubsystemPlace, 2);
  return subsystem.size() == 2 && Little(subsystem, 0, 2) == kConsole;
}

FileFacts FactsOfMz(const FileBytes& file, const std::string& header) {
  FileFacts facts{KindOfMz(file, header)};
  const bool isPe = facts.kind == FileKind::Windows32 || facts.kind == FileKind::Windows64;
  facts.isConsole = isPe && IsConsoleProgram(file, header);
  return facts;
}

std::string LowerExtension(const std::filesystem::path& name) {
  std::string extension = name.extension().string();
  std::transform(extension.begin(), extension.end(), extension.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; });
  return extension;
}

}  // namespace

FileBytes BytesOfFile(const std::filesystem::path& file) {
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(file, error);
  const auto stream = std::make_shared<std::ifstream>(file, std::ios::binary);
  return {error ? 0 : size, [stream](std::uint64_t offset, std::size_t count) {
            std::string bytes(count, '\0');
            stream->clear();
            stream->seekg(static_cast<std::streamoff>(offset));
            stream->read(bytes.data(), static_cast<std::streamsize>(count));
            bytes.resize(static_cast<std::size_t>(std::max<std::streamsize>(stream->gcount(), 0)));
            return bytes;
          }};
}

FileFacts FactsOf(const FileBytes& file, const std::filesystem::path& name, bool executable) {
  constexpr std::size_t kLongestFirstLine = 256;
  constexpr std::array kWindowsFiles = {".bat", ".cmd", ".msi", ".reg", ".hlp", ".chm", ".lnk"};
  const std::string beginning = file.read(0, kLongestFirstLine);
  const std::string header = beginning.substr(0, kLongDosHeaderSize);
  if (executable && beginning.starts_with(kElfMark)) return FactsOfElf(file, header);
  if (executable && beginning.starts_with("#!")) return FactsOfScript(beginning);
  if (beginning.starts_with("MZ")) return FactsOfMz(file, header);
  const std::string extension = LowerExtension(name);
  if (std::find(kWindowsFiles.begin(), kWindowsFiles.end(), extension) != kWindowsFiles.end())
    return {FileKind::WindowsFile};
  if (extension == ".com") return {beginning.empty() ? FileKind::Broken : FileKind::Dos};
  if (extension == ".exe") return {FileKind::Broken};
  return {FileKind::Document};
}

}  // namespace orvanta
