#include "platform/ActiveMovie.h"

#include <algorithm>
#include <utility>

#include "platform/Host.h"
#include "platform/MovieScreen.h"

namespace orvanta {

namespace {

bool IsShown(const std::unique_ptr<MovieScreen>& screen) { return screen && screen->Visible; }

}  // namespace

ActiveMovie::ActiveMovie(Container& parent, std::string name, MovieKind kind)
    : BoxControl(parent, std::move(name)), player_(parent.OwnerForm().TheHost().MakePlayer(kind)) {
  player_->OnFrame = [this] { FrameChanged(); };
}

ActiveMovie::~ActiveMovie() { player_->OnFrame = nullptr; }

void ActiveMovie::FileName(const std::filesystem::path& file) {
  sized_ = false;
  player_->Open(file);
  ApplyPlayCount();
}

std::int32_t ActiveMovie::ReadyState() {
  if (!player_->Loaded()) return 0;
  if (!std::exchange(sized_, true)) {
    const Size film = player_->FilmSize();
    Move(Left, Top, Parent().FromPixels(film.width), Parent().FromPixels(film.height));
  }
  return kComplete;
}

void ActiveMovie::AutoRewind(bool on) {
  autoRewind_ = on;
  ApplyPlayCount();
}

void ActiveMovie::PlayCount(std::int32_t count) {
  playCount_ = count;
  ApplyPlayCount();
}

void ActiveMovie::ApplyPlayCount() { player_->SetPlayCount(autoRewind_ ? std::max(1, playCount_) : 1); }

void ActiveMovie::FullScreenMode(bool on) {
  if (on == IsShown(screen_)) return;
  if (on) {
    Parent().OwnerForm().ExpectReturn();
    if (!screen_) screen_ = std::make_unique<MovieScreen>(Parent().OwnerForm(), *this);
    screen_->Cover();
    return;
  }
  screen_->Visible = false;
  // The picture has changed meanwhile.
  FrameChanged();
}

void ActiveMovie::FrameChanged() {
  if (IsShown(screen_)) {
    screen_->Invalidate(screen_->ClientArea());
  } else if (Visible) {
    Parent().Invalidate(Bounds());
  }
}

bool ActiveMovie::Covers(const Rect& area) const { return Frame() && Intersection(area, Bounds()) == area; }

void ActiveMovie::Paint(Canvas& canvas, Point origin, const Rect&) const {
  if (const PicturePtr frame = player_->Frame()) canvas.Draw(*frame, Bounds().Moved(origin));
}

}  // namespace orvanta
