#include "disctool/command/ManyDiscs.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstdlib>
#include <exception>
#include <map>
#include <mutex>
#include <optional>
#include <ostream>
#include <thread>

#include "disctool/JsonObject.h"
#include "disctool/OutputText.h"
#include "disctool/Translation.h"

namespace orvanta {
namespace {

/// How many discs the workers may be ahead of the one that is written next.
constexpr std::size_t kMostWaiting = 256;

class Run {
 public:
  Run(const ManyDiscs& many, const std::function<DiscReport(const std::string&)>& ask)
      : many_(many), ask_(ask) {}

  ExitStatus Go() {
    const std::size_t cores = std::max(1U, std::thread::hardware_concurrency());
    const std::size_t wanted = many_.workers == 0 ? cores : many_.workers;
    std::vector<std::thread> threads(std::min(wanted, many_.discs.size()));
    for (std::thread& thread : threads) thread = std::thread([this] { Work(); });
    for (std::size_t i = 0; i < many_.discs.size() && many_.out; ++i) {
      if (many_.bar) many_.bar->Show(i, many_.discs.size());
      const auto report = Await(i);
      if (!report) return Interrupt(threads, i);
      Write(many_.discs[i], *report);
    }
    if (many_.bar) many_.bar->Hide();
    Stop();
    for (std::thread& thread : threads) thread.join();
    return static_cast<ExitStatus>((faults_ ? kFaults : kGood) | (unread_ ? kUnread : kGood));
  }

 private:
  DiscReport Ask(const std::string& disc) {
    try {
      return ask_(disc);
    } catch (const std::exception& failure) {
      return {{}, disc + ": " + failure.what()};
    }
  }

  void Work() {
    std::unique_lock lock(mutex_);
    while (true) {
      changed_.wait(lock, [this] { return stopped_ || next_ < written_ + kMostWaiting; });
      if (stopped_ || next_ == many_.discs.size()) return;
      const std::size_t index = next_++;
      ++busy_;
      lock.unlock();
      DiscReport report = Ask(many_.discs[index]);
      lock.lock();
      --busy_;
      ready_.emplace(index, std::move(report));
      changed_.notify_all();
    }
  }

  /// Nothing if the user wants to end before the report is there.
  std::optional<DiscReport> Await(std::size_t index) {
    constexpr std::chrono::milliseconds kBetweenQuestions{100};
    std::unique_lock lock(mutex_);
    while (!changed_.wait_for(lock, kBetweenQuestions, [&] { return ready_.contains(index); }))
      if (many_.stop()) return std::nullopt;
    DiscReport report = std::move(ready_.extract(index).mapped());
    written_ = index + 1;
    changed_.notify_all();
    return report;
  }

  ExitStatus Interrupt(std::vector<std::thread>& threads, std::size_t written) {
    constexpr std::chrono::seconds kPatience{2};
    Stop();
    if (many_.bar) many_.bar->Hide();
    many_.err << "orvanta-disc: "
              << Translated("interrupted after %1 of %2 discs", written, many_.discs.size()) << std::endl;
    std::unique_lock lock(mutex_);
    // A thread that hangs in a drive cannot be waited for, and must not outlive what it works with.
    if (!changed_.wait_for(lock, kPatience, [&] { return busy_ == 0; })) std::_Exit(kInterrupted);
    lock.unlock();
    for (std::thread& thread : threads) thread.join();
    return kInterrupted;
  }

  void Stop() {
    const std::lock_guard lock(mutex_);
    stopped_ = true;
    changed_.notify_all();
  }

  void Write(const std::string& disc, const DiscReport& report) {
    faults_ = faults_ || report.faults;
    unread_ = unread_ || !report.problem.empty();
    if (many_.bar && !(report.text.empty() && report.problem.empty())) many_.bar->Hide();
    if (!report.problem.empty()) {
      many_.err << "orvanta-disc: " << Printable(report.problem) << '\n';
      if (many_.json) many_.out << JsonLine(disc).Text("problem", report.problem).Done() << '\n';
    }
    many_.out << report.text << std::flush;
  }

  const ManyDiscs& many_;
  const std::function<DiscReport(const std::string&)>& ask_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::map<std::size_t, DiscReport> ready_;
  std::size_t next_ = 0, written_ = 0, busy_ = 0;
  bool stopped_ = false;
  bool faults_ = false, unread_ = false;
};

}  // namespace

ExitStatus ReportDiscs(const ManyDiscs& many, const std::function<DiscReport(const std::string&)>& ask) {
  return Run(many, ask).Go();
}

std::vector<std::string> NamesInList(std::string_view list) {
  const char end = list.find('\0') == list.npos ? '\n' : '\0';
  std::vector<std::string> names;
  while (!list.empty()) {
    const auto length = std::min(list.find(end), list.size());
    std::string_view name = list.substr(0, length);
    if (end == '\n' && name.ends_with('\r')) name.remove_suffix(1);
    if (!name.empty()) names.emplace_back(name);
    list.remove_prefix(std::min(length + 1, list.size()));
  }
  return names;
}

}  // namespace orvanta
