// The ways to start the program, and the start without a disc.

#include <sys/stat.h>

#include "desktop/ScratchFolder.h"
#include "desktop/ShellOnScreen.h"

namespace orvanta::test {
namespace {

namespace fs = std::filesystem;

class StartWays : public ShellOnScreen {
 protected:
  void SetUp() override { fs::remove(disc_.Folder() / "orvanta"); }

  /// Starts the program and expects this disc's start screen.
  void ExpectStart(const std::string& command, const fs::path& folder,
                   const std::vector<std::string>& environment = {}) {
    SCOPED_TRACE(command + " in " + folder.string());
    program_.emplace(command, folder, environment);
    EXPECT_TRUE(Soon([&] { return screen_.Pixel({500, 300}) == kStart; }));
    EXPECT_EQ(program_->Printed(), "");
    program_.reset();
    EXPECT_TRUE(Soon([&] { return screen_.Pixel({500, 300}) == kBehind; }));
  }
};

// Fault: a program that looks for its disc where its file really lies, or in the current folder.
TEST_F(StartWays, TheDiscIsTheFolderOfThePathThatWasStarted) {
  const fs::path disc = disc_.Folder();
  const std::string name = disc / "orvanta";
  fs::create_symlink(ORVANTA_PROGRAM, name);
  ExpectStart(name, "/");
  ExpectStart("./orvanta", disc);
  ExpectStart("../orvanta", disc / "Data");
  ExpectStart("orvanta", "/", {"PATH=" + disc.string() + ":/usr/bin"});
  fs::remove(name);

  fs::copy_file(ORVANTA_PROGRAM, name);
  ExpectStart(name, "/");
  fs::create_directory(disc / "inny");
  const std::string hard = disc / "inny" / "orvanta";
  fs::rename(name, hard);
  fs::create_hard_link(hard, name);
  ExpectStart("./orvanta", disc);
}

// Fault: an empty window that nobody can close.
TEST_F(StartWays, WithoutADiscAMessageSaysSoAndTheStatusIs1) {
  const ScratchFolder empty;
  fs::create_symlink(ORVANTA_PROGRAM, empty.path / "orvanta");
  program_.emplace((empty.path / "orvanta").string(), "/");
  ASSERT_TRUE(Soon([&] { return Windows().size() == 1 && screen_.Active() == Windows().front(); }));
  const WindowId box = Windows().front();
  EXPECT_EQ(screen_.TitleOf(box), "Orvanta Shell");
  const Size size{screen_.PlaceOf(box).width, screen_.PlaceOf(box).height};
  EXPECT_GT(size.width, 200);
  EXPECT_TRUE(program_->Runs());
  screen_.PressReturn();
  EXPECT_EQ(program_->Ended(), 1);

  program_.emplace((empty.path / "orvanta").string(), "/");
  ASSERT_TRUE(Soon([&] { return Windows().size() == 1; }));
  screen_.Close(Windows().front());
  EXPECT_EQ(program_->Ended(), 1);
}

}  // namespace
}  // namespace orvanta::test
