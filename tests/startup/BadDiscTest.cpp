// Discs with faults, one at a time: the program starts, is clicked through and ends.

#include <gtest/gtest.h>

#include <algorithm>

#include "support/TestShell.h"

namespace orvanta::test {
namespace {

namespace fs = std::filesystem;

/// A disc with every kind of entry and a list that needs the slider.
class BadDisc : public testing::Test {
 protected:
  BadDisc() {
    disc.Menu("MAINMENU", {"Gry", "Walc", "Film"});
    disc.Menu("Gry", Names(14, "Szachy"));
    disc.Entry("Szachy",
               {{"Execute", "%:\\szachy.exe"}, {"Parameters", "-x"}, {"Note", "Gra"}, {"System", "PC"}});
    for (const char* shot : {"Shot2", "Shot3", "Shot4"}) disc.Set("Szachy", shot, "shot.gif");
    disc.Entry("Walc", {{"PlayAs", "MUSIC"}, {"Parameters", "%:\\Data\\Sound\\walc.wav"}});
    disc.Entry("Film", {{"PlayAs", "FILM"}, {"Parameters", "%:\\film.avi"}});
    disc.Sound("walc.wav", 3);
    disc.File("szachy.exe", "x");
    disc.File("film.avi", "x");
    disc.Set("MENUITEM", "Line2Sleep", "0");
  }

  using Names = std::vector<std::string>;

  /// Clicks with the left and the right button and drags, wherever the disc has put the control.
  static void Fiddle(TestShell& user, const Control& control) {
    user.host.MoveMouse(user.MiddleOf(control));
    user.Run(60);
    user.host.Press();
    user.Run(1);
    user.host.MoveMouse(user.host.CursorPos() + Point{3, 90});
    user.Run(60);
    user.host.Release();
    user.host.Press(kRightButton);
    user.host.Release(kRightButton);
    user.Run(60);
  }

  /// Opens every view and uses what stands in it, then leaves.
  void Use(const std::function<void(TestShell&)>& check = {}) {
    TestShell user(disc);
    user.host.deadline = 20 * 1000 * 1000;
    user.host.media["film.avi"] = {.seconds = 2, .film = {320, 240}};
    user.Start();
    // A voice of the disc may be long, but it ends.
    if (!user.shell.MainForm.Loaded()) user.Run(60 * 1000);
    ASSERT_NE(user.shell.MainForm.Loaded(), nullptr);
    user.host.After(5, [&] { Hurry(user); });
    closed_ = 0;
    for (const int entry : {0, 1, 2}) {
      Open(user, entry);
      if (entry == 0) {
        Fiddle(user, Main(user).imgSuwak);
        Open(user, 3);
        Fiddle(user, Main(user).imgSSuwak);
        user.Click(Main(user).picShot(0));
        user.Run(200);
      }
      for (const int button : {4, 5, 6, 9, 3, 3, 7}) Press(user, button);
      Fiddle(user, Main(user).imgSuwak);
      Main(user).imgUp_Click();
    }
    for (const int button : {1, 2, 8}) Press(user, button);
    user.host.Restore(Main(user));
    user.Run(100);
    if (check) check(user);
    user.host.RequestClose(Main(user));
    user.Run(10000);
    EXPECT_TRUE(user.ended);
  }

 private:
  static MainForm& Main(TestShell& user) { return user.Main(); }

  static void Open(TestShell& user, int label) {
    MainForm& main = Main(user);
    if (label > main.lblPos1.UBound()) return;
    user.host.MoveMouse(user.MiddleOf(main.lblPos1(label)));
    user.Run(60);
    main.lblPos1_Click(static_cast<std::int16_t>(label));
    user.Run(1200);
  }

  /// The handler itself, since a button without art or place cannot be hit. Modal windows are clicked away.
  static void Press(TestShell& user, int button) {
    Main(user).ButtonM_Click(static_cast<std::int16_t>(button));
    user.Run(200);
  }

