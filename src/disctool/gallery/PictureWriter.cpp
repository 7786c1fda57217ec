#include "disctool/gallery/PictureWriter.h"

#include <QImageWriter>
#include <algorithm>
#include <optional>
#include <system_error>
#include <unordered_map>
#include <utility>

namespace orvanta {
namespace {

namespace fs = std::filesystem;

/// Numbers the colours of a picture in the order in which they first occur.
class Palette {
 public:
  /// Nothing if this is the 257th colour.
  std::optional<std::uint8_t> NumberOf(QRgb colour) {
    // Neighbouring pixels often have the same colour.
    if (colour == last_ && !colours_.empty()) return lastNumber_;
    const auto [at, isNew] = numbers_.try_emplace(colour, static_cast<std::uint8_t>(colours_.size()));
    if (isNew) {
      if (colours_.size() == kMost) return std::nullopt;
      colours_.push_back(colour);
    }
    last_ = colour;
    return lastNumber_ = at->second;
  }
  const QList<QRgb>& Colours() const { return colours_; }

 private:
  static constexpr qsizetype kMost = 256;

  std::unordered_map<QRgb, std::uint8_t> numbers_;
  QList<QRgb> colours_;
  QRgb last_ = 0;
  std::uint8_t lastNumber_ = 0;
};

/// Returns why the file could not be written; empty on success.
std::string WritePng(const fs::path& file, const QImage& picture) {
  fs::path part = file;
  part += ".part";
  QImageWriter writer(QString::fromStdString(part.string()), "png");
  std::error_code error;
  if (writer.write(WithPalette(picture))) {
    fs::rename(part, file, error);
    if (!error) return {};
  }
  const std::string reason = error ? error.message() : writer.errorString().toStdString();
  fs::remove(part, error);
  return file.string() + ": " + reason;
}

}  // namespace

QImage WithPalette(const QImage& picture) {
  if (picture.format() == QImage::Format_Indexed8) return picture;
  // Palettes and PNG files store colours that are not premultiplied.
  const QImage plain = picture.convertToFormat(QImage::Format_ARGB32);
  QImage indexed(plain.size(), QImage::Format_Indexed8);
  Palette palette;
  for (int y = 0; y < plain.height(); ++y) {
    const auto* from = reinterpret_cast<const QRgb*>(plain.constScanLine(y));
    auto* to = indexed.scanLine(y);
    for (int x = 0; x < plain.width(); ++x) {
      const auto number = palette.NumberOf(from[x]);
      if (!number) return picture;
      to[x] = *number;
    }
  }
  indexed.setColorTable(palette.Colours());
  return indexed;
}

PictureWriter::PictureWriter(std::function<void(const fs::path& file)> written)
    : written_(std::move(written)) {
  const unsigned cores = std::max(1U, std::thread::hardware_concurrency());
  for (unsigned i = 0; i < cores; ++i) threads_.emplace_back([this] { Work(); });
}

PictureWriter::~PictureWriter() {
  {
    const std::lock_guard lock(mutex_);
    ending_ = true;
    jobs_.clear();
  }
  changed_.notify_all();
  for (std::thread& thread : threads_) thread.join();
}

bool PictureWriter::Write(fs::path file, QImage picture) {
  std::unique_lock lock(mutex_);
  changed_.wait(lock, [this] { return jobs_.size() < threads_.size(); });
  if (!problem_.empty()) return false;
  jobs_.push_back({std::move(file), std::move(picture)});
  changed_.notify_all();
  return true;
}

std::string PictureWriter::Finish() {
  std::unique_lock lock(mutex_);
  changed_.wait(lock, [this] { return jobs_.empty() && busy_ == 0; });
  return problem_;
}

void PictureWriter::Work() {
  std::unique_lock lock(mutex_);
  for (;;) {
    changed_.wait(lock, [this] { return ending_ || !jobs_.empty(); });
    if (ending_) return;
    Job job = std::move(jobs_.front());
    jobs_.pop_front();
    ++busy_;
    lock.unlock();
    const std::string problem = WritePng(job.file, job.picture);
    job.picture = {};
    lock.lock();
    if (problem.empty()) {
      written_(job.file);
    } else if (problem_.empty()) {
      problem_ = problem;
    }
    --busy_;
    changed_.notify_all();
  }
}

}  // namespace orvanta
