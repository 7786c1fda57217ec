#include <fcntl.h>
#include <gtest/gtest.h>

#include "desktop/ProgramImages.h"
#include "desktop/ScratchFolder.h"
#include "platform/desktop/ProgramKind.h"

namespace orvanta {
namespace {

class Kinds : public testing::Test {
 protected:
  ProgramKind kind(const std::string& name, const std::string& content, bool executable = false) const {
    const auto path = scratch.file(name, content);
    return KindOfProgram(Descriptor(open(path.c_str(), O_RDONLY | O_CLOEXEC)), path, executable);
  }

  const ScratchFolder scratch;
};

TEST_F(Kinds, NativeProgramsNeedTheirMarkAndTheBit) {
  EXPECT_EQ(kind("game",
                 "\x7f"
                 "ELF...",
                 true),
            ProgramKind::Native);
  EXPECT_EQ(kind("game",
                 "\x7f"
                 "ELF...",
                 false),
            ProgramKind::Document);
  EXPECT_EQ(kind("setup.bat", "#!/bin/sh\n", true), ProgramKind::Native);
  EXPECT_EQ(kind("script", "#!/bin/sh\n", false), ProgramKind::Document);
  // Discs' file systems often give the bit to every file.
  EXPECT_EQ(kind("readme.txt", "Witaj!", true), ProgramKind::Document);
  EXPECT_EQ(kind("setup.exe", WindowsProgram(), true), ProgramKind::Windows);
  EXPECT_EQ(kind("empty.txt", "", true), ProgramKind::Document);
}

TEST_F(Kinds, WindowsAndDosProgramsAreToldByTheirHeaders) {
  EXPECT_EQ(kind("a.scr", WindowsProgram()), ProgramKind::Windows);
  EXPECT_EQ(kind("a.exe", ProgramBehindStub("NE")), ProgramKind::Windows);
  EXPECT_EQ(kind("a.exe", ProgramBehindStub("LE")), ProgramKind::Dos);
  EXPECT_EQ(kind("a.exe", DosProgram()), ProgramKind::Dos);
  EXPECT_EQ(kind("a.exe", DosProgram(512)), ProgramKind::Dos) << "a last page that is full counts as 0 bytes";
  EXPECT_EQ(kind("a.exe", DosProgram() + "data behind the image"), ProgramKind::Dos);
  EXPECT_EQ(kind("a.com", WindowsProgram()), ProgramKind::Windows);
}

TEST_F(Kinds, NamesDecideWhereTheContentHasNoMark) {
  EXPECT_EQ(kind("GRA.COM", "\xe9 code"), ProgramKind::Dos);
  EXPECT_EQ(kind("Start.Bat", "@echo off"), ProgramKind::WindowsFile);
  EXPECT_EQ(kind("setup.msi", "\xd0\xcf\x11\xe0"), ProgramKind::WindowsFile);
  EXPECT_EQ(kind("com", "text"), ProgramKind::Document);
}

TEST_F(Kinds, ProgramsCutShortOrWithoutAHeaderAreBroken) {
  EXPECT_EQ(kind("a.exe", ""), ProgramKind::Broken);
  EXPECT_EQ(kind("a.exe", "MZ"), ProgramKind::Broken);
  EXPECT_EQ(kind("a.exe", "no program at all, only its name"), ProgramKind::Broken);
  EXPECT_EQ(kind("a.com", ""), ProgramKind::Broken);
  EXPECT_EQ(kind("a", "MZ" + std::string(500, '\0')), ProgramKind::Broken);
  EXPECT_EQ(kind("a", "MZ" + std::string(5000, '\xff')), ProgramKind::Broken);
  EXPECT_EQ(kind("a.exe", DosProgram().substr(0, 199)), ProgramKind::Broken);
  EXPECT_EQ(kind("a.exe", WindowsProgram().substr(0, 0x80 + 23)), ProgramKind::Broken);
  EXPECT_EQ(kind("a.exe", ProgramBehindStub("??")), ProgramKind::Broken);
  std::string headless = DosProgram();
  Put(headless, 8, 0, 2);
  EXPECT_EQ(kind("a.exe", headless), ProgramKind::Broken);
}

// PKLITE and its like write a notice over the bytes where the place of a new header would stand.
TEST_F(Kinds, APackedDosProgramIsNotBroken) {
  std::string packed = DosProgram();
  packed.replace(0x1E, 40, "PKLITE Copr. 1990-91 PKWARE Inc. All Rig");
  Put(packed, 0x18, 0x52, 2);
  EXPECT_EQ(kind("a.exe", packed), ProgramKind::Dos);
}

}  // namespace
}  // namespace orvanta