  /// What happens every so often: a modal window is closed, a started program takes the foreground and gives
  /// it back.
  void Hurry(TestShell& user) {
    if (Main(user).MousePointer == Form::kHourglassPointer) {
      user.host.ActivateOther();
    } else if (!user.host.active) {
      user.host.Activate(Main(user));
    }
    for (Form* form : {static_cast<Form*>(user.shell.frmShowPic.Loaded()),
                       static_cast<Form*>(user.shell.frmKino.Loaded())}) {
      if (!form || !form->Visible) continue;
      user.host.RequestClose(*form);
      ++closed_;
    }
    user.host.After(500, [this, &user] { Hurry(user); });
  }

 protected:
  TestDisc disc;
  int closed_ = 0;  // modal windows
};

TEST_F(BadDisc, IsUsedInEveryWayBeforeAnythingIsWrongWithIt) {
  Use([&](TestShell& user) {
    EXPECT_EQ(closed_, 3) << "the viewer of pictures, and the cinema for the music and the film";
    EXPECT_EQ(user.host.started.size(), 1U);
    for (const char* file : {"walc.wav", "film.avi"}) {
      const auto& calls = user.host.playerCalls;
      EXPECT_TRUE(std::any_of(calls.begin(), calls.end(), [&](auto& c) {
        return c.file == file && c.call == "run";
      })) << file;
    }
  });
}

TEST_F(BadDisc, LacksAnyOneKey) {
  for (const auto& [section, key] : disc.Keys()) {
    SCOPED_TRACE(section + "/" + key);
    const std::string value = disc.Value(section, key);
    disc.Remove(section, key);
    Use();
    disc.Set(section, key, value);
    if (HasFailure()) return;
  }
}

TEST_F(BadDisc, HasGarbageInAnyOneKey) {
  for (const auto& [section, key] : disc.Keys()) {
    const std::string value = disc.Value(section, key);
    // What is no number at all reads as that of a missing key.
    const bool number = !value.empty() && value.find_first_not_of("0123456789") == value.npos;
    for (const std::string& garbage :
         number ? Names{"-99999999999", "99999999999"} : Names{"%:\\..\\żółw*?<>|\\"}) {
      SCOPED_TRACE(section + "/" + key + "=" + garbage);
      disc.Set(section, key, garbage);
      Use();
      if (HasFailure()) return;
    }
    disc.Set(section, key, value);
  }
}

TEST_F(BadDisc, HasAnyOneFileCutOffOrGone) {
  Names files;
  for (const auto& entry : fs::recursive_directory_iterator(disc.Data())) {
    const std::string name = fs::relative(entry.path(), disc.Folder()).string();
    if (entry.is_regular_file() && !name.ends_with("1.gif") && !name.ends_with("2.gif"))
      files.push_back(name);
  }
  EXPECT_GT(files.size(), 30U);
  for (const std::string& name : files) {
    SCOPED_TRACE(name);
    const fs::path file = disc.Folder() / name, kept = disc.Folder() / "kept";
    fs::rename(file, kept);
    disc.File(name, "GIF89a\x20");
    Use();
    fs::remove(file);
    Use();
    fs::rename(kept, file);
    if (HasFailure()) return;
  }
}

TEST_F(BadDisc, HasNoSettingsThatCanBeRead) {
  const fs::path menu = disc.Data() / "Menu.ini", parameters = disc.Data() / "Param.ini";
  fs::copy_file(menu, parameters);
  fs::remove(menu);
  fs::create_directory(menu);
  Use();
  fs::remove(parameters);
  Use();
  fs::remove(menu);
  std::error_code error;
  fs::create_symlink("Menu.ini", menu, error);
  Use();
  fs::remove(menu);
  fs::remove_all(disc.Data());
  Use();
  disc.File("Data/Menu.ini", std::string(100000, '\0'));
  Use();
  fs::permissions(menu, fs::perms::none);
  Use();
}

}  // namespace
}  // namespace orvanta::test
