#include "desktop/MediaFiles.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <numbers>

namespace orvanta {
namespace {

constexpr double kSecondsEach = 0.5;
constexpr double kLoudness = 0.5;
constexpr int kWidth = 160;
constexpr int kHeight = 120;
constexpr int kFramesPerSecond = 25;

// The low bytes of a number, lowest first.
std::string Little(std::uint32_t value, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i, value >>= 8) text += static_cast<char>(value & 0xff);
  return text;
}

std::string Big(std::uint32_t value, int bytes) {
  const std::string text = Little(value, bytes);
  return {text.rbegin(), text.rend()};
}

std::string Samples(const MediaFiles::Tones& tones, const MediaFiles::WaveForm& form) {
  std::string data;
  const int each = static_cast<int>(form.rate * kSecondsEach);
  for (const int hertz : tones)
    for (int i = 0; i < each; ++i) {
      const double wave = kLoudness * std::sin(2 * std::numbers::pi * hertz * i / form.rate);
      const long value = form.bits == 8 ? std::lround(128 + 127 * wave) : std::lround(32767 * wave);
      for (int c = 0; c < form.channels; ++c)
        data += Little(static_cast<std::uint32_t>(value), form.bits / 8);
    }
  return data;
}

std::string Frames(std::size_t tones) {
  std::string data;
  const int count = static_cast<int>(static_cast<double>(tones) * kSecondsEach * kFramesPerSecond);
  for (int frame = 0; frame < count; ++frame) {
    std::string line;
    for (int x = 0; x < kWidth; ++x)
      line.append(3, (frame >> (x * kFrameBars / kWidth)) & 1 ? '\xe0' : '\x20');
    for (int y = 0; y < kHeight; ++y) data += line;
  }
  return data;
}

std::filesystem::path Encode(const std::filesystem::path& made, const std::string& command) {
  const std::string quiet = "ffmpeg -v quiet -nostdin -y " + command + " '" + made.string() + "'";
  return std::system(quiet.c_str()) == 0 ? made : std::filesystem::path();
}

}  // namespace

std::filesystem::path MediaFiles::Wave(const std::string& name, const Tones& tones,
                                       const WaveForm& form) const {
  const std::string data = Samples(tones, form);
  const auto number = [](auto value) { return static_cast<std::uint32_t>(value); };
  const int frame = form.channels * form.bits / 8;
  const std::string format = Little(1, 2) + Little(number(form.channels), 2) + Little(number(form.rate), 4) +
                             Little(number(form.rate * frame), 4) + Little(number(frame), 2) +
                             Little(number(form.bits), 2);
  const std::string content = "WAVEfmt " + Little(number(format.size()), 4) + format + "data" +
                              Little(number(data.size()), 4) + data + form.after;
  return folder.file(name, "RIFF" + Little(number(content.size()), 4) + content);
}

std::filesystem::path MediaFiles::Midi(const std::string& name, int notes) const {
  std::string track;
  const std::string half = "\x83\x60";  // 480 ticks, at 120 beats a minute
  for (int i = 0; i < notes; ++i) {
    track += std::string("\x00\x90\x45\x7f", 4) + half + std::string("\x80\x45\x00", 3);
  }
  track += std::string("\x00\xff\x2f\x00", 4);
  return folder.file(name, "MThd" + Big(6, 4) + Big(0, 2) + Big(1, 2) + Big(480, 2) + "MTrk" +
                               Big(static_cast<std::uint32_t>(track.size()), 4) + track);
}

std::filesystem::path MediaFiles::Encoded(const std::string& name, const std::string& options,
                                          const Tones& tones) const {
  const auto sound = Wave(name + ".source.wav", tones);
  return Encode(folder.path / name, "-i '" + sound.string() + "' " + options);
}

std::filesystem::path MediaFiles::Film(const std::string& name, const std::string& options,
                                       const Tones& tones) const {
  const auto sound = Wave(name + ".source.wav", tones);
  const auto frames = folder.file(name + ".source.rgb", Frames(tones.size()));
  return Encode(folder.path / name, "-f rawvideo -pixel_format rgb24 -video_size 160x120 -framerate 25 -i '" +
                                        frames.string() + "' -i '" + sound.string() + "' " + options);
}

}  // namespace orvanta
