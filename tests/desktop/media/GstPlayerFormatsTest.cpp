// The table of formats. Each row is tested with a file made here.

#include <gst/gst.h>

#include "desktop/media/PlayerStory.h"

namespace orvanta::test {

/// A row of the table. `decoder` is the plugin without which the type is unknown.
struct Format {
  const char *name, *file, *options, *decoder;
};
void PrintTo(const Format& row, std::ostream* out) { *out << row.name; }

class GstPlayerFormats : public PlayerStory, public testing::WithParamInterface<Format> {};
class GstPlayerOddFiles : public PlayerStory {};

TEST_P(GstPlayerFormats, ArePlayedFromBeginningToEnd) {
  constexpr int kTone = 800;
  const Format& row = GetParam();
  const bool isFilm = std::string(row.options).find("-c:v") != std::string::npos;
  const auto file = isFilm ? files.Film(row.file, {kTone, kTone}, row.options)
                           : files.Sound(row.file, {kTone, kTone}, row.options);
  if (file.empty()) GTEST_SKIP() << "this ffmpeg cannot make it";
  gst_init(nullptr, nullptr);
  GstPluginFeature* decoder = gst_registry_lookup_feature(gst_registry_get(), row.decoder);
  if (!decoder) GTEST_SKIP() << "needs " << row.decoder;
  MoviePlayer& player = isFilm ? *film : *music;
  gst_object_unref(decoder);
  player.Open(file);
  ASSERT_TRUE(Until(3, [&] { return player.Loaded(); }));
  EXPECT_LT(player.Position(), 0.2);
  ASSERT_TRUE(UntilStopped(player, 4));
  Wait(0.1);
  EXPECT_NEAR(ears.Seconds(kTone), 1.0, 0.1);
  EXPECT_NEAR(player.Length(), 1.0, 0.1);
  EXPECT_EQ(player.FilmSize(), isFilm ? (Size{160, 120}) : Size{});
  EXPECT_EQ(player.Frame() != nullptr, isFilm);
}

INSTANTIATE_TEST_SUITE_P(
    Table, GstPlayerFormats,
    testing::Values(
        Format{"WavePcm8At11kHz", "a.wav", "-c:a pcm_u8 -ar 11025", "wavparse"},
        Format{"WavePcm8At22kHz", "a.wav", "-c:a pcm_u8 -ar 22050", "wavparse"},
        Format{"WavePcm16At44kHz", "a.wav", "-ac 2", "wavparse"},
        Format{"WavePcm16At48kHz", "a.wav", "-ac 2 -ar 48000", "wavparse"},
        Format{"WaveMsAdpcm", "a.wav", "-c:a adpcm_ms -ac 2 -ar 22050", "avdec_adpcm_ms"},
        Format{"WaveImaAdpcm", "a.wav", "-c:a adpcm_ima_wav -ac 2 -ar 22050", "avdec_adpcm_ima_wav"},
        Format{"Mp3", "a.mp3", "-b:a 128k", "mpegaudioparse"},
        Format{"OggVorbis", "a.ogg", "-c:a libvorbis", "vorbisdec"}, Format{"Flac", "a.flac", "", "flacdec"},
        Format{"Opus", "a.opus", "", "opusdec"},
        Format{"AviCinepak", "a.avi", "-c:v cinepak -c:a pcm_u8", "avdec_cinepak"},
        Format{"AviMsVideo1", "a.avi", "-c:v msvideo1 -pix_fmt rgb555le -c:a adpcm_ms", "avdec_msvideo1"},
        Format{"AviIndeo3", "a.avi", "-c:v indeo3 -c:a pcm_u8", "avdec_indeo3"},
        Format{"Mpeg1", "a.mpg", "-c:v mpeg1video -b:v 1M -c:a mp2 -ar 44100", "mpegpsdemux"},
        Format{"QuickTimeCinepak", "a.mov", "-c:v cinepak -c:a pcm_s16be", "avdec_cinepak"},
        Format{"Mp4H264", "a.mp4", "-c:v libx264 -pix_fmt yuv420p -c:a aac", "avdec_h264"},
        Format{"WebmVp8", "a.webm", "-c:v libvpx -c:a libvorbis", "vp8dec"},
        Format{"OggTheora", "a.ogv", "-c:v libtheora -c:a libvorbis", "theoradec"}),
    [](const auto& row) { return row.param.name; });

// GStreamer ends at once if bytes follow the sound, and takes a second for a song with a cover.
TEST_F(GstPlayerOddFiles, AreHeardAsIntended) {
  const std::string voice = ContentOf(files.Sound("voice.wav", {800}, "-bitexact -c:a pcm_u8 -ar 11025"));
  music->Open(files.folder.File("voice.dat", voice + std::string("\0LIST", 5)));
  ASSERT_TRUE(UntilStopped(*music, 2));
  Wait(0.1);
  EXPECT_NEAR(ears.Seconds(800), 0.5, 0.03);

  const auto song = files.Sound("a.mp3", {800, 800}, "-b:a 128k");
  const auto cover = files.Film("cover.png", {800}, "-frames:v 1 -map 1:v");
  const auto whole = files.Made("whole.mp3", "-i '" + song.string() + "' -i '" + cover.string() +
                                                 "' -map 0 -map 1 -c copy -disposition:v attached_pic");
  music->Open(song);  // the decoder's first use takes longer
  ASSERT_TRUE(Until(2, [&] { return music->Loaded(); }));
  music->Open(whole);
  EXPECT_TRUE(music->Loaded());
  EXPECT_TRUE(music->FilmSize().Empty());
}

// Otherwise the marker of an entry's music would stop half-way, or reach its end long before the music does.
TEST_F(GstPlayerOddFiles, ALengthThatIsNotInTheFileIsEstimatedBetterAndBetter) {
  const auto bytes = [this](const char* name, const char* rate) {
    return ContentOf(
        files.Sound(name, Tones(4, 800), std::string("-write_xing 0 -id3v2_version 0 -b:a ") + rate));
  };
  music->Open(files.folder.File("a.mp3", bytes("low.mp3", "32k") + bytes("high.mp3", "320k")));
  ASSERT_TRUE(Until(3, [this] { return music->Loaded(); }));
  ASSERT_TRUE(Until(6, [this] { return music->Position() > 3; }));
  EXPECT_NEAR(music->Length(), 4, 2);
}

TEST_F(GstPlayerOddFiles, AMidiFileSoundsInItsVoices) {
  // The note A4, twice for half a second; a tick is 1/960 of a second, and there are 480.
  const std::string note("\0\x90\x45\x7f\x83\x60\x80\x45\0", 9), end("\0\xff\x2f\0", 4);
  music->Open(files.folder.File(
      "a.mid", std::string("MThd\0\0\0\x06\0\0\0\x01\x01\xe0MTrk\0\0\0\x16", 22) + note + note + end));
  if (!Until(3, [&] { return music->Loaded(); })) GTEST_SKIP() << "needs a MIDI decoder with a soundfont";
  EXPECT_NEAR(music->Length(), 1.0, 0.1);
  ASSERT_TRUE(UntilStopped(*music, 4));
  Wait(0.1);
  EXPECT_GT(ears.Seconds(440, 0, 0.01), 0.6);
}

TEST_F(GstPlayerOddFiles, AFormatWithoutItsDecoderIsAnUnknownType) {
  gst_init(nullptr, nullptr);
  GstPluginFeature* decoder = gst_registry_lookup_feature(gst_registry_get(), "avdec_cinepak");
  ASSERT_TRUE(decoder);
  gst_plugin_feature_set_rank(decoder, GST_RANK_NONE);
  gst_object_unref(decoder);
  film->Open(files.Film("a.avi", {600}, "-c:v cinepak -c:a pcm_u8"));
  EXPECT_FALSE(Until(2, [&] { return film->State() != MovieState::NoFile; }));
}

}  // namespace orvanta::test
