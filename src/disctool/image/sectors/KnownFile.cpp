#include "disctool/image/sectors/KnownFile.h"

#include <string_view>

#include "disctool/Translation.h"

namespace orvanta {
namespace {

/// Bytes that tell a kind of file, as the file(1) database has them.
struct KnownFile {
  std::uint64_t at;
  std::string_view magic;
  const char* text;
};

constexpr const char* kUnpack = Translatable("this is a compressed file; unpack it first");

constexpr KnownFile kKnownFiles[] = {
    {0, "MComprHD",
     Translatable(
         "CHD images are not read; 'chdman extractcd -i disc.chd -o disc.cue' makes a CUE sheet of one")},
    {0, "Rar!\x1A\x07", Translatable("this is a RAR archive; unpack it first")},
    {0, "\x1F\x8B", kUnpack},
    {0, "BZh", kUnpack},
    {0,
     "\xFD"
     "7zXZ",
     kUnpack},
    {0, "\x28\xB5\x2F\xFD", kUnpack},
    {0, "ECM", Translatable("this is an ECM file; 'unecm' makes a BIN of it")},
    {0, "CISO", Translatable("this is a compressed image; 'ciso 0 disc.cso disc.iso' makes an ISO of it")},
    {0, "IsZ!", Translatable("this is a compressed image; save it as ISO with the program that made it")},
    {0, "DAA", Translatable("this is a compressed image; save it as ISO with the program that made it")},
    {32769, "BEA01",
     Translatable(
         "this image has a UDF file system alone; mount it and name the folder that it is mounted on")},
    {1024, "H+", Translatable("this is a disc for Macintosh computers alone")},
    {1024, "BD", Translatable("this is a disc for Macintosh computers alone")},
    {0, "MZ", Translatable("this is a program and not an image of a disc")},
    {0,
     "\x7F"
     "ELF",
     Translatable("this is a program and not an image of a disc")},
    {510, "\x55\xAA",
     Translatable("this is an image of a hard disk or floppy disk; mount it and name the folder that it is "
                  "mounted on")},
};

}  // namespace

std::string WhyNoImage(const ByteSource& bytes) {
  if (bytes.Size() == 0) return Translated("the file is empty");
  for (const KnownFile& known : kKnownFiles)
    if (bytes.Text(known.at, known.magic.size()) == known.magic) return Translated(known.text);
  return Translated("this is not an image of a disc");
}

}  // namespace orvanta
