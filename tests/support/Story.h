#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "support/TestShell.h"

namespace orvanta::test {

using Names = std::vector<std::string>;

/// A disc whose first menu leads to an entry of each kind and to a menu with one more entry. The music plays
/// for 20 seconds, the second piece for 10.
struct EntryDisc : TestDisc {
  EntryDisc() {
    Menu("MAINMENU", {"Gra", "Piosenka", "Film", "Dalej"});
    Menu("Dalej", {"Druga"});
    Entry("Gra", {{"Execute", "%:\\gra.exe"}, {"Parameters", "-a \"b c\""}});
    Entry("Piosenka", {{"PlayAs", "Music"}, {"Parameters", "%:\\Data\\Sound\\song.wav"}});
    Entry("Film", {{"PlayAs", "AVI"}, {"Parameters", "%:\\film.avi"}});
    Entry("Druga", {{"PlayAs", "MUSIC"}, {"Parameters", "%:\\Data\\Sound\\second.wav"}});
    Sound("song.wav", 20);
    Sound("second.wav", 10);
    File("film.avi", "film");
    File("gra.exe", "MZ");
  }
};

/// A user of the shell with a disc, which a test can change before the shell starts. A film is 320 by 240
/// pixels large and plays for 30 seconds.
class Story : public testing::Test {
 protected:
  Story() { user.host.media["film.avi"] = {30, {320, 240}, 0}; }

  /// A few words for what the user sees or hears of the story's subject.
  virtual std::string Look() { return {}; }
  /// What the user does, in the words of `TestShell::Do`, and what is seen after each step.
  void Tell(std::initializer_list<std::pair<const char*, std::string>> steps) {
    for (const auto& [act, seen] : steps) {
      user.Do(act);
      EXPECT_EQ(Look(), seen) << "after: " << act;
    }
  }
  void After(Milliseconds delay, std::function<void()> act) { user.host.After(delay, std::move(act)); }
  /// What is seen after `delay`, whatever the program is doing then.
  void Expect(Milliseconds delay, const std::string& seen) {
    After(delay, [this, delay, seen] { EXPECT_EQ(Look(), seen) << "in " << delay << " ms"; });
  }
  /// How many milliseconds the user's act keeps the program busy.
  double Takes(const std::string& act) {
    const Milliseconds before = user.host.Now();
    user.Do(act);
    return static_cast<double>(user.host.Now() - before);
  }
  MainForm& Main() { return *user.shell.MainForm; }
  bool Hourglass() { return Main().MousePointer == Form::kHourglassPointer; }

  EntryDisc disc;
  TestShell user{disc};
};

}  // namespace orvanta::test
