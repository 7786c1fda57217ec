#include "launcher/Shortcut.h"

#include <cstdint>

#include "config/DiscDrive.h"
#include "config/Windows1250.h"
#include "platform/AsciiText.h"
#include "platform/Utf8.h"

namespace orvanta {
namespace {

constexpr std::string_view Separators = "\\/";

std::string_view Extension(std::string_view windowsPath) {
  const std::string_view name = windowsPath.substr(windowsPath.find_last_of(Separators) + 1);
  return name.substr(std::min(name.rfind('.'), name.size()));
}

/// The folder of a path, with a trailing separator.
std::string_view FolderOf(std::string_view windowsPath) {
  return windowsPath.substr(0, windowsPath.find_last_of(Separators) + 1);
}

/// Moves a path of the drive on which the disc was made to the disc's own drive.
std::string OnDisc(std::string path) {
  if (HasDrive(path)) path[0] = 'D';
  return path;
}

/// Two bytes are a unit; half of a surrogate pair becomes the replacement character.
std::string FromUtf16(std::string_view bytes) {
  constexpr char32_t Replacement = 0xFFFD;
  const auto unit = [&bytes](std::size_t i) -> char32_t {
    return static_cast<unsigned char>(bytes[i]) |
           static_cast<char32_t>(static_cast<unsigned char>(bytes[i + 1])) << 8;
  };
  std::string text;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    char32_t c = unit(i);
    if (c >= 0xD800 && c < 0xE000) {
      const char32_t low = c < 0xDC00 && i + 3 < bytes.size() ? unit(i + 2) : 0;
      const bool pair = low >= 0xDC00 && low < 0xE000;
      c = pair ? 0x10000 + ((c - 0xD800) << 10) + (low - 0xDC00) : Replacement;
      if (pair) i += 2;
    }
    AppendUtf8(text, c);
  }
  return text;
}

/// Reads the parts of a .lnk file, one after the other.
class LinkReader {
 public:
  explicit LinkReader(std::string_view bytes) : bytes_(bytes) {}

  std::optional<Shortcut> Read(std::string_view windowsPath) {
    constexpr std::string_view Mark("L\0\0\0\1\x14\2\0\0\0\0\0\xC0\0\0\0\0\0\0F", 20);
    constexpr std::size_t HeaderSize = 76;
    if (!bytes_.starts_with(Mark)) return std::nullopt;
    flags_ = Number(Mark.size(), 4);
    at_ = HeaderSize;
    if (Has(0)) at_ += 2 + Number(at_, 2);
    const std::string local = Has(1) ? LocalPath() : std::string();
    if (Has(2)) Text();  // the description
    const std::string relative = Has(3) ? Text() : std::string();
    if (Has(4)) Text();  // the working folder
    Shortcut shortcut;
    if (Has(5)) shortcut.arguments = Text();
    if (!relative.empty()) shortcut.targets.push_back(std::string(FolderOf(windowsPath)) + relative);
    if (HasDrive(local)) shortcut.targets.push_back(OnDisc(local));
    return shortcut.targets.empty() || !isWhole_ ? std::nullopt : std::optional(shortcut);
  }

 private:
  bool Has(int flag) const { return (flags_ >> flag & 1) != 0; }

  /// Reading beyond the end of the file returns nothing and makes the whole link invalid.
  std::string_view Bytes(std::size_t at, std::size_t size) {
    isWhole_ = isWhole_ && at <= bytes_.size() && size <= bytes_.size() - at;
    return isWhole_ ? bytes_.substr(at, size) : std::string_view();
  }

  std::size_t Number(std::size_t at, std::size_t size) {
    const std::string_view bytes = Bytes(at, size);
    std::size_t value = 0;
    for (std::size_t i = bytes.size(); i-- > 0;) value = value << 8 | static_cast<unsigned char>(bytes[i]);
    return value;
  }

