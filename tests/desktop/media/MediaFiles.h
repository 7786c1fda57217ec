#pragma once

#include <cmath>
#include <cstdlib>
#include <numbers>
#include <vector>

#include "support/TemporaryFolder.h"

namespace orvanta::test {

/// Makes files of sound and film with ffmpeg and the given options for its output. All sounds are pure tones
/// of half a second each, one after the other. The path is empty if this ffmpeg cannot make the file.
class MediaFiles {
 public:
  using Path = std::filesystem::path;
  using Tones = std::vector<int>;  ///< hertz

  Path Sound(const std::string& name, const Tones& tones, const std::string& options = "-bitexact") const {
    return Made(name, Waves(tones) + options);
  }
  /// Pictures of 160 by 120 pixels, 25 per second, each showing its number: eight vertical bars, the lowest
  /// bit on the left; white is 1.
  Path Film(const std::string& name, const Tones& tones, const std::string& options) const {
    return Made(name, Waves(tones) + "-f lavfi -i \"nullsrc=s=160x120:r=25:d=" +
                          std::to_string(0.5 * static_cast<double>(tones.size())) +
                          ",geq=lum='if(mod(floor(N/pow(2,floor(X/20))),2),224,32)':cb=128:cr=128\" " +
                          options);
  }
  Path Made(const std::string& name, const std::string& command) const {
    const Path made = folder.Path() / name;
    const std::string line = "ffmpeg -v quiet -nostdin -y " + command + " '" + made.string() + "'";
    return std::system(line.c_str()) == 0 ? made : Path();
  }

  TemporaryFolder folder;

 private:
  std::string Waves(const Tones& tones) const {
    constexpr int kRate = 44100;
    constexpr double kLoudness = 0.5;
    std::string bytes;
    for (const int hertz : tones)
      for (int i = 0; i < kRate / 2; ++i) {
        const double wave = kLoudness * std::sin(2 * std::numbers::pi * hertz * i / kRate);
        bytes.append(reinterpret_cast<const char*>(&wave), sizeof wave);
      }
    return "-f f64le -ar 44100 -ac 1 -i '" + folder.File("tones", bytes).string() + "' ";
  }
};

}  // namespace orvanta::test
