#include "platform/web/WebPlayer.h"

#include <algorithm>
#include <cmath>

#include "platform/web/Browser.h"
#include "platform/web/WebPicture.h"

namespace orvanta {

namespace {

/// How long the first question about a file waits for the answer, in milliseconds.
constexpr double kPatience = 250;

}  // namespace

WebPlayer::WebPlayer(WebHost& host, MovieKind kind)
    : host_(host), number_(BrowserOpenPlayer(kind == MovieKind::Film)) {
  host_.Add(*this);
}

WebPlayer::~WebPlayer() {
  host_.Remove(*this);
  BrowserClosePlayer(number_);
}

void WebPlayer::TakeFrame() {
  if (!BrowserFrameChanged(number_)) return;
  if (!frame_) frame_ = std::make_shared<WebPicture>(BrowserFilmPicture(number_), FilmSize());
  if (OnFrame) OnFrame();
}

void WebPlayer::Open(const std::filesystem::path& file) {
  frame_ = nullptr;
  BrowserLoadMedia(number_, file.c_str());
}

void WebPlayer::Run() { BrowserRunPlayer(number_); }

void WebPlayer::AwaitAnswer() {
  // A suspension costs a turn of the page, and most questions come when the answer is known.
  if (BrowserMediaLoading(number_)) BrowserAwaitMedia(number_, kPatience);
}

void WebPlayer::Pause() {
  AwaitAnswer();
  BrowserPausePlayer(number_);
}

void WebPlayer::Stop() { BrowserStopPlayer(number_); }

MovieState WebPlayer::State() {
  AwaitAnswer();
  return MovieState{BrowserPlayerState(number_)};
}

bool WebPlayer::Loaded() { return BrowserPlayerLoaded(number_); }

double WebPlayer::Position() { return BrowserPlayerPosition(number_); }

void WebPlayer::SetPosition(double seconds) { BrowserSetPlayerPosition(number_, std::max(0.0, seconds)); }

double WebPlayer::Length() { return BrowserPlayerLength(number_); }

void WebPlayer::SetVolume(int hundredthsOfDecibel) {
  volume_ = std::clamp(hundredthsOfDecibel, -10000, 0);
  BrowserSetPlayerVolume(number_, volume_ == -10000 ? 0 : std::pow(10.0, volume_ / 2000.0));
}

void WebPlayer::SetPlayCount(int count) { BrowserSetPlayCount(number_, std::max(1, count)); }

Size WebPlayer::FilmSize() {
  std::int32_t size[2] = {};
  BrowserFilmSize(number_, size);
  return {size[0], size[1]};
}

}  // namespace orvanta
