#include <gtest/gtest.h>

#include <map>

#include "startup/ControlFiles.h"

namespace orvanta {
namespace {

/// A fake of a system with a registry of components: its files are names with versions.
struct FakeSystem : ControlFilesHost {
  std::string SystemDirectory() override { return "C:"; }
  bool CanRead(const std::string& path) override { return files.contains(path); }
  std::optional<FileVersion> Version(const std::string& path) override {
    return CanRead(path) ? files.at(path) : std::nullopt;
  }
  void Copy(const std::string& from, const std::string& to) override {
    calls += "copy " + to + "; ";
    if (files.contains(from)) files[to] = files[from];
  }
  std::int32_t Start(const std::string& program, const std::string& parameters) override {
    EXPECT_EQ(program, "D:\\REGOCX32.EXE");
    calls += "start " + parameters + "; ";
    return startResult;
  }
  void Message(const std::string& text) override { calls += text + "; "; }

  std::map<std::string, std::optional<FileVersion>> files;
  std::int32_t startResult = 33;
  std::string calls;
};

constexpr FileVersion Version(std::uint32_t first, std::uint32_t second) { return {first << 16 | second, 0}; }

struct ControlFiles : testing::Test {
  const ControlFolders folders{"C:\\", "D:\\"};
  FakeSystem host;

  std::string Checked() {
    host.calls.clear();
    CheckControls(host, folders);
    return host.calls;
  }
};

// If a file were copied twice, the second copy would fail, since its registrar already has it open.
TEST_F(ControlFiles, WhatIsMissingOrOlderIsCopiedOnceAndRegisteredBeforeTheNextIsLookedAt) {
  host.files = {{"D:\\COMCT232.OCX", Version(5, 0)},
                {"D:\\COMCTL32.OCX", Version(5, 0)},
                {"C:\\COMCTL32.OCX", Version(4, 70)}};
  EXPECT_EQ(Checked(),
            "copy C:\\COMCT232.OCX; start C:\\COMCT232.OCX; copy C:\\COMCTL32.OCX; start "
            "C:\\COMCTL32.OCX; ");
  EXPECT_EQ(Checked(), "start C:\\COMCT232.OCX; start C:\\COMCTL32.OCX; ") << "all is up to date";
  for (const auto& [result, told] : {std::pair{-1, false}, {0, true}, {32, true}, {33, false}}) {
    host.startResult = result;
    EXPECT_EQ(Checked().find("OCX; Blad; ") != std::string::npos, told) << result;
  }
  host.files["C:\\COMCTL32.OCX"] = Version(5, 0);
  host.files["D:\\COMCTL32.OCX"] = Version(4, 70);
  EXPECT_NE(Checked().find("copy"), std::string::npos) << "each of the two numbers decides by itself";
  host.files["D:\\COMCTL32.OCX"] = Version(0x8000, 0);
  EXPECT_EQ(Checked().find("copy"), std::string::npos) << "0x8000 is -32768";
}

}  // namespace
}  // namespace orvanta
