// What a started program inherits from the shell: nothing.

#include <gtest/gtest.h>
#include <sys/file.h>

#include <cerrno>

#include "desktop/support/Processes.h"
#include "platform/desktop/start/ProcessStart.h"

namespace orvanta::test {

namespace fs = std::filesystem;

struct Started : testing::Test {
  /// Starts a script that writes its report with `body`, and waits for the end of the report.
  std::string ReportOf(const std::string& body, std::vector<std::string> arguments = {}) const {
    const std::string report = scratch.Path() / "report";
    fs::remove(report);
    arguments.insert(arguments.begin(),
                     scratch.Script("p", "{ " + body + "\necho end\n} > '" + report + "'"));
    EXPECT_EQ(StartProcess(arguments, CurrentEnvironment()).error, 0);
    EXPECT_TRUE(Soon([&] { return ContentOf(report).ends_with("end\n"); })) << "the program never reported";
    return ContentOf(report);
  }
  const ScratchFolder scratch;
};

// Faults: a lock or a file of the disc that a game keeps open for the rest of the day; a child that nobody
// waits for, or that ends with the shell's terminal; a shell that waits for its program.
TEST_F(Started, ProgramsAreIndependent) {
  EXPECT_EQ(
      ReportOf("printf '<%s>' \"$@\"", {"zażółć gęślą", "", "a\"b", "$(echo x) * ;", "--", "D:\\gry\\"}),
      "<zażółć gęślą><><a\"b><$(echo x) * ;><--><D:\\gry\\>end\n");
  const int leaking = open(scratch.File("held", "").c_str(), O_RDWR);
  ASSERT_EQ(flock(leaking, LOCK_EX), 0);
  const std::string open = ReportOf("/bin/ls -l /proc/$$/fd");
  EXPECT_EQ(open.find("held"), open.npos) << open;
  for (const char* standard : {"0 -> /dev/null\n", "2 -> /dev/null\n"})
    EXPECT_NE(open.find(standard), open.npos) << open;
  const std::string self =
      ReportOf("pwd; read -r l < /proc/$$/stat; set -- ${l##*) }; [ $3 = $$ ] && [ $4 = $$ ] && [ $2 != " +
               std::to_string(getpid()) + " ] && echo alone");
  EXPECT_EQ(self, fs::current_path().string() + "\nalone\nend\n")
      << "it should be alone in its session and group";
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_EQ(StartProcess({"/bin/sleep", "5"}, {}).error, 0);
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(4)) << "the start should not wait";
  EXPECT_TRUE(waitpid(-1, nullptr, WNOHANG) == -1 && errno == ECHILD) << "no child should be left";
}

// Fault: a lock of the shell that lives on in whoever watches its program, so that it cannot start again.
TEST_F(Started, WhoWatchesAProgramHasNothingOfTheShellOpen) {
  const fs::path lock = scratch.File("lock", "");
  Descriptor held(open(lock.c_str(), O_RDWR));
  ASSERT_EQ(flock(held.get(), LOCK_EX), 0);
  const ProcessStart started =
      StartProcess({"/bin/sleep", "5"}, CurrentEnvironment(), {.time = std::chrono::seconds(5)});
  EXPECT_EQ(started.error, 0);
  held.reset();
  const Descriptor again(open(lock.c_str(), O_RDWR));
  EXPECT_TRUE(Soon([&] { return flock(again.get(), LOCK_EX | LOCK_NB) == 0; }, std::chrono::seconds(3)));
}

TEST_F(Started, SignalsHaveDefaultHandlersAndNoneIsBlocked) {
  // Not a shell script, since shells reset their signals themselves.
  const fs::path report = scratch.Path() / "status";
  EXPECT_EQ(InAnotherProcess([&] {
              for (const int number : {SIGPIPE, SIGINT}) signal(number, SIG_IGN);
              sigset_t some;
              sigemptyset(&some);
              for (const int number : {SIGTERM, SIGRTMAX}) sigaddset(&some, number);
              sigprocmask(SIG_BLOCK, &some, nullptr);
              return StartProcess({"/bin/cp", "/proc/self/status", report}, {}).error;
            }),
            0);
  EXPECT_TRUE(Soon([&] { return ContentOf(report).find("ctxt") != std::string::npos; }));
  EXPECT_NE(ContentOf(report).find("SigBlk:\t0000000000000000\nSigIgn:\t0000000000000000\n"),
            std::string::npos)
      << ContentOf(report);
}

}  // namespace orvanta::test
