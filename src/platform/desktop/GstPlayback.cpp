#include "platform/desktop/GstPlayback.h"

#include <algorithm>
#include <utility>

#include "platform/desktop/GstTransport.h"
#include "platform/desktop/JobQueue.h"

namespace orvanta {
namespace {

constexpr std::chrono::milliseconds kAnswerPatience{15};
constexpr std::chrono::milliseconds kClosePatience{1000};

}  // namespace

/// What the two threads have in common. It outlives the playback if its thread hangs.
struct GstPlayback::Shared {
  JobQueue jobs;
  NewsBox news;
  std::unique_ptr<GstTransport> transport;  // only its play count is for the program's thread

  std::mutex mutex;  // guards all below
  std::condition_variable changed;
  MovieState state = MovieState::Running;
  bool loaded = false;
  bool failed = false;
  MovieTimes times;
  bool timesAsked = false;
  unsigned ordered = 0;  // orders given and carried out: while they differ, the newest order tells the state
  unsigned done = 0;

  void load(const std::filesystem::path& file);
  void finishOrder(unsigned number);
  void heed();
  void answerTimes();
};

void GstPlayback::Shared::load(const std::filesystem::path& file) {
  const bool loads = transport->load(file);
  const MovieTimes first = transport->times();
  if (loads) transport->play();
  const std::scoped_lock lock(mutex);
  loaded = loads;
  failed = !transport->alive();
  times.length = first.length;
  changed.notify_all();
}

void GstPlayback::Shared::finishOrder(unsigned number) {
  const std::scoped_lock lock(mutex);
  done = number;
  failed = !transport->alive();
}

/// Something has come up in the player: the end of the file or its loss.
void GstPlayback::Shared::heed() {
  const bool ended = transport->heedNews();
  const std::scoped_lock lock(mutex);
  failed = !transport->alive();
  if (ended && done == ordered) state = MovieState::Stopped;
}

void GstPlayback::Shared::answerTimes() {
  const MovieTimes now = transport->times();
  const std::scoped_lock lock(mutex);
  if (done == ordered) times = now;
  timesAsked = false;
  changed.notify_all();
}

GstPlayback::GstPlayback(PlayerKind kind, const std::filesystem::path& file, const Settings& settings,
                         FrameBoxPtr frames)
    : shared_(std::make_shared<Shared>()) {
  const std::weak_ptr<Shared> weak = shared_;
  const auto onNews = [weak] {
    if (const auto shared = weak.lock()) shared->jobs.post([shared] { shared->heed(); });
  };
  shared_->transport = std::make_unique<GstTransport>(kind, std::move(frames), shared_->news, onNews);
  shared_->transport->setPlayCount(settings.playCount);
  shared_->transport->setVolume(settings.volume);
  shared_->jobs.post([shared = shared_, file] { shared->load(file); });
  thread_ = std::thread([shared = shared_] { shared->jobs.serve(); });
}

GstPlayback::~GstPlayback() {
  shared_->news.abandon();
  shared_->jobs.close([shared = shared_] { shared->transport.reset(); });
  if (shared_->jobs.waitServed(kClosePatience))
    thread_.join();
  else
    thread_.detach();
}

void GstPlayback::awaitFirstData(std::chrono::milliseconds patience) const {
  std::unique_lock lock(shared_->mutex);
  shared_->changed.wait_for(lock, patience, [this] { return shared_->loaded || shared_->failed; });
}

void GstPlayback::order(MovieState outcome, std::function<void()> job) {
  const std::scoped_lock lock(shared_->mutex);
  shared_->state = outcome;
  shared_->jobs.post([shared = shared_, job = std::move(job), number = ++shared_->ordered] {
    job();
    shared->finishOrder(number);
  });
}

void GstPlayback::run() {
  order(MovieState::Running, [shared = shared_] { shared->transport->play(); });
}

void GstPlayback::pause() {
  order(MovieState::Paused, [shared = shared_] { shared->transport->pause(); });
}

void GstPlayback::stop() {
  order(MovieState::Stopped, [shared = shared_] { shared->transport->stop(); });
  const std::scoped_lock lock(shared_->mutex);
  shared_->times.position = 0;
}

void GstPlayback::setPosition(double seconds) {
  const double wanted = std::max(0.0, seconds);
  order(state(), [shared = shared_, wanted] { shared->transport->seek(wanted); });
  const std::scoped_lock lock(shared_->mutex);
  shared_->times.position = wanted;
}

void GstPlayback::apply(const Settings& settings) {
  shared_->transport->setPlayCount(settings.playCount);
  shared_->jobs.post([shared = shared_, volume = settings.volume] { shared->transport->setVolume(volume); });
}

MovieState GstPlayback::state() const {
  const std::scoped_lock lock(shared_->mutex);
  if (!shared_->failed) return shared_->state;
  return shared_->loaded ? MovieState::Stopped : MovieState::NoFile;
}

bool GstPlayback::loaded() const {
  const std::scoped_lock lock(shared_->mutex);
  return shared_->loaded;
}

bool GstPlayback::failed() const {
  const std::scoped_lock lock(shared_->mutex);
  return shared_->failed;
}

double GstPlayback::position() {
  refreshTimes();
  const std::scoped_lock lock(shared_->mutex);
  return shared_->times.position;
}

double GstPlayback::length() {
  if (shared_->times.length <= 0) refreshTimes();
  const std::scoped_lock lock(shared_->mutex);
  return shared_->times.length;
}

/// A question that is still open from an earlier call is not waited for again: the player hangs.
void GstPlayback::refreshTimes() {
  std::unique_lock lock(shared_->mutex);
  if (!shared_->loaded || shared_->failed || shared_->timesAsked) return;
  shared_->timesAsked = true;
  shared_->jobs.post([shared = shared_] { shared->answerTimes(); });
  shared_->changed.wait_for(lock, kAnswerPatience, [this] { return !shared_->timesAsked; });
}

}  // namespace orvanta
