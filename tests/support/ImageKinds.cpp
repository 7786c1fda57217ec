#include "support/ImageKinds.h"

#include "support/ImageWriter.h"

namespace orvanta::test {
namespace {

constexpr std::size_t kRaw = 2352;

/// Minutes, seconds and sectors in a CUE sheet.
std::string Time(std::size_t sectors) {
  const auto two = [](std::size_t n) { return std::string(n < 10 ? "0" : "") + std::to_string(n); };
  return two(sectors / 75 / 60) + ":" + two(sectors / 75 % 60) + ":" + two(sectors % 75) + "\r\n";
}

std::string CloneEntry(int number, int point, int control, std::size_t address) {
  return "[Entry " + std::to_string(number) + "]\r\nSession=1\r\nPoint=" + std::to_string(point) +
         "\r\nADR=0x01\r\nControl=0x0" + std::to_string(control) + "\r\nPLBA=" + std::to_string(address) +
         "\r\n";
}

std::string AlcoholTrack(char mode, int point, std::size_t size, std::size_t address, std::uint64_t place,
                         std::uint32_t lengths, std::uint32_t footer) {
  return mode + std::string("\0\x14\0", 3) + Low(static_cast<std::uint64_t>(point), 1) +
         std::string(7, '\0') + Low(lengths, 4) + Low(size, 2) + std::string(18, '\0') + Low(address, 4) +
         Low(place, 8) + Low(1, 4) + Low(footer, 4) + std::string(24, '\0');
}

std::string AlcoholSheet(std::size_t stride, std::size_t data, std::size_t audio) {
  constexpr std::uint32_t kTracksAt = 112, kLengthsAt = kTracksAt + 3 * 80, kFooterAt = kLengthsAt + 16;
  return "MEDIA DESCRIPTOR\1\3" + Low(0, 2) + Low(1, 2) + std::string(58, '\0') + Low(88, 4) + Low(0, 4) +
         Low(-150ULL, 4) + Low(data + audio, 4) + Low(1, 2) + "\3\1" + Low(1, 2) + Low(2, 2) + Low(0, 4) +
         Low(kTracksAt, 4) + AlcoholTrack('\0', 0xA0, 0, 0, 0, 0, 0) +
         AlcoholTrack('\xAA', 1, stride, 0, 0, kLengthsAt, kFooterAt) +
         AlcoholTrack('\xA9', 2, stride, data, data * stride, kLengthsAt + 8, kFooterAt) + Low(150, 4) +
         Low(data, 4) + Low(0, 4) + Low(audio, 4) + Low(kFooterAt + 16, 4) + std::string(12, '\0') + "*.mdf" +
         '\0';
}

std::string Chunk(const std::string& name, const std::string& content) {
  return name + High(content.size(), 4) + content;
}

/// With the sheet of version 2, disc at once.
std::string NeroImage(const std::string& data, std::size_t stride, const std::string& audio) {
  const auto track = [](std::size_t size, char mode, std::uint64_t begin, std::uint64_t end) {
    return std::string(12, '\0') + High(size, 2) + mode + std::string("\0\0\1", 3) + High(begin, 8) +
           High(begin, 8) + High(end, 8);
  };
  const auto cue = [](int number, std::uint64_t address) {
    return "\x41" + High(static_cast<std::uint64_t>(number), 1) + "\1" + '\0' + High(address, 4);
  };
  const std::uint64_t end = data.size() + audio.size();
  return data + audio + Chunk("CUEX", cue(1, 0) + cue(2, data.size() / stride)) +
         Chunk("DAOX", std::string(20, '\0') + "\1\2" + track(stride, '\0', 0, data.size()) +
                           track(kRaw, '\7', data.size(), end)) +
         Chunk("SINF", High(2, 4)) + Chunk("END!", "") + "NER5" + High(end, 8);
}

/// With the sheet of version 1, track at once.
std::string OldNeroImage(const std::string& data) {
  return data + Chunk("ETNF", High(0, 4) + High(data.size(), 4) + High(3, 4) + High(0, 8)) +
         Chunk("SINF", High(1, 4)) + Chunk("END!", "") + "NERO" + High(data.size(), 4);
}

}  // namespace

std::string AudioTrack(std::size_t sectors) {
  std::string samples;
  for (std::size_t i = 0; i < sectors * kRaw / 4; ++i) samples += Low(i * 7919, 4);
  return samples;
}

std::string WaveFile(const std::string& samples) {
  return "RIFF" + Low(36 + samples.size(), 4) + "WAVEfmt " + Low(16, 4) + Low(1, 2) + Low(2, 2) +
         Low(44100, 4) + Low(176400, 4) + Low(4, 2) + Low(16, 2) + "data" + Low(samples.size(), 4) + samples;
}

std::map<std::string, std::filesystem::path> WriteImages(const TemporaryFolder& folder,
                                                         const std::string& iso, const std::string& audio) {
  const std::size_t data = iso.size() / 2048, sound = audio.size() / kRaw;
  const std::string raw = InSectors(iso, kRaw, 16), xa = InSectors(iso, kRaw, 24);
  std::string wide = InSectors(iso, kRaw + 96, 16);
  for (std::size_t i = 0; i < sound; ++i) wide += audio.substr(i * kRaw, kRaw) + std::string(96, '\1');
  std::map<std::string, std::filesystem::path> images;
  const auto add = [&](const std::string& kind, const std::string& name, const std::string& bytes) {
    images[kind] = folder.File(name, bytes);
  };
  add("ISO", "plain.iso", iso);
  add("BIN without its sheet", "alone.bin", InSectors(iso, kRaw, 24, 150));
  folder.File("one/Płyta.BIN", xa + audio);
  add("CUE with one BIN", "one/p.cue",
      "FILE \"C:\\TEMP\\P\xB3yta.bin\" BINARY\r\n  TRACK 01 MODE2/2352\r\n    INDEX 01 00:00:00\r\n"
      "  TRACK 02 AUDIO\r\n    PREGAP 00:02:00\r\n    INDEX 01 " +
          Time(data));
  folder.File("two/Track 1.iso", iso);
  folder.File("two/track 2.wav", WaveFile(audio));
  add("CUE with a file for each track", "two/t.cue",
      "FILE \"track 1.ISO\" BINARY\nTRACK 1 MODE1/2048\nINDEX 1 00:00:00\nFILE \"Track 2.wav\" WAVE\n"
      "TRACK 2 AUDIO\nINDEX 1 00:00:00\n");
  folder.File("renamed.img", raw + audio);
  add("CCD with IMG", "renamed.ccd",
      "[CloneCD]\r\nVersion=3\r\n[Disc]\r\nTocEntries=4\r\nSessions=1\r\n" +
          CloneEntry(0, 0xA2, 4, data + sound) + CloneEntry(1, 1, 4, 0) + CloneEntry(2, 2, 0, data) +
          "[TRACK 1]\r\nMODE=1\r\nINDEX 1=0\r\n");
  folder.File("alcohol.mdf", wide);
  add("MDS with MDF", "alcohol.mds", AlcoholSheet(kRaw + 96, data, sound));
  add("NRG", "nero.nrg", NeroImage(iso, 2048, audio));
  add("NRG of the first version", "old.nrg", OldNeroImage(InSectors(iso, 2336, 8)));
  return images;
}

}  // namespace orvanta::test
