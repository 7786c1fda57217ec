// The ways to start the program, and the start without a disc.

#include "desktop/ShellOnScreen.h"
#include "platform/desktop/ProgramFolder.h"

namespace orvanta::test {
namespace {

namespace fs = std::filesystem;

class StartWays : public ShellOnScreen {
 protected:
  /// Starts the program and expects this disc's start screen.
  void ExpectStart(const std::string& command, const fs::path& folder,
                   const std::vector<std::string>& environment = {}) {
    SCOPED_TRACE(command + " in " + folder.string());
    program_.emplace(std::vector{command}, folder, environment);
    EXPECT_TRUE(Soon([&] { return screen_.Pixel({500, 300}) == kStartPicture; }));
    EXPECT_EQ(program_->Printed(), "");
    program_.reset();
    EXPECT_TRUE(Soon([&] { return screen_.Pixel({500, 300}) == kBehind; }));
  }
};

// Fault: a program that looks for its disc where its file really lies, or in the current folder.
TEST_F(StartWays, TheDiscIsTheFolderOfThePathThatWasStarted) {
  const fs::path disc = disc_.Folder(), file = disc / "orvanta", other = disc / "inny";
  ExpectStart(file, "/");
  ExpectStart("./orvanta", disc);
  ExpectStart("../orvanta", disc / "Data");
  // A folder and a file that cannot be run stand before it on the way.
  fs::create_directories(other / "orvanta");
  disc_.File("plik/orvanta", "no program");
  const std::string search = other.string() + ":" + (disc / "plik").string() + ":" + disc.string();
  ExpectStart("orvanta", "/", {"PATH=" + search + ":/usr/bin"});
  fs::remove(file);
  fs::copy_file(ORVANTA_PROGRAM, other / "kopia");
  fs::create_hard_link(other / "kopia", file);
  ExpectStart("./orvanta", disc);

  fs::create_directory_symlink(other / "orvanta", disc / "skrot");
  disc_.File("inny/orvanta/p", "");
  EXPECT_EQ(ProgramFolder("skrot/p", disc, ""), disc / "skrot");
  const fs::path running = fs::read_symlink("/proc/self/exe").parent_path();
  for (const char* name : {"", "-orvanta", "/no/such/program", "orvanta"})
    EXPECT_EQ(ProgramFolder(name, disc, ""), running) << "no search path is not the current folder: " << name;
}

// Fault: an empty window that nobody can close.
TEST_F(StartWays, WithoutADiscAMessageSaysSoAndTheStatusIs1) {
  const TemporaryFolder empty;
  fs::create_symlink(ORVANTA_PROGRAM, empty.Path() / "orvanta");
  for (const bool byKey : {true, false}) {
    program_.emplace(std::vector<std::string>{empty.Path() / "orvanta"});
    ASSERT_TRUE(Soon([&] { return Windows().size() == 1 && screen_.Active() == Windows().front(); }));
    const WindowId box = screen_.Active();
    EXPECT_EQ(screen_.TitleOf(box), "Orvanta Shell");
    EXPECT_GT(screen_.PlaceOf(box).width, 200);
    EXPECT_TRUE(program_->Runs());
    byKey ? screen_.PressReturn() : screen_.Close(box);
    EXPECT_EQ(program_->Ended(), 1);
  }
}

}  // namespace
}  // namespace orvanta::test
