// Images with a sheet that describes where their tracks are.

#include <gtest/gtest.h>

#include "disctool/check/CheckedDisc.h"
#include "disctool/image/sectors/AudioTracks.h"
#include "disctool/image/sectors/ReadTracks.h"
#include "disctool/image/volume/OpenImage.h"
#include "support/ImageKinds.h"
#include "support/ImageWriter.h"

namespace orvanta::test {

struct SheetsTest : testing::Test {
  /// The image of a folder with one file, whose first sector has this address on the disc.
  std::string Disc(const std::string& text, std::uint32_t address = 0) const {
    const TemporaryFolder disc;
    disc.File("read.me", text);
    return IsoImage(disc.Path(), {.address = address});
  }
  std::optional<std::string> Read(const std::filesystem::path& image) {
    const auto tree = OpenImage(image, problem);
    return tree ? tree->Read("read.me") : std::nullopt;
  }
  const TemporaryFolder folder;
  std::string problem;
};

TEST_F(SheetsTest, LeadToTheSameDataAndMusic) {
  const std::string audio = AudioTrack(20);
  for (const auto& [kind, image] : WriteImages(folder, Disc("hello"), audio)) {
    EXPECT_EQ(Read(image), "hello") << kind << problem;
    const TrackList list = ReadTracks(image);
    const bool hasAudio =
        kind.find("BIN without") == kind.npos && kind.find("first") == kind.npos && kind != "ISO";
    ASSERT_EQ(list.tracks.size(), hasAudio ? 2U : 1U) << kind;
    EXPECT_FALSE(list.tracks[0].audio) << kind;
    if (!hasAudio) continue;
    const Track& track = list.tracks[1];
    EXPECT_TRUE(track.audio && track.number == 2 && track.sectors == 20) << kind << track.sectors;
    EXPECT_EQ(track.bytes->Text(track.begin, 100), audio.substr(0, 100)) << kind;
  }
}

TEST_F(SheetsTest, GiveTheirMusicAsWavFiles) {
  const std::string audio = AudioTrack(20);
  const auto unseen = [](std::uintmax_t, std::uintmax_t) {};
  for (const auto& [kind, image] : WriteImages(folder, Disc("hello"), audio)) {
    const std::filesystem::path out = folder.Path() / ("music of " + kind), track = out / "track-02.wav";
    problem = WriteAudioTracks(image, out, unseen);
    if (AudioTracksOf(image).tracks.empty()) {
      EXPECT_NE(problem.find("no audio tracks"), problem.npos) << kind;
      continue;
    }
    EXPECT_EQ(problem, "");
    EXPECT_TRUE(TextOf(track) == WaveFile(audio)) << kind;
    folder.File("music of " + kind + "/track-02.wav", "mine");
    EXPECT_EQ(WriteAudioTracks(image, out, unseen), "");
    EXPECT_EQ(TextOf(track), "mine") << "written over";
  }
}

// Whoever names something else learns what it is.
TEST_F(SheetsTest, LeaveNobodyAlone) {
  for (const auto& [begin, said] : {std::pair("MComprHD", "chdman extractcd"),
                                    {"Rar!\x1A\x07", "RAR archive"},
                                    {"MZ", "a program"},
                                    {"", "empty"},
                                    {"hello", "not an image"}}) {
    EXPECT_FALSE(Read(folder.File("x.img", begin)));
    EXPECT_NE(problem.find(said), problem.npos) << problem;
  }
}

// As in a drive, the last session hides earlier ones but may refer to them.
TEST_F(SheetsTest, ShowTheLastSession) {
  const std::string first = InSectors(Disc("old"), 2352, 16);
  const std::size_t gap = 11400, sectors = first.size() / 2352;
  for (const std::size_t address : {sectors + gap, std::size_t{0}, std::size_t{77777}}) {
    const std::string second = InSectors(Disc("new", static_cast<std::uint32_t>(address)), 2352, 24);
    folder.File("a.bin", first);
    folder.File("b.bin", second);
    EXPECT_EQ(
        Read(folder.File("s.cue",
                         "REM SESSION 01\nFILE a.bin BINARY\nTRACK 01 MODE1/2352\nINDEX 01 00:00:00\n"
                         "REM SESSION 02\nFILE b.bin BINARY\nTRACK 02 MODE2/2352\nINDEX 01 00:00:00\n")),
        "new");
    folder.File("c.img", first + second);
    const auto entry = [](int number, int session, int point, std::size_t at) {
      return "[Entry " + std::to_string(number) + "]\nSession=" + std::to_string(session) +
             "\nPoint=" + std::to_string(point) + "\nControl=4\nPLBA=" + std::to_string(at) + "\n";
    };
    EXPECT_EQ(
        Read(folder.File("c.ccd", "[CloneCD]\n" + entry(0, 1, 1, 0) + entry(1, 1, 0xA2, sectors) +
                                      entry(2, 2, 2, sectors + gap) + entry(3, 2, 0xA2, 2 * sectors + gap))),
        "new");
  }
}

// A sheet cannot lead anywhere else, and the user learns which file is missing.
TEST_F(SheetsTest, SayWhatIsMissing) {
  folder.File("secret.bin", InSectors(Disc("secret"), 2352, 16));
  const auto cue = [&](const std::string& file) {
    return folder.File("in/x.cue", "FILE \"" + file + "\" BINARY\nTRACK 01 MODE1/2352\nINDEX 01 00:00:00\n");
  };
  for (const char* file : {"..\\secret.bin", "../secret.bin", "/etc/passwd", "no such.bin", ""}) {
    EXPECT_FALSE(Read(cue(file)));
    EXPECT_NE(problem.find("x.cue: its data file is not there"), problem.npos) << problem;
  }
  folder.File("in/x.bin", InSectors(Disc("renamed"), 2352, 16));
  EXPECT_EQ(Read(cue("before.bin")), "renamed");
  for (const char* sheet : {"e.cue", "e.ccd"}) {
    EXPECT_FALSE(Read(folder.File(sheet, sheet == std::string("e.ccd") ? "[CloneCD]" : "")));
    EXPECT_NE(problem, "");
  }
  std::string encrypted = "MEDIA DESCRIPTOR\2";
  EXPECT_FALSE(Read(folder.File("e.mds", encrypted)));
  EXPECT_NE(problem.find("encrypted"), problem.npos);
}

}  // namespace orvanta::test
