// Starting an entry's program, and what the user can do until its window appears.

#include "launcher/ExecErrorText.h"
#include "support/Story.h"

namespace orvanta::test {
namespace {

struct Launch : Story {
  /// The view, how many programs have started, and whether the shell waits and is active.
  std::string Look() override {
    return (Main().MenuLevel == 0 ? "list, " : "entry, ") + std::to_string(user.host.started.size()) +
           " started" + (Hourglass() ? ", waits" : "") +
           (user.shell.modActiveWindow.AppActive ? ", active" : "");
  }
};

TEST_F(Launch, HandsOverFileAndParametersAndWaitsForTheProgramsWindow) {
  user.Do("start, choose 0, after 5000 leave");
  Expect(4900, "entry, 1 started, waits, active");
  Expect(5000 + 3 * 50, "entry, 1 started, waits");
  EXPECT_LE(Takes("click Start"), 5000 + 1000 + 3 * 50) << "the music has faded by then";
  EXPECT_EQ(Look(), "entry, 1 started");
  EXPECT_EQ(user.host.started[0].file, disc.Folder() / "gra.exe");
  EXPECT_EQ(user.host.started[0].parameters, "-a \"b c\"");
  EXPECT_TRUE(user.host.messages.empty());
}

TEST_F(Launch, FindsTheFilesOfTheDiscThatParametersName) {
  disc.File("Docs/Czytaj to.txt", "Witaj!");
  disc.Set("Gra", "Parameters",
           "%:\\docs\\..\\DOCS\\none.txt \"D:\\DOCS\\czytaj TO.txt\" /D:\\docs C:\\docs docs d:");
  user.Do("start, choose 0, after 3000 leave, click Start");
  std::map<std::string, std::filesystem::path> named;
  for (const auto& [text, file] : user.host.started.at(0).arguments) named[text] = file;
  EXPECT_EQ(named, (std::map<std::string, std::filesystem::path>{
                       {"D:\\docs\\..\\DOCS\\none.txt", ""},
                       {"D:\\DOCS\\czytaj TO.txt", disc.Folder() / "Docs/Czytaj to.txt"},
                       {"/D:\\docs", ""},
                       {"C:\\docs", ""},
                       {"docs", ""},
                       {"d:", disc.Folder()}}));
}

TEST_F(Launch, HandsOverWhatExistsAndReportsEachFailureAtOnce) {
  using Status = StartRequest::Status;
  user.Do("start, choose 0");
  user.host.startResult = 32;
  for (const auto& [file, status] : {std::pair{"%:\\gra.exe", Status::Found},
                                     {"%:\\keine.exe", Status::FileMissing},
                                     {"%:\\nie ma\\gra.exe", Status::FolderMissing}}) {
    disc.Set("Gra", "Execute", file);
    EXPECT_LT(Takes("click Start"), 100);
    EXPECT_EQ(user.host.started.back().status, status) << file;
    EXPECT_EQ(user.host.messages.back().text, ExecErrorText(32).value());
    EXPECT_EQ(user.host.messages.back().title, "Orvanta Shell");
  }
  user.host.startResult = -1;
  Tell({{"click Start", "entry, 4 started, active"}});
  EXPECT_EQ(user.host.messages.size(), 3U) << "this one is not reported";
}

// Fault: an hourglass that stands for ever after Wine has given up.
TEST_F(Launch, TellsOfAStartThatFailsWhileItsWindowIsAwaited) {
  user.Do("start, choose 0");
  user.host.startFailsAt = user.host.Now() + 2000;
  EXPECT_LE(Takes("click Start"), 2000 + 50);
  EXPECT_EQ(user.host.messages.back().text, ExecErrorText(11).value());
  EXPECT_FALSE(Hourglass());
}

TEST_F(Launch, LetsTheUserStartGoBackMinimiseAndLeaveWhileItWaits) {
  user.Do("start, choose 0");
  Tell({{"after 500 click Start, after 1000 click imgBack, after 2000 leave, click Start", "list, 2 started"},
        {"return, choose 0, after 1000 click Minimise, click Start", "entry, 3 started"},
        {"restore", "entry, 3 started, active"}});
  // During the second in which the music fades, the tick that looks for the active window stands still.
  Tell({{"after 600 click Start, after 5000 leave, click SoundOn, run 6000", "entry, 4 started"}});
  EXPECT_TRUE(Main().Timer1.Enabled());
  user.Do("return, after 300 click Start, after 600 click Exit, click Start");
  EXPECT_TRUE(user.ended);
  EXPECT_EQ(user.Calls("exit1.wav"), "open");
}

TEST(ExecErrorText, NamesEachFailureAndItsNumberAndSaysNothingOfSuccess) {
  for (int code = 0; code <= 32; ++code)
    EXPECT_TRUE(ExecErrorText(code).value().starts_with("UWAGA: wystąpił błąd numer ")) << code;
  EXPECT_EQ(ExecErrorText(31),
            "UWAGA: wystąpił błąd numer -2147220425\r\n\r\n"
            "Podany typ pliku nie posiada przyporządkowanej aplikacji.");
  EXPECT_TRUE(ExecErrorText(25)->ends_with("\nPrzy próbie otwarcia pliku wystąpił nieznany błąd."));
  for (const int code : {-1, 33}) EXPECT_FALSE(ExecErrorText(code).has_value()) << code;
}

TEST_F(Launch, TheNextClickAfterAMessageBoxCounts) {
  user.host.startResult = 2;
  user.host.messageHold = 400;
  user.Do("start, choose 0, after 700 click imgUp, click Start, run 100");
  EXPECT_EQ(Main().MenuLevel, 0) << "although the music was fading while the box was open";
}

}  // namespace
}  // namespace orvanta::test
