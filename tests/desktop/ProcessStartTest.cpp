// What a started program inherits of the shell: nothing.

#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>

#include <array>
#include <cerrno>

#include "desktop/Processes.h"
#include "platform/desktop/ProcessStart.h"

namespace orvanta::test {

namespace fs = std::filesystem;

struct Started : testing::Test {
  /// Starts a script that writes its report by `body`, and waits for the end of the report.
  std::string ReportOf(const std::string& body, std::vector<std::string> arguments = {}) const {
    const std::string report = scratch.Path() / "report";
    fs::remove(report);
    arguments.insert(arguments.begin(),
                     scratch.Script("p", "{ " + body + "\necho end\n} > '" + report + "'"));
    EXPECT_EQ(StartProcess(arguments, CurrentEnvironment()), 0);
    EXPECT_TRUE(Soon([&] { return ContentOf(report).ends_with("end\n"); })) << "the program never reported";
    return ContentOf(report);
  }
  const ScratchFolder scratch;
};

// Faults: a lock or a disc's file that a game holds for the rest of the day; a child that nobody waits for,
// or that dies with the shell's terminal; a shell that waits for its program.
TEST_F(Started, ProgramsAreIndependent) {
  EXPECT_EQ(
      ReportOf("printf '<%s>' \"$@\"", {"zażółć gęślą", "", "a\"b", "$(echo x) * ;", "--", "D:\\gry\\"}),
      "<zażółć gęślą><><a\"b><$(echo x) * ;><--><D:\\gry\\>end\n");
  const int leaking = open(scratch.File("held", "").c_str(), O_RDWR);
  ASSERT_EQ(flock(leaking, LOCK_EX), 0);
  EXPECT_EQ(fcntl(leaking, F_DUPFD, 700), 700);
  const std::string open = ReportOf("/bin/ls -l /proc/$$/fd");
  EXPECT_EQ(open.find("held"), open.npos) << open;
  for (const char* standard : {"0 -> /dev/null\n", "2 -> /dev/null\n"})
    EXPECT_NE(open.find(standard), open.npos) << open;
  EXPECT_NE(fcntl(leaking, F_GETFD), -1) << "the shell has lost its own file";
  const std::string self =
      ReportOf("read -r l < /proc/$$/stat; set -- ${l##*) }; [ $3 = $$ ] && [ $4 = $$ ] && [ $2 != " +
               std::to_string(getpid()) + " ] && echo alone");
  EXPECT_EQ(self, "alone\nend\n") << "not the leader of its own session and group, or a child";
  EXPECT_TRUE(waitpid(-1, nullptr, WNOHANG) == -1 && errno == ECHILD) << "a child is left over";
  EXPECT_EQ(InAnotherProcess([&] {
              fs::current_path(scratch.Path());
              return StartProcess({scratch.Script("late", "/bin/sleep 0.5; pwd > here")},
                                  CurrentEnvironment());
            }),
            0);
  EXPECT_FALSE(fs::exists(scratch.Path() / "here")) << "the start has waited for the program";
  EXPECT_TRUE(Soon([&] { return ContentOf(scratch.Path() / "here") == scratch.Path().string() + "\n"; }));
}

// `orvanta | tee log` must come back when the shell ends, whatever it has started, and a shell with no output
// at all can start programs too.
TEST_F(Started, TheShellsOutputEndsWithTheShell) {
  std::array<int, 2> output{};
  ASSERT_EQ(pipe(output.data()), 0);
  InAnotherProcess([&] {
    for (const int standard : {STDOUT_FILENO, STDERR_FILENO}) dup2(output[1], standard);
    return StartProcess({"/bin/sleep", "3"}, CurrentEnvironment());
  });
  close(output[1]);
  const auto before = std::chrono::steady_clock::now();
  char byte = 0;
  EXPECT_EQ(read(output[0], &byte, 1), 0);
  EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(2));
  EXPECT_EQ(InAnotherProcess([&] {
              for (const int standard : {0, 1, 2}) close(standard);
              return StartProcess(
                  {scratch.Script("p", "echo here > '" + (scratch.Path() / "told").string() + "'")}, {});
            }),
            0);
  EXPECT_TRUE(Soon([&] { return ContentOf(scratch.Path() / "told") == "here\n"; }));
}

TEST_F(Started, SignalsAreDefaultAndNoneIsHeldBack) {
  // No shell script here: shells tidy up their signals themselves.
  const fs::path report = scratch.Path() / "status";
  EXPECT_EQ(InAnotherProcess([&] {
              for (const int number : {SIGPIPE, SIGINT}) signal(number, SIG_IGN);
              sigset_t some, now;
              sigemptyset(&some);
              for (const int number : {SIGTERM, SIGRTMAX}) sigaddset(&some, number);
              sigprocmask(SIG_BLOCK, &some, nullptr);
              const int failed = StartProcess({"/bin/cp", "/proc/self/status", report}, {});
              sigprocmask(SIG_BLOCK, nullptr, &now);
              return failed == 0 && sigismember(&now, SIGTERM) && !sigismember(&now, SIGHUP) ? 0 : 1;
            }),
            0)
      << "the shell's own mask has changed";
  EXPECT_TRUE(Soon([&] { return ContentOf(report).find("ctxt") != std::string::npos; }));
  EXPECT_NE(ContentOf(report).find("SigBlk:\t0000000000000000\nSigIgn:\t0000000000000000\n"),
            std::string::npos)
      << ContentOf(report);
}

TEST_F(Started, AFailureIsTheSystemsErrorNumber) {
  for (const auto& [program, error] :
       std::vector<std::pair<std::string, int>>{{scratch.Path() / "missing", ENOENT},
                                                {scratch.Path(), EACCES},
                                                {scratch.File("plain", "text"), EACCES},
                                                {scratch.Executable("broken", "\x7f\x45LF"), ENOEXEC},
                                                {scratch.Executable("s", "#!/no/such\n"), ENOENT}})
    EXPECT_EQ(StartProcess({program}, {}), error) << program;
  EXPECT_EQ(StartProcess({"/bin/true", std::string(std::size_t{1} << 23, 'x')}, {}), E2BIG);
  EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
  for (const auto& [resource, least, error] :
       {std::tuple{RLIMIT_NPROC, 0U, EAGAIN}, {RLIMIT_NOFILE, 3U, EMFILE}})
    EXPECT_EQ(InAnotherProcess([&] {
                BecomePlainUser();
                const rlimit few{least, least};
                setrlimit(resource, &few);
                return StartProcess({"/bin/true"}, {});
              }),
              error);
}

}  // namespace orvanta::test
