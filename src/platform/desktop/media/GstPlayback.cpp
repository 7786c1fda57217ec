#include "platform/desktop/media/GstPlayback.h"

#include <algorithm>
#include <utility>

#include "platform/desktop/media/GstTransport.h"
#include "platform/desktop/media/JobQueue.h"

namespace orvanta {
namespace {

constexpr std::chrono::milliseconds kAnswerTimeout{15};
constexpr std::chrono::milliseconds kCloseTimeout{1000};

}  // namespace

/// What the two threads share. It outlives the playback if its thread hangs.
struct GstPlayback::Shared {
  JobQueue jobs;
  BusEvents events;
  std::unique_ptr<GstTransport> transport;  // the program's thread may only use its play count

  std::mutex mutex;  // guards everything below
  std::condition_variable changed;
  MovieState state = MovieState::Running;
  bool loaded = false;
  bool failed = false;
  MovieTimes times;
  bool timesAsked = false;
  unsigned ordered =
      0;  // orders given and carried out; while they differ, the newest order determines the state
  unsigned done = 0;

  void Load(const std::filesystem::path& file);
  void PlayIfWanted();
  void GoTo(double seconds);
  void FinishOrder(unsigned number);
  void Settle();
  void HandleBusEvents();
  void AnswerTimes();
};

void GstPlayback::Shared::Load(const std::filesystem::path& file) {
  const bool loads = transport->Load(file);
  const MovieTimes first = transport->Times();
  if (loads) PlayIfWanted();
  const std::scoped_lock lock(mutex);
  loaded = loads;
  Settle();
  times.length = first.length;
  changed.notify_all();
}

void GstPlayback::Shared::PlayIfWanted() {
  std::unique_lock lock(mutex);
  const bool wanted = state == MovieState::Running;
  lock.unlock();
  if (wanted) transport->Play();
}

void GstPlayback::Shared::GoTo(double seconds) {
  transport->Seek(seconds);
  PlayIfWanted();  // the end may have come while the order was waiting
}

void GstPlayback::Shared::FinishOrder(unsigned number) {
  const std::scoped_lock lock(mutex);
  done = number;
  Settle();
}

/// Adopts the state of the player, unless an order is on the way that will change it.
void GstPlayback::Shared::Settle() {
  failed = transport->Failed();
  if (!transport->Lost() || done != ordered) return;
  times = transport->Times();
  if (state == MovieState::Running) state = MovieState::Stopped;
}

/// Handles what the player has reported: the end of the file or its loss.
void GstPlayback::Shared::HandleBusEvents() {
  const bool ended = transport->HandleBusEvents();
  const std::scoped_lock lock(mutex);
  Settle();
  if (ended && done == ordered) state = MovieState::Stopped;
}

void GstPlayback::Shared::AnswerTimes() {
  const MovieTimes now = transport->Times();
  const std::scoped_lock lock(mutex);
  if (done == ordered) times = now;
  timesAsked = false;
  changed.notify_all();
}

GstPlayback::GstPlayback(MovieKind kind, const std::filesystem::path& file, const Settings& settings,
                         FrameMailboxPtr frames)
    : shared_(std::make_shared<Shared>()) {
  const std::weak_ptr<Shared> weak = shared_;
  const auto onBusEvent = [weak] {
    if (const auto shared = weak.lock()) shared->jobs.Post([shared] { shared->HandleBusEvents(); });
  };
  shared_->transport = std::make_unique<GstTransport>(kind, std::move(frames), shared_->events, onBusEvent);
  shared_->transport->SetPlayCount(settings.playCount);
  shared_->transport->SetVolume(settings.volume);
  shared_->jobs.Post([shared = shared_, file] { shared->Load(file); });
  thread_ = std::thread([shared = shared_] { shared->jobs.Serve(); });
}

GstPlayback::~GstPlayback() {
  shared_->events.Add({.abandoned = true});
  shared_->jobs.Close([shared = shared_] { shared->transport.reset(); });
  if (shared_->jobs.WaitServed(kCloseTimeout))
    thread_.join();
  else
    thread_.detach();
}

void GstPlayback::AwaitFirstData(std::chrono::milliseconds timeout) const {
  std::unique_lock lock(shared_->mutex);
  shared_->changed.wait_for(lock, timeout, [this] { return shared_->loaded || shared_->failed; });
}

void GstPlayback::Order(std::optional<MovieState> outcome, std::function<void()> job) {
  const std::scoped_lock lock(shared_->mutex);
  shared_->state = outcome.value_or(shared_->state);
  shared_->jobs.Post([shared = shared_, job = std::move(job), number = ++shared_->ordered] {
    job();
    shared->FinishOrder(number);
  });
}

void GstPlayback::Run() {
  Order(MovieState::Running, [shared = shared_] { shared->transport->Play(); });
}

void GstPlayback::Pause() {
  Order(MovieState::Paused, [shared = shared_] { shared->transport->Pause(); });
}

void GstPlayback::Stop() {
  Order(MovieState::Stopped, [shared = shared_] { shared->transport->Stop(); });
  const std::scoped_lock lock(shared_->mutex);
  shared_->times.position = 0;
}

void GstPlayback::SetPosition(double seconds) {
  const double wanted = std::max(0.0, seconds);
  Order(std::nullopt, [shared = shared_, wanted] { shared->GoTo(wanted); });
  const std::scoped_lock lock(shared_->mutex);
  shared_->times.position = wanted;
}

void GstPlayback::Apply(const Settings& settings) {
  shared_->transport->SetPlayCount(settings.playCount);
  shared_->jobs.Post([shared = shared_, volume = settings.volume] { shared->transport->SetVolume(volume); });
}

MovieState GstPlayback::State() const {
  const std::scoped_lock lock(shared_->mutex);
  return shared_->failed ? MovieState::NoFile : shared_->state;
}

bool GstPlayback::Loaded() const {
  const std::scoped_lock lock(shared_->mutex);
  return shared_->loaded;
}

bool GstPlayback::Failed() const {
  const std::scoped_lock lock(shared_->mutex);
  return shared_->failed;
}

double GstPlayback::Position() {
  RefreshTimes();
  const std::scoped_lock lock(shared_->mutex);
  return shared_->times.position;
}

double GstPlayback::Length() {
  RefreshTimes();
  const std::scoped_lock lock(shared_->mutex);
  return shared_->times.length;
}

/// Does not wait again for a question that is still unanswered from an earlier call: then the player hangs.
void GstPlayback::RefreshTimes() {
  std::unique_lock lock(shared_->mutex);
  if (!shared_->loaded || shared_->failed || shared_->timesAsked) return;
  shared_->timesAsked = true;
  shared_->jobs.Post([shared = shared_] { shared->AnswerTimes(); });
  shared_->changed.wait_for(lock, kAnswerTimeout, [this] { return !shared_->timesAsked; });
}

}  // namespace orvanta
