#include <gtest/gtest.h>

#include <map>
#include <vector>

#include "startup/ControlFiles.h"

namespace orvanta {
namespace {

using Calls = std::vector<std::string>;

/// A system with a registry of components, as far as the control files see it: files are names with versions.
class FakeSystem : public ControlFilesHost {
 public:
  std::string SystemDirectory() override { return "C:\\WINDOWS\\SYSTEM"; }
  bool CanRead(const std::string& path) override { return files.contains(path); }
  std::optional<FileVersion> Version(const std::string& path) override {
    const auto file = files.find(path);
    return file == files.end() ? std::nullopt : file->second;
  }
  void Copy(const std::string& from, const std::string& to) override {
    calls.push_back("copy " + from + " to " + to);
    if (!systemWritable || !files.contains(from)) return;
    files[to] = files[from];
  }
  std::int32_t Start(const std::string& program, const std::string& parameters) override {
    calls.push_back("start " + program + " with " + parameters);
    return startResult;
  }
  void Message(const std::string& text) override { calls.push_back("message " + text); }

  std::map<std::string, std::optional<FileVersion>> files;
  bool systemWritable = true;
  std::int32_t startResult = 33;
  Calls calls;
};

constexpr FileVersion Version(std::uint32_t first, std::uint32_t second, std::uint32_t third = 0,
                              std::uint32_t fourth = 0) {
  return {first << 16 | second, third << 16 | fourth};
}

class ControlFiles : public testing::Test {
 protected:
  const std::string system = "C:\\WINDOWS\\SYSTEM\\";
  const std::string disc = "D:\\SYSTEM\\";
  const std::string registrar = "start D:\\SYSTEM\\REGOCX32.EXE with ";
  const ControlFolders folders{system, disc};
  FakeSystem host;

  void onBoth(const std::string& name, std::optional<FileVersion> installed,
              std::optional<FileVersion> onDisc) {
    host.files[system + name] = installed;
    host.files[disc + name] = onDisc;
  }
  bool newer(std::optional<FileVersion> installed, std::optional<FileVersion> onDisc) {
    onBoth("A.OCX", installed, onDisc);
    return IsNewerOnDisc(host, folders, "A.OCX");
  }
  std::string copied(const std::string& name) { return "copy " + disc + name + " to " + system + name; }
};

TEST_F(ControlFiles, UpToDateFilesAreOnlyRegisteredInTheListsOrder) {
  onBoth("COMCT232.OCX", Version(5, 0), Version(5, 0));
  onBoth("COMCTL32.OCX", Version(6, 0), Version(5, 0));
  CheckControls(host, folders);
  EXPECT_EQ(host.calls, (Calls{registrar + system + "COMCT232.OCX", registrar + system + "COMCTL32.OCX"}));
}

// A second copy of a file that has just arrived would fail while its registrar already has it open.
TEST_F(ControlFiles, AMissingFileIsCopiedOnceAndRegisteredBeforeTheNextIsLookedAt) {
  host.files[disc + "COMCT232.OCX"] = Version(5, 0);
  onBoth("COMCTL32.OCX", Version(4, 70), Version(5, 0));
  CheckControls(host, folders);
  EXPECT_EQ(host.calls, (Calls{copied("COMCT232.OCX"), registrar + system + "COMCT232.OCX",
                               copied("COMCTL32.OCX"), registrar + system + "COMCTL32.OCX"}));
  EXPECT_TRUE(FileExists(host, system + "COMCT232.OCX"));
}

TEST_F(ControlFiles, AFailedCopyIsTriedForTheNewerVersionTooAndThenPassedOver) {
  host.systemWritable = false;
  host.files[disc + "COMCT232.OCX"] = Version(5, 0);
  CheckControls(host, folders);
  EXPECT_EQ(host.calls,
            (Calls{copied("COMCT232.OCX"), copied("COMCT232.OCX"), registrar + system + "COMCT232.OCX",
                   copied("COMCTL32.OCX"), registrar + system + "COMCTL32.OCX"}));
}

TEST_F(ControlFiles, AMissingRegistrarIsToldForEachFile) {
  onBoth("COMCT232.OCX", Version(5, 0), Version(5, 0));
  onBoth("COMCTL32.OCX", Version(5, 0), Version(5, 0));
  host.startResult = 2;
  CheckControls(host, folders);
  EXPECT_EQ(host.calls, (Calls{registrar + system + "COMCT232.OCX", "message Blad",
                               registrar + system + "COMCTL32.OCX", "message Blad"}));
}

TEST_F(ControlFiles, OnlyResultsFrom0To32AreFailures) {
  for (const auto& [result, told] :
       std::map<std::int32_t, bool>{{-1, false}, {0, true}, {32, true}, {33, false}}) {
    host.calls.clear();
    host.startResult = result;
    RegisterControl(host, folders, "X");
    EXPECT_EQ(host.calls.size() == 2, told) << result;
  }
}

TEST_F(ControlFiles, EachOfTheFirstTwoNumbersDecidesByItself) {
  EXPECT_TRUE(newer(Version(4, 70), Version(5, 0)));
  EXPECT_TRUE(newer(Version(5, 0), Version(4, 70)));
  EXPECT_FALSE(newer(Version(4, 70), Version(4, 70, 0, 1)));
  EXPECT_FALSE(newer(Version(4, 70), Version(4, 9)));
  EXPECT_TRUE(newer(std::nullopt, Version(0, 1)));
  EXPECT_FALSE(newer(Version(5, 0), std::nullopt));
  // 0x8000 is -32768, not 32768.
  EXPECT_FALSE(newer(Version(1, 0), Version(0x8000, 0)));
}

TEST_F(ControlFiles, AVersionIsPrintedAsFourSignedNumbers) {
  host.files["a"] = Version(5, 81, 0xFFFF, 4134);
  host.files["none"] = std::nullopt;
  EXPECT_EQ(FileVersionText(host, "a"), "5.81.-1.4134");
  EXPECT_EQ(FileVersionText(host, "none"), "");
  EXPECT_EQ(FileVersionText(host, "missing"), "");
  EXPECT_EQ(GetSysDir(host), system);
}

TEST(VersionPart, TakesTheNumberOrTheLastOneThereIs) {
  EXPECT_EQ(VersionPart("4.70.0.1158", 1), 4);
  EXPECT_EQ(VersionPart("4.70.0.1158", 2), 70);
  EXPECT_EQ(VersionPart(" 4.70.0.1158 ", 4), 1158);
  EXPECT_EQ(VersionPart("4.70", 4), 70);
  EXPECT_EQ(VersionPart("-3.-70", 2), -70);
  EXPECT_EQ(VersionPart("4.", 2), 0);
  EXPECT_EQ(VersionPart("   ", 1), 0);
  EXPECT_EQ(VersionPart("", 2), 0);
  EXPECT_EQ(VersionPart("x.y", 1), 0);
  EXPECT_EQ(VersionPart("99999.-99999999999999999999", 1), 32767);
  EXPECT_EQ(VersionPart("99999.-99999999999999999999", 2), -32768);
}

}  // namespace
}  // namespace orvanta
