#include <gtest/gtest.h>

#include "desktop/ScratchFolder.h"
#include "platform/desktop/ProgramFolder.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

class Folders : public testing::Test {
 protected:
  void SetUp() override {
    scratch.file("installed/orvanta", "program", 0755);
    fs::create_directory(disc);
  }

  const ScratchFolder scratch;
  const fs::path disc = scratch.path / "disc";
  const fs::path installed = scratch.path / "installed";
};

// One build serves every disc: the disc is where the link lies, not where the program does.
TEST_F(Folders, ALinkOnTheDiscMakesItTheProgramsFolder) {
  fs::create_symlink(installed / "orvanta", disc / "start");
  EXPECT_EQ(ProgramFolder((disc / "start").string(), "/", ""), disc);
  EXPECT_EQ(ProgramFolder("./start", disc, ""), disc);
  EXPECT_EQ(ProgramFolder("../disc/./start", installed, ""), disc);
  EXPECT_EQ(ProgramFolder("disc/start", scratch.path, ""), disc);
}

TEST_F(Folders, LinksToFoldersAreKeptUnlessTheWayLeadsBackThroughThem) {
  scratch.file("deep/inside/orvanta", "program", 0755);
  scratch.file("deep/orvanta", "program", 0755);
  fs::create_directory_symlink(scratch.path / "deep/inside", disc / "link");
  EXPECT_EQ(ProgramFolder("link/orvanta", disc, ""), disc / "link");
  EXPECT_TRUE(fs::equivalent(ProgramFolder("link/../orvanta", disc, ""), scratch.path / "deep"));
}

TEST_F(Folders, ABareNameIsTheFirstProgramOnTheSearchPath) {
  scratch.file("data/orvanta", "no program");
  fs::create_directories(scratch.path / "folder/orvanta");
  fs::create_symlink(installed / "orvanta", disc / "orvanta");
  const auto in = [&](const std::string& name) { return (scratch.path / name).string(); };
  const std::string search = in("data") + ":" + in("folder") + ":" + in("disc") + ":" + in("installed");
  EXPECT_EQ(ProgramFolder("orvanta", "/", search), disc);
}

TEST_F(Folders, WhereTheNameLeadsNowhereTheRunningExecutableCounts) {
  const fs::path running = fs::read_symlink("/proc/self/exe").parent_path();
  EXPECT_EQ(ProgramFolder("", disc, ""), running);
  EXPECT_EQ(ProgramFolder("-orvanta", disc, installed.string()), running);
  EXPECT_EQ(ProgramFolder("/no/such/program", disc, ""), running);
  EXPECT_EQ(ProgramFolder("orvanta", installed, ""), running) << "no search path is not the current folder";
}

}  // namespace
}  // namespace orvanta
