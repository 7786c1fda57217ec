#include <gtest/gtest.h>

#include "disctool/CheckedDisc.h"
#include "disctool/Commands.h"

namespace orvanta {
namespace {

// A file that opens and then cannot be read, as on a scratched disc: this one has no byte at its beginning.
TEST(ScratchedDisc, IsToldOfAndNotDiedOf) {
  const test::GoodDisc disc;
  std::filesystem::remove(disc.Data() / "Param.ini");
  std::filesystem::create_symlink("/proc/self/mem", disc.Data() / "Param.ini");
  std::ostringstream report, none;
  test::FirstBytesProbe probe;
  EXPECT_EQ(CheckCommand(disc.Folder(), probe, {}, report), kFaults);
  EXPECT_NE(report.str().find("Param.ini: error: the file cannot be read"), std::string::npos)
      << report.str();
  EXPECT_EQ(TreeCommand(disc.Folder(), false, none, none), kGood);
}

}  // namespace
}  // namespace orvanta
