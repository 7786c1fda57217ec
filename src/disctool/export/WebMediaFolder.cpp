#include "disctool/export/WebMediaFolder.h"

#include <QCryptographicHash>
#include <algorithm>
#include <atomic>
#include <mutex>
#include <set>
#include <system_error>
#include <thread>

#include "disctool/Translation.h"
#include "disctool/export/MediaForWeb.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

/// A name for what becomes of a file: the same for the same content at the same place.
std::string NameFor(const DiscTree& disc, const std::string& path) {
  QCryptographicHash hash(QCryptographicHash::Sha256);
  hash.addData(QByteArrayView(path.data(), static_cast<qsizetype>(path.size())));
  constexpr std::uintmax_t kPart = 1024 * 1024;
  std::uintmax_t at = 0;
  for (;;) {
    const auto bytes = disc.Read(path, at, kPart);
    if (!bytes || bytes->empty()) break;
    hash.addData(QByteArrayView(bytes->data(), static_cast<qsizetype>(bytes->size())));
    at += bytes->size();
  }
  return hash.result().toHex().left(16).toStdString();
}

/// The work on the files, taken by all threads in turn.
class Conversion {
 public:
  Conversion(const DiscTree& disc, const fs::path& folder, WebFiles& files, const Progress& progress)
      : disc_(disc), folder_(folder), progress_(progress) {
    for (auto& [path, file] : files) {
      if (!IsPlayed(path)) continue;
      work_.push_back({path, &file});
      all_ += file.size;
    }
  }

  std::vector<std::string> Run() {
    std::vector<std::thread> threads;
    for (unsigned i = 0; i < std::max(1U, std::thread::hardware_concurrency()); ++i)
      threads.emplace_back([this] { Work(); });
    for (std::thread& thread : threads) thread.join();
    RemoveOthers();
    std::ranges::sort(problems_);
    return problems_;
  }

 private:
  struct Item {
    std::string path;
    WebFile* file;
  };

  void Work() {
    for (std::size_t i = next_++; i < work_.size(); i = next_++) {
      Convert(work_[i]);
      Advance(work_[i].file->size);
    }
  }

  void Convert(const Item& item) {
    // Discs are read by one thread at a time.
    std::unique_lock lock(mutex_);
    const fs::path source = disc_.OnHost(item.path);
    if (source.empty()) {
      problems_.push_back(disc_.Place(item.path).string() + ": " + Translated("it cannot be read"));
      return;
    }
    const std::string base = NameFor(disc_, item.path);
    lock.unlock();
    const WebMedia as = WebMediaOf(source);
    if (as == WebMedia::AsItIs) return;
    const std::string name = base + (as == WebMedia::Film ? ".webm" : ".ogg");
    const std::string problem =
        as == WebMedia::Neither ? Translated("it cannot be played") : Made(source, as, name);
    lock.lock();
    if (!problem.empty()) {
      problems_.push_back(disc_.Place(item.path).string() + ": " + problem);
      return;
    }
    item.file->as = (folder_.filename() / name).string();
    kept_.insert(name);
  }

  std::string Made(const fs::path& source, WebMedia as, const std::string& name) const {
    std::error_code error;
    if (fs::is_regular_file(folder_ / name, error)) return {};
    return ConvertForWeb(
        source, as, folder_ / name, [](double) {}, stop_);
  }

  void Advance(std::uintmax_t bytes) {
    const std::lock_guard lock(mutex_);
    progress_(done_ += bytes, all_);
  }

  void RemoveOthers() const {
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder_, error))
      if (!kept_.contains(entry.path().filename().string())) fs::remove(entry.path(), error);
  }

  const DiscTree& disc_;
  const fs::path& folder_;
  const Progress& progress_;
  std::vector<Item> work_;
  std::atomic<std::size_t> next_ = 0;
  std::atomic<bool> stop_ = false;
  std::mutex mutex_;
  std::uintmax_t done_ = 0, all_ = 0;
  std::vector<std::string> problems_;
  std::set<std::string> kept_;
};

}  // namespace

std::vector<std::string> ConvertMedia(const DiscTree& disc, const fs::path& folder, WebFiles& files,
                                      const Progress& progress) {
  return Conversion(disc, folder, files, progress).Run();
}

}  // namespace orvanta
