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

/// Writes pictures as PNG files on all cores while the next ones are painted. A picture of at most 256
/// colours is written with a palette. Equal pictures give equal bytes.
class PictureWriter {
 public:
  /// `written` is called for each file that is complete, one call at a time, on any thread.
  explicit PictureWriter(std::function<void(const std::filesystem::path& file)> written);
  PictureWriter(const PictureWriter&) = delete;
  PictureWriter& operator=(const PictureWriter&) = delete;
  /// Waits for what is being written; what has not begun is dropped.
  ~PictureWriter();

  /// Waits while as many pictures as there are cores, and as many again, are not written yet. A file comes
  /// into being complete or not at all. False if an earlier file could not be written, and nothing more is.
  bool Write(std::filesystem::path file, QImage picture);
  /// Waits until everything is written. Gives what went wrong, empty if nothing did.
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

/// The picture with a palette if it has at most 256 colours, else as it is. No pixel changes.
QImage WithPalette(const QImage& picture);

}  // namespace orvanta