  /// A text up to its NUL, in the code page of the machine that made it.
  std::string AnsiText(std::size_t at) {
    const std::size_t end = bytes_.find('\0', at);
    return FromWindows1250(Bytes(at, end == bytes_.npos ? end : end - at));
  }

  /// LinkInfo: the path of the target when the link was made, in two parts.
  std::string LocalPath() {
    constexpr std::size_t HasLocalPath = 1;
    const std::size_t begin = at_;
    at_ += Number(begin, 4);
    if ((Number(begin + 8, 4) & HasLocalPath) == 0) return {};
    return AnsiText(begin + Number(begin + 16, 4)) + AnsiText(begin + Number(begin + 24, 4));
  }

  /// StringData: a number of characters, followed by the characters.
  std::string Text() {
    const bool wide = Has(7);
    const std::size_t size = Number(at_, 2) * (wide ? 2 : 1);
    const std::string_view text = Bytes(at_ + 2, size);
    at_ += 2 + size;
    return wide ? FromUtf16(text) : FromWindows1250(text);
  }

  std::string_view bytes_;
  std::size_t flags_ = 0, at_ = 0;
  bool isWhole_ = true;
};

std::string_view Trimmed(std::string_view line) {
  constexpr std::string_view Blanks = " \t\r";
  line.remove_prefix(std::min(line.find_first_not_of(Blanks), line.size()));
  return line.substr(0, line.find_last_not_of(Blanks) + 1);
}

/// The value of URL in the section InternetShortcut. It may be longer than a setting of a disc.
std::string_view AddressIn(std::string_view text) {
  constexpr std::string_view Key = "URL=";
  bool inSection = false;
  while (!text.empty()) {
    const std::string_view line = Trimmed(text.substr(0, text.find('\n')));
    text.remove_prefix(std::min(text.find('\n'), text.size() - 1) + 1);
    if (line.starts_with('[')) inSection = EqualNoCaseAscii(line, "[InternetShortcut]");
    if (inSection && EqualNoCaseAscii(line.substr(0, Key.size()), Key))
      return Trimmed(line.substr(Key.size()));
  }
  return {};
}

/// Decodes "%20" and the like in an address; each stands for a byte.
std::string Decoded(std::string_view address) {
  const auto digit = [](char c) { return std::string_view("0123456789abcdef").find(FoldAscii(c)); };
  std::string decoded;
  for (std::size_t i = 0; i < address.size(); ++i) {
    const bool escape = address[i] == '%' && i + 2 < address.size() && digit(address[i + 1]) < 16 &&
                        digit(address[i + 2]) < 16;
    decoded += escape ? static_cast<char>(digit(address[i + 1]) * 16 + digit(address[i + 2])) : address[i];
    if (escape) i += 2;
  }
  return decoded;
}

std::optional<Shortcut> ReadAddress(std::string_view bytes) {
  constexpr std::string_view FileScheme = "file:";
  const std::string_view address = AddressIn(bytes);
  if (address.empty()) return std::nullopt;
  if (!EqualNoCaseAscii(address.substr(0, FileScheme.size()), FileScheme))
    return Shortcut{.address = FromWindows1250(address)};
  std::string_view path = address.substr(FileScheme.size());
  path.remove_prefix(std::min(path.find_first_not_of(Separators), path.size()));
  return Shortcut{.targets = {OnDisc(FromWindows1250(Decoded(path)))}};
}

}  // namespace

bool IsShortcut(std::string_view windowsPath) {
  return EqualNoCaseAscii(Extension(windowsPath), ".lnk") || EqualNoCaseAscii(Extension(windowsPath), ".url");
}

std::optional<Shortcut> ReadShortcut(std::string_view windowsPath, std::string_view bytes) {
  if (bytes.size() > LargestShortcut || !IsShortcut(windowsPath)) return std::nullopt;
  return EqualNoCaseAscii(Extension(windowsPath), ".url") ? ReadAddress(bytes)
                                                          : LinkReader(bytes).Read(windowsPath);
}

}  // namespace orvanta
