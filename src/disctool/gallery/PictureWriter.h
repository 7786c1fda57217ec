#pragma once

#include <QImage>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <filesystem>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace orvanta {

/// Writes pictures as PNG files on all cores, while the next ones are painted. A picture with at most 256
/// colours is written with a palette. Equal pictures give equal files.
class PictureWriter {
 public:
  /// `written` is called for each complete file: one call at a time, on any thread.
  explicit PictureWriter(std::function<void(const std::filesystem::path& file)> written);
  PictureWriter(const PictureWriter&) = delete;
  PictureWriter& operator=(const PictureWriter&) = delete;
  /// Waits for the files that are being written and drops those that have not been started.
  ~PictureWriter();

  /// Waits while two pictures per core are still unwritten. A file appears complete or not at all. False if
  /// an earlier file could not be written; then nothing more is written.
  bool Write(std::filesystem::path file, QImage picture);
  /// Waits until everything is written. Returns what went wrong; empty on success.
  std::string Finish();

 private:
  struct Job {
    std::filesystem::path file;
    QImage picture;
  };

  void Work();

  const std::function<void(const std::filesystem::path& file)> written_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::deque<Job> jobs_;
  std::size_t busy_ = 0;
  bool ending_ = false;
  std::string problem_;
  std::vector<std::thread> threads_;
};

/// The picture with a palette if it has at most 256 colours, otherwise unchanged. No pixel changes its
/// colour.
QImage WithPalette(const QImage& picture);

}  // namespace orvanta
