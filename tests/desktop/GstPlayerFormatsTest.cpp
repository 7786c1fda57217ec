#include <gst/gst.h>

#include "desktop/PlayerStory.h"

namespace orvanta {
namespace {

/// A row of the table of formats. `decoders` are the plugins of which one is needed.
struct Format {
  std::string name;
  std::string file;
  std::string options;
  std::vector<std::string> decoders = {};
  bool film = false;
};

class GstPlayerFormats : public PlayerStory, public testing::WithParamInterface<Format> {
 protected:
  static constexpr int kTone = 800;

  static bool Installed(const std::string& factory) {
    gst_init(nullptr, nullptr);
    GstElementFactory* found = gst_element_factory_find(factory.c_str());
    if (found) gst_object_unref(found);
    return found != nullptr;
  }
  static std::string Missing(const Format& row) {
    std::string names;
    for (const std::string& decoder : row.decoders) {
      if (Installed(decoder)) return {};
      names += " " + decoder;
    }
    return names;
  }
  std::filesystem::path Made(const Format& row) const {
    return row.film ? files.Film(row.file, row.options, {kTone, kTone})
                    : files.Encoded(row.file, row.options, {kTone, kTone});
  }
};

TEST_P(GstPlayerFormats, ArePlayedFromBeginningToEnd) {
  const Format& row = GetParam();
  if (const std::string missing = Missing(row); !missing.empty()) GTEST_SKIP() << "needs one of" << missing;
  const std::filesystem::path file = Made(row);
  if (file.empty()) GTEST_SKIP() << "this ffmpeg does not make it";

  Recording ears;
  const auto player = MakeGstPlayer(row.film ? MovieKind::Film : MovieKind::Sound);
  player->Open(file);
  ASSERT_TRUE(Until(3, [&player] { return player->Loaded(); }));
  EXPECT_LT(player->Position(), 0.2);
  ASSERT_TRUE(UntilStopped(*player, 4));
  Wait(0.1);
  EXPECT_NEAR(ears.Seconds(kTone), 1.0, 0.1);
  EXPECT_NEAR(player->Length(), 1.0, 0.1);
  EXPECT_EQ(player->FilmSize(), (row.film ? Size{160, 120} : Size{}));
  EXPECT_EQ(player->Frame() != nullptr, row.film);
}

const std::string kPcm8 = "-c:a pcm_u8 -ac 1 -ar ", kPcm16 = "-c:a pcm_s16le -ac 2 -ar ";

INSTANTIATE_TEST_SUITE_P(
    Sound, GstPlayerFormats,
    testing::Values(
        Format{"WavePcm8At11kHz", "a.wav", kPcm8 + "11025"},
        Format{"WavePcm8At22kHz", "a.wav", kPcm8 + "22050"},
        Format{"WavePcm16At44kHz", "a.wav", kPcm16 + "44100"},
        Format{"WavePcm16At48kHz", "a.wav", kPcm16 + "48000"},
        Format{"WaveMsAdpcm", "a.wav", "-c:a adpcm_ms -ac 2 -ar 22050", {"avdec_adpcm_ms"}},
        Format{"WaveImaAdpcm", "a.wav", "-c:a adpcm_ima_wav -ac 2 -ar 22050", {"avdec_adpcm_ima_wav"}},
        Format{"Mp3", "a.mp3", "-b:a 128k", {"mpg123audiodec", "avdec_mp3"}},
        Format{"OggVorbis", "a.ogg", "-c:a libvorbis", {"vorbisdec"}},
        Format{"Flac", "a.flac", "", {"flacdec"}}, Format{"Opus", "a.opus", "", {"opusdec"}}),
    [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Film, GstPlayerFormats,
    testing::Values(Format{"AviCinepak", "a.avi", "-c:v cinepak -c:a pcm_u8", {"avdec_cinepak"}, true},
                    Format{"AviMsVideo1",
                           "a.avi",
                           "-c:v msvideo1 -pix_fmt rgb555le -c:a adpcm_ms",
                           {"avdec_msvideo1"},
                           true},
                    Format{"AviIndeo3", "a.avi", "-c:v indeo3 -c:a pcm_u8", {"avdec_indeo3"}, true},
                    Format{"Mpeg1",
                           "a.mpg",
                           "-c:v mpeg1video -b:v 1M -c:a mp2 -ar 44100",
                           {"avdec_mpeg1video", "avdec_mpegvideo", "mpeg2dec"},
                           true},
                    Format{
                        "QuickTimeCinepak", "a.mov", "-c:v cinepak -c:a pcm_s16be", {"avdec_cinepak"}, true},
                    Format{"Mp4H264",
                           "a.mp4",
                           "-c:v libx264 -pix_fmt yuv420p -c:a aac",
                           {"avdec_h264", "openh264dec"},
                           true},
                    Format{"WebmVp8", "a.webm", "-c:v libvpx -c:a libvorbis", {"vp8dec"}, true},
                    Format{"OggTheora", "a.ogv", "-c:v libtheora -c:a libvorbis", {"theoradec"}, true}),
    [](const auto& row) { return row.param.name; });

class GstPlayerOddFiles : public PlayerStory {
 protected:
  Recording ears;
};

TEST_F(GstPlayerOddFiles, AMidiFileSoundsInItsVoices) {
  music->Open(files.Midi("a.mid", 2));
  if (!Until(3, [this] { return music->Loaded(); })) GTEST_SKIP() << "needs a MIDI decoder with a soundfont";
  EXPECT_NEAR(music->Length(), 1.0, 0.1);
  ASSERT_TRUE(UntilStopped(*music, 4));
  Wait(0.1);
  EXPECT_GT(ears.Seconds(kA4, 0.01), 0.6);
}

// An odd number of bytes with a pad byte and more behind it, as editors of the time left it.
TEST_F(GstPlayerOddFiles, AnOldVoiceWithBytesAfterItsSoundIsHeardWhole) {
  const MediaFiles::WaveForm voice{
      .rate = 11025, .bits = 8, .channels = 1, .after = std::string("\0LIST", 5)};
  const auto file = files.Wave("voice.dat", {800}, voice);
  music->Open(file);
  ASSERT_TRUE(UntilStopped(*music, 2));
  Wait(0.1);
  EXPECT_NEAR(ears.Seconds(800), 0.5, 0.03);
}

// GStreamer takes such a sound for half as long as it is.
TEST_F(GstPlayerOddFiles, AMonoAdpcmSoundMovesToThePlaceThatIsAskedFor) {
  music->Open(files.Encoded("a.wav", "-c:a adpcm_ima_wav -ar 22050", {600, 800, 1000, 1200}));
  if (!Until(2, [this] { return music->Loaded(); })) GTEST_SKIP() << "needs avdec_adpcm_ima_wav";
  Wait(0.2);
  music->SetPosition(1.5);
  ASSERT_TRUE(UntilStopped(*music, 3));
  Wait(0.1);
  EXPECT_LE(ears.Seconds(1000), 0.1) << "the block in which it lies";
  EXPECT_NEAR(ears.Seconds(1200), 0.5, 0.1);
}

TEST_F(GstPlayerOddFiles, ASongWithACoverStartsAtOnce) {
  const auto song = files.Encoded("a.mp3", "-b:a 128k", {800, 800});
  const auto film = files.Film("cover.png", "-frames:v 1 -map 0:v", {800});
  const auto whole = files.folder.path / "whole.mp3";
  const std::string mux = "ffmpeg -v quiet -y -i " + song.string() + " -i " + film.string() +
                          " -map 0 -map 1 -c copy -disposition:v attached_pic " + whole.string();
  ASSERT_EQ(std::system(mux.c_str()), 0);
  music->Open(song);  // the decoder's first use takes longer
  ASSERT_TRUE(Until(2, [this] { return music->Loaded(); }));
  music->Open(whole);
  EXPECT_TRUE(music->Loaded());
  EXPECT_TRUE(music->FilmSize().Empty());
}

}  // namespace
}  // namespace orvanta
