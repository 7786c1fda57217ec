// The ways to start the program, and the start without a disc.

#include "desktop/support/Programs.h"
#include "desktop/support/ShellOnScreen.h"

namespace orvanta::test {
namespace {

namespace fs = std::filesystem;

class StartWays : public ShellOnScreen {
 protected:
  /// Expects this disc's start screen of a program that is started in a folder.
  void ExpectStart(const fs::path& folder, const std::string& command, const std::string& path = "/bin") {
    SCOPED_TRACE(command + " in " + folder.string());
    program_.emplace(std::vector<std::string>{"env", "-C", folder, "PATH=" + path, command});
    EXPECT_TRUE(Soon([&] { return screen_.Pixel({500, 300}) == kStartPicture; }));
    program_.reset();
    EXPECT_TRUE(Soon([&] { return screen_.Pixel({500, 300}) == kBehind; }));
  }
};

// Fault: a program that looks for its disc where its file really lies, or in the current folder.
TEST_F(StartWays, TheDiscIsTheFolderOfThePathThatWasStarted) {
  const fs::path disc = disc_.Folder(), file = disc / "orvanta", other = disc / "inny";
  ExpectStart("/", file);
  ExpectStart(disc / "Data", "../orvanta");
  // A folder stands before it on the way.
  fs::create_directories(other / "orvanta");
  ExpectStart("/", "orvanta", other.string() + ":" + disc.string());
  fs::remove(file);
  fs::copy_file(ShellProgram(), other / "kopia");
  fs::create_hard_link(other / "kopia", file);
  ExpectStart(disc, "./orvanta");
}

// Fault: an empty window that nobody can close.
TEST_F(StartWays, WithoutADiscAMessageSaysSoAndTheStatusIs1) {
  fs::remove_all(disc_.Data());
  for (const bool byKey : {true, false}) {
    Launch();
    ASSERT_TRUE(Soon([&] { return Windows().size() == 1 && screen_.Active() == Windows().front(); }));
    EXPECT_EQ(screen_.TitleOf(screen_.Active()), "Orvanta Shell");
    EXPECT_EQ(Program({disc_.Folder() / "orvanta"}).Ended(), 0) << "a second start says nothing";
    EXPECT_TRUE(program_->Runs());
    Screen::Hand(byKey ? "key Return" : "key alt+F4");
    EXPECT_EQ(program_->Ended(), 1);
  }
}

// Fault: a core dump where there is no display, or none that answers.
TEST_F(StartWays, WithoutADisplayOneLineSaysSoAndTheStatusIs1) {
  for (const char* display : {"DISPLAY=", "DISPLAY=:32767"}) {
    Program shell({"env", "-u", "WAYLAND_DISPLAY", display, disc_.Folder() / "orvanta"});
    EXPECT_EQ(shell.Ended(), 1);
    EXPECT_EQ(shell.Printed(), "orvanta: nie ma ekranu, na którym można otworzyć okno\n");
  }
}

}  // namespace
}  // namespace orvanta::test
