#include "desktop/HeardShell.h"

#include <algorithm>
#include <chrono>
#include <thread>

namespace orvanta::test {

namespace {

constexpr int kStepHertz = 200;
constexpr double kToneSeconds = 0.5;
constexpr double kShortest = 0.06;  // less may be a click where another tone ends
constexpr double kGap = 0.06;
constexpr double kSilence = 0.005, kLoud = 0.2;

struct Tone {
  int index;
  Recording::Span heard;
};

Passage PassageOf(const std::vector<Tone>& tones) {
  const Tone &first = tones.front(), &last = tones.back();
  // Where a tone was cut off at its beginning, the next one's tells the place.
  const double lead = tones.size() > 1 ? tones[1].heard.from - first.heard.from : kToneSeconds;
  return {first.heard.from, last.heard.to, (first.index + 1) * kToneSeconds - lead,
          last.index * kToneSeconds + last.heard.Length()};
}

}  // namespace

MediaFiles::Tones Tune::Tones() const {
  MediaFiles::Tones hertz;
  for (int i = 0; i < tones; ++i) hertz.push_back(first + i * kStepHertz);
  return hertz;
}

HeardShell::HeardShell() { disc_.Menu("MAINMENU", {"Gra", "Piosenka", "Film"}); }

void HeardShell::Sound(const std::string& name, const MediaFiles::Tones& tones) const {
  std::filesystem::copy_file(files_.Wave(name, tones), disc_.Data() / "Sound" / name,
                             std::filesystem::copy_options::overwrite_existing);
}

std::vector<Passage> HeardShell::Heard(const Tune& tune) const {
  std::vector<Tone> tones;
  for (int i = 0; i < tune.tones; ++i)
    for (const Recording::Span& span : ears_->Heard(tune.first + i * kStepHertz))
      if (span.Length() >= kShortest) tones.push_back({i, span});
  std::ranges::sort(tones, {}, [](const Tone& tone) { return tone.heard.from; });
  std::vector<std::vector<Tone>> groups;
  for (const Tone& tone : tones) {
    if (groups.empty() || tone.heard.from - groups.back().back().heard.to > kGap) groups.emplace_back();
    groups.back().push_back(tone);
  }
  std::vector<Passage> passages;
  for (const auto& group : groups) passages.push_back(PassageOf(group));
  return passages;
}

bool HeardShell::FallsSilent() const {
  return Soon([this] { return ears_->Peak(ears_->Now() - 0.25) < kSilence; });
}

bool HeardShell::BecomesLoud() const {
  const double now = ears_->Now();
  return Soon([&] { return ears_->Peak(std::max(now, ears_->Now() - 0.1)) > kLoud; });
}

bool HeardShell::StaysSilent(double seconds) const {
  const double from = ears_->Now();
  Wait(seconds);
  return ears_->Peak(from) < kSilence;
}

void HeardShell::Wait(double seconds) { std::this_thread::sleep_for(std::chrono::duration<double>(seconds)); }

bool HeardShell::Shows(int button, int look) const {
  return Soon([&] { return PixelOfMain(MiddleOf(ButtonBox(button))) == ButtonColour(button, look); });
}

void HeardShell::MoveAside() const {
  Wait(0.02);
  PointAt({300, 455});
}

void HeardShell::OpenEntry(int line, int button, int look) const {
  Choose(line, true);
  MoveAside();
  EXPECT_TRUE(Shows(button, look)) << "the view of line " << line << " does not open";
}

void HeardShell::GoBack() const {
  ClickMain({515, 110});
  MoveAside();
  EXPECT_TRUE(Soon([&] { return PixelOfMain({300, 430}) == kArea; })) << "the list does not come back";
}

}  // namespace orvanta::test
