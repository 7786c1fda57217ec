#include "disctool/tool/DesktopProbe.h"

#include <gst/pbutils/pbutils.h>

#include <QFile>
#include <QFontDatabase>
#include <QImageReader>
#include <cstdlib>
#include <memory>
#include <system_error>

#include "disctool/making/GifFile.h"
#include "platform/desktop/media/MediaSource.h"

namespace orvanta {
namespace {

struct Unref {
  void operator()(void* object) const { g_object_unref(object); }
};
template <class Object>
using Owned = std::unique_ptr<Object, Unref>;

struct FreeStreams {
  void operator()(GList* streams) const { gst_discoverer_stream_info_list_free(streams); }
};
/// Much larger than any picture that the shell would load, in bytes.
constexpr qint64 kLargestPicture = 256 * 1024 * 1024;

std::string BytesOf(const std::filesystem::path& name) {
  QFile file(QString::fromStdString(name.string()));
  return file.open(QIODevice::ReadOnly) ? file.read(kLargestPicture).toStdString() : std::string();
}

QImage Pixels(const std::filesystem::path& file) {
  QImageReader reader(QString::fromStdString(file.string()));
  reader.setDecideFormatFromContent(true);
  return reader.read().convertToFormat(QImage::Format_ARGB32);
}

using Streams = std::unique_ptr<GList, FreeStreams>;

}  // namespace

std::optional<Size> DesktopProbe::PictureSize(const std::filesystem::path& file) {
  QImageReader reader(QString::fromStdString(file.string()));
  reader.setDecideFormatFromContent(true);
  // Nearly all art is GIF; decoding thousands of pictures would take minutes on an old machine.
  if (reader.format() == "gif") return WholeGifSize(BytesOf(file));
  const QSize size = reader.size();
  // Qt refuses to decode what is larger, and says no more than that it failed.
  if (qint64{size.width()} * size.height() > MostPixels()) return Size{size.width(), size.height()};
  const QImage picture = reader.read();
  if (picture.isNull()) return std::nullopt;
  return Size{picture.width(), picture.height()};
}

std::int64_t DesktopProbe::MostPixels() const {
  constexpr std::int64_t kMegabyte = 1024 * 1024, kBytesOfAPixel = 4;
  return QImageReader::allocationLimit() * kMegabyte / kBytesOfAPixel;
}

std::vector<std::string> DesktopProbe::FontNames(const std::filesystem::path& file) {
  std::vector<std::string> names;
  const int id = QFontDatabase::addApplicationFont(QString::fromStdString(file.string()));
  if (id < 0) return names;
  for (const QString& family : QFontDatabase::applicationFontFamilies(id))
    names.push_back(family.toStdString());
  QFontDatabase::removeApplicationFont(id);
  return names;
}

Runner DesktopProbe::RunnerOf(const FileFacts& facts) {
  const char* path = std::getenv("PATH");
  return FindRunner(facts, path ? path : "");
}

bool DesktopProbe::CanPlay(const std::filesystem::path& file, bool film) {
  // Opening a FIFO would wait for a writer, and a device may be endless.
  std::error_code noFile;
  if (!std::filesystem::is_regular_file(file, noFile)) return false;
  if (!gst_is_initialized() && !gst_init_check(nullptr, nullptr, nullptr)) return false;
  const Owned<GstDiscoverer> discoverer(gst_discoverer_new(20 * GST_SECOND, nullptr));
  if (!discoverer) return false;
  const Owned<GstDiscovererInfo> info(
      gst_discoverer_discover_uri(discoverer.get(), FindMediaSource(file).uri.c_str(), nullptr));
  if (!info || gst_discoverer_info_get_result(info.get()) != GST_DISCOVERER_OK) return false;
  const Streams video(gst_discoverer_info_get_video_streams(info.get()));
  const Streams audio(gst_discoverer_info_get_audio_streams(info.get()));
  return video || (audio && !film);
}

std::optional<std::uintmax_t> DesktopProbe::DifferentPixels(const std::filesystem::path& a,
                                                            const std::filesystem::path& b) {
  const QImage left = Pixels(a), right = Pixels(b);
  if (left.isNull() || left.size() != right.size()) return std::nullopt;
  std::uintmax_t count = 0;
  for (int y = 0; y < left.height(); ++y) {
    const auto* was = reinterpret_cast<const QRgb*>(left.constScanLine(y));
    const auto* is = reinterpret_cast<const QRgb*>(right.constScanLine(y));
    for (int x = 0; x < left.width(); ++x) count += was[x] != is[x] ? 1U : 0U;
  }
  return count;
}

}  // namespace orvanta
