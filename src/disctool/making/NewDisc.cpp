#include "disctool/making/NewDisc.h"

#include <QBuffer>
#include <QFile>
#include <QPainter>
#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstring>
#include <fstream>
#include <functional>
#include <map>
#include <numbers>
#include <system_error>

#include "disctool/Translation.h"
#include "disctool/disc/OutlineSvg.h"
#include "disctool/making/GifFile.h"
#include "disctool/making/MediaFile.h"
#include "disctool/making/NewDiscArt.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

constexpr int kSamplesASecond = 22050;

/// Writes the files of the disc; after the first failure it writes nothing more.
class Writer {
 public:
  explicit Writer(fs::path folder) : folder_(std::move(folder)) {}

  std::string problem;

  void Put(const std::string& name, const std::string& bytes) {
    if (!problem.empty()) return;
    const fs::path file = folder_ / name;
    std::error_code error;
    fs::create_directories(file.parent_path(), error);
    std::ofstream out(file, std::ios::binary);
    out << bytes << std::flush;
    if (!out) problem = file.string() + ": " + std::strerror(errno);
  }

 private:
  const fs::path folder_;
};

/// The 256 most frequent colours of a picture.
QList<QRgb> Palette(const QImage& picture) {
  std::map<QRgb, int> counts;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) ++counts[picture.pixel(x, y)];
  std::vector<std::pair<int, QRgb>> ranking;
  ranking.reserve(counts.size());
  for (const auto& [colour, count] : counts) ranking.emplace_back(count, colour);
  std::ranges::sort(ranking, std::greater());
  QList<QRgb> palette;
  for (std::size_t i = 0; i < ranking.size() && i < 256; ++i) palette.push_back(ranking[i].second);
  return palette;
}

std::string Gif(const QImage& picture) {
  const QImage indexed =
      picture.convertToFormat(QImage::Format_Indexed8, Palette(picture), Qt::ThresholdDither);
  std::vector<GifColour> colours;
  for (const QRgb colour : indexed.colorTable())
    colours.push_back({static_cast<std::uint8_t>(qRed(colour)), static_cast<std::uint8_t>(qGreen(colour)),
                       static_cast<std::uint8_t>(qBlue(colour))});
  std::vector<std::uint8_t> pixels;
  for (int y = 0; y < indexed.height(); ++y)
    pixels.insert(pixels.end(), indexed.constScanLine(y), indexed.constScanLine(y) + indexed.width());
  return GifFile({indexed.width(), indexed.height()}, pixels, colours);
}

/// Tones of a bell, each starting half a second after the previous one. `tones` are in hertz.
std::string Chime(const std::vector<float>& tones) {
  constexpr std::size_t kStep = kSamplesASecond / 2;
  std::vector<float> samples(kStep * (tones.size() + 1));
  for (std::size_t tone = 0; tone < tones.size(); ++tone) {
    for (std::size_t i = 0; i < 2 * kStep; ++i) {
      const float time = static_cast<float>(i) / kSamplesASecond;
      samples[tone * kStep + i] +=
          0.3F * std::exp(-4 * time) * std::sin(2 * std::numbers::pi_v<float> * tones[tone] * time);
    }
  }
  return WavFile(samples, kSamplesASecond);
}

/// A ball that moves in a circle.
std::string Film() {
  constexpr int kPictures = 40, kPicturesASecond = 10;
  constexpr QSize kSize(320, 240);
  std::vector<std::string> pictures;
  for (int i = 0; i < kPictures; ++i) {
    QImage picture(kSize, QImage::Format_RGB32);
    picture.fill(QColor(0x12, 0x1C, 0x28));
    const double angle = 2 * std::numbers::pi * i / kPictures;
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor(0xC8, 0xA0, 0x50));
    painter.drawEllipse(QPointF(160 + 90 * std::cos(angle), 120 + 70 * std::sin(angle)), 24, 24);
    painter.end();
    QBuffer jpeg;
    picture.save(&jpeg, "JPG", 85);
    pictures.push_back(jpeg.data().toStdString());
  }
  return AviFile({kSize.width(), kSize.height()}, pictures, kPicturesASecond);
}

std::string Resource(const char* name) {
  QFile file(QString::fromLatin1(name));
  return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

}  // namespace

std::string MakeNewDisc(const fs::path& folder) {
  std::error_code error;
  fs::create_directories(folder, error);
  if (error) return folder.string() + ": " + error.message();
  if (!fs::is_empty(folder, error) || error)
    return folder.string() + ": " + Translated("the folder is not empty");
  Writer disc(folder);
  for (const std::string name :
       {"Data/Param.ini", "Data/Menu.ini", "Data/szyld.ttf", "Data/OFL.txt", "czytaj.txt"})
    disc.Put(name, Resource((":/new/" + name).c_str()));
  for (const auto& [name, picture] : NewDiscArt()) disc.Put("Data/" + name + ".gif", Gif(picture));
  disc.Put("Data/Sound/petla.wav", Chime({262, 330, 392, 523, 392, 330, 262, 196}));
  disc.Put("Data/Sound/start.wav", Chime({392, 523}));
  disc.Put("Data/Sound/koniec.wav", Chime({523, 392}));
  disc.Put("film.avi", Film());
  disc.Put("outline.svg", OutlineSvg());
  return disc.problem;
}

}  // namespace orvanta
