#include <gtest/gtest.h>

#include <atomic>
#include <sstream>
#include <stdexcept>
#include <thread>

#include "disctool/check/CheckedDisc.h"
#include "disctool/command/InfoCommand.h"
#include "disctool/command/ManyDiscs.h"

namespace orvanta::test {
namespace {

// The first disc takes the longest, and some cannot be read or even throw.
TEST(ManyDiscs, AreReportedInOrderAndABadOneDoesNotStopTheOthers) {
  std::vector<std::string> discs{"slow"};
  std::string expected = "slow\n";
  for (int i = 0; i < 1000; ++i) {
    discs.push_back(i == 500 ? "bad" : i == 600 ? "throws" : "disc " + std::to_string(i));
    expected += i == 500 || i == 600 ? "" : discs.back() + "\n";
  }
  std::atomic<int> others = 0;
  const auto ask = [&](const std::string& disc) -> DiscReport {
    if (disc == "throws") throw std::runtime_error("too large");
    if (disc == "bad") return {{}, "bad: scratched"};
    while (disc == "slow" && others < 200) std::this_thread::yield();
    ++others;
    return {disc + "\n", {}, disc == "disc 7"};
  };
  std::ostringstream out, err;
  EXPECT_EQ(ReportDiscs({.discs = discs, .workers = 4, .out = out, .err = err}, ask), kFaults | kUnread);
  EXPECT_EQ(out.str(), expected);
  EXPECT_EQ(err.str(), "orvanta-disc: bad: scratched\norvanta-disc: throws: too large\n");
  std::ostringstream json;
  EXPECT_EQ(ReportDiscs({.discs = {"bad"}, .json = true, .out = json, .err = err}, ask), kUnread);
  EXPECT_EQ(json.str(), "{\"version\": 1, \"disc\": \"bad\", \"problem\": \"bad: scratched\"}\n");
  EXPECT_EQ(NamesInList("a b\r\n\nc"), (std::vector<std::string>{"a b", "c"}));
  EXPECT_EQ(NamesInList(std::string_view("a\nb\0c\0", 6)), (std::vector<std::string>{"a\nb", "c"}));
}

TEST(ManyDiscs, AreAbandonedAfterAnInterruptionButFinishedOnesAreReported) {
  std::atomic<bool> interrupted = false;
  const auto ask = [&](const std::string& disc) -> DiscReport {
    while (disc == "slow" && !interrupted) std::this_thread::yield();
    return {disc + "\n"};
  };
  std::ostringstream out, err;
  ManyDiscs many{.discs = {"first", "slow", "never"}, .out = out, .err = err};
  many.stop = [&] { return interrupted = out.str() == "first\n"; };
  EXPECT_EQ(ReportDiscs(many, ask), kInterrupted);
  EXPECT_EQ(out.str(), "first\n");
  EXPECT_EQ(err.str(), "orvanta-disc: interrupted after 1 of 3 discs\n");
}

TEST(ProgressBar, ShowsTheRemainingTimeOnceItIsKnownAndMakesRoomForResults) {
  std::ostringstream terminal;
  double now = 0;
  ProgressBar bar(terminal, "Discs", [&now] { return now; });
  bar.Show(1, 4);
  EXPECT_EQ(terminal.str().find("left"), std::string::npos);
  now = 100;
  bar.Show(1, 4);
  EXPECT_NE(terminal.str().find(" 25 %, 5 min left"), std::string::npos) << terminal.str();
  now = 300;
  bar.Show(3, 4);
  EXPECT_NE(terminal.str().find(" 75 %, 100 s left"), std::string::npos);
  bar.Hide();
  EXPECT_TRUE(terminal.str().ends_with("\r\x1B[K"));
}

TEST(Info, ShowsTheFactsOfADiscAndTheKindsOfItsPrograms) {
  GoodDisc disc;
  FirstBytesProbe probe;
  std::string windows3(0x40, '\0');
  windows3.replace(0, 2, "MZ").replace(0x3C, 1, "\x40") += "NE";
  disc.File("setup.exe", windows3);
  disc.File("readme.txt", "x");
  disc.Menu("Programy", {"Gra", "Opis", "Brak"});
  disc.Entry("Opis", {{"Execute", "%:\\README.TXT"}});
  disc.Entry("Brak", {{"Execute", "%:\\none.exe"}});
  const std::string text = InfoReport(FolderTree(disc.Folder()), probe, {}).text;
  for (const char* line :
       {"  title: Płyta próbna\n", "  entries: 2 menus, 3 programs, 1 piece of music, 1 film\n",
        "Gra: D:\\setup.exe (16-bit Windows program, runs with wine, needs wine, which is not",
        "Opis: D:\\README.TXT (document)\n", "Brak: D:\\none.exe (missing)\n",
        "  findings: 1 error, 5 warnings\n"})
    EXPECT_NE(text.find(line), std::string::npos) << line << text;
  const std::string json = InfoReport(FolderTree(disc.Folder()), probe, {.json = true}).text;
  EXPECT_NE(json.find(R"({"entry": "Gra", "file": "D:\\setup.exe", "kind": "windows-16", "runner": "wine")"),
            std::string::npos)
      << json;
  EXPECT_NE(InfoReport(FolderTree(disc.Data()), probe, {}).problem, "");
}

}  // namespace
}  // namespace orvanta::test
