#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <sstream>

#include "desktop/ForkedShell.h"
#include "desktop/ScratchFolder.h"
#include "platform/desktop/ProcessStart.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

class Started : public testing::Test {
 protected:
  /// Starts a script that writes its report by `body` and gives the report once it is complete.
  std::string reportOf(const std::string& body, std::vector<std::string> arguments = {}) {
    const std::string report = (scratch.path / "report").string();
    fs::remove(report);
    const fs::path program =
        scratch.script("program", "{ " + body + "\n} > '" + report + ".part'; /bin/mv '" + report +
                                      ".part' '" + report + "'");
    arguments.insert(arguments.begin(), program);
    EXPECT_EQ(StartProcess(arguments, CurrentEnvironment()), 0);
    EXPECT_TRUE(Eventually([&] { return fs::exists(report); })) << "the program never reported";
    return ScratchFolder::contentOf(report);
  }

  const ScratchFolder scratch;
};

TEST_F(Started, ArgumentsArriveAsTheyAre) {
  EXPECT_EQ(
      reportOf("printf '<%s>\\n' \"$@\"", {"zażółć gęślą", "", "a\"b", "$(echo x) * ;", "--", "D:\\gry\\"}),
      "<zażółć gęślą>\n<>\n<a\"b>\n<$(echo x) * ;>\n<-->\n<D:\\gry\\>\n");
}

// A lock or a disc's file that a game holds for the rest of the day keeps the disc in its drive.
TEST_F(Started, NothingOfTheShellStaysOpen) {
  const fs::path held = scratch.file("held", "");
  const int leaking = open(held.c_str(), O_RDWR);
  ASSERT_EQ(flock(leaking, LOCK_EX), 0);
  const int farAway = fcntl(leaking, F_DUPFD, 700);
  std::array<int, 2> ends{};
  ASSERT_EQ(pipe(ends.data()), 0);
  const std::string list = reportOf("/bin/ls -l /proc/$$/fd");
  EXPECT_EQ(list.find("held"), std::string::npos) << list;
  EXPECT_EQ(list.find("pipe:"), std::string::npos) << list;
  EXPECT_NE(list.find("0 -> /dev/null\n"), std::string::npos) << list;
  EXPECT_NE(list.find("2 -> /dev/null\n"), std::string::npos) << list;
  EXPECT_NE(fcntl(leaking, F_GETFD), -1) << "the shell has lost its own file";
  for (const int opened : {leaking, farAway, ends[0], ends[1]}) close(opened);
}

// `orvanta | tee log` must come back when the shell ends, whatever it has started.
TEST_F(Started, APipeThatTakesTheShellsOutputEndsWithTheShell) {
  std::array<int, 2> output{};
  ASSERT_EQ(pipe(output.data()), 0);
  InAnotherProcess([&] {
    dup2(output[1], STDOUT_FILENO);
    dup2(output[1], STDERR_FILENO);
    return StartProcess({scratch.script("long", "exec /bin/sleep 3")}, CurrentEnvironment());
  });
  close(output[1]);
  const auto before = std::chrono::steady_clock::now();
  char byte = 0;
  EXPECT_EQ(read(output[0], &byte, 1), 0);
  EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(2));
  close(output[0]);
}

TEST_F(Started, AShellWithoutStandardDescriptorsCanStartToo) {
  const fs::path report = scratch.path / "report";
  EXPECT_EQ(InAnotherProcess([&] {
              for (const int standard : {0, 1, 2}) close(standard);
              const int started = StartProcess({scratch.script("p", "echo here > '" + report.string() + "'")},
                                               CurrentEnvironment());
              return started == 0 && StartProcess({"/no/such"}, {}) == ENOENT ? 7 : 8;
            }),
            7);
  EXPECT_TRUE(Eventually([&] { return ScratchFolder::contentOf(report) == "here\n"; }));
}

// A child that nobody waits for stays in the process list, and a child in the shell's session dies with its
// terminal.
TEST_F(Started, TheProgramIsNoChildAndLeadsItsOwnSession) {
  std::istringstream report(reportOf("echo $$; read -r line < /proc/$$/stat; echo \"${line##*) }\""));
  pid_t id = 0, parent = 0, group = 0, session = 0;
  char state = 0;
  report >> id >> state >> parent >> group >> session;
  EXPECT_NE(parent, getpid());
  EXPECT_EQ(session, id);
  EXPECT_EQ(group, id);
  EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
  EXPECT_EQ(errno, ECHILD) << "a child is left over";
}

TEST_F(Started, SignalsAreDefaultAndNoneIsHeldBack) {
  const auto previous = signal(SIGPIPE, SIG_IGN);
  signal(SIGINT, SIG_IGN);
  sigset_t some, before;
  sigemptyset(&some);
  sigaddset(&some, SIGTERM);
  sigaddset(&some, SIGRTMAX);
  sigprocmask(SIG_BLOCK, &some, &before);
  // No shell script here: shells tidy up their signals themselves.
  const fs::path report = scratch.path / "status";
  EXPECT_EQ(StartProcess({"/bin/cp", "/proc/self/status", report}, {}), 0);
  std::string status;
  const auto complete = [&] {
    return (status = ScratchFolder::contentOf(report)).find("ctxt") != std::string::npos;
  };
  EXPECT_TRUE(Eventually(complete)) << status;
  EXPECT_NE(status.find("SigBlk:\t0000000000000000\nSigIgn:\t0000000000000000\n"), std::string::npos)
      << status;
  sigset_t now;
  sigprocmask(SIG_SETMASK, &before, &now);
  EXPECT_TRUE(sigismember(&now, SIGTERM) && !sigismember(&now, SIGHUP)) << "the shell's own mask has changed";
  signal(SIGPIPE, previous);
  signal(SIGINT, SIG_DFL);
}

TEST_F(Started, TheProgramOutlivesTheShellAndWorksInItsFolder) {
  const fs::path report = scratch.path / "late";
  const fs::path program =
      scratch.script("program", "/bin/sleep 0.2; pwd > late.part; /bin/mv late.part late");
  const int code = InAnotherProcess([&] {
    fs::current_path(scratch.path);
    return StartProcess({program}, CurrentEnvironment());
  });
  EXPECT_EQ(code, 0);
  EXPECT_FALSE(fs::exists(report)) << "the start has waited for the program";
  ASSERT_TRUE(Eventually([&] { return fs::exists(report); }));
  EXPECT_EQ(ScratchFolder::contentOf(report), scratch.path.string() + "\n");
}

TEST_F(Started, AFailureIsTheSystemsErrorNumber) {
  const auto errorOf = [&](const fs::path& program) { return StartProcess({program}, {}); };
  EXPECT_EQ(errorOf(scratch.path / "missing"), ENOENT);
  EXPECT_EQ(errorOf(scratch.path), EACCES);
  EXPECT_EQ(errorOf(scratch.file("plain", "text")), EACCES);
  EXPECT_EQ(errorOf(scratch.file("broken",
                                 "\x7f"
                                 "ELF",
                                 0755)),
            ENOEXEC);
  EXPECT_EQ(errorOf(scratch.file("script", "#!/no/such/interpreter\n", 0755)), ENOENT);
  EXPECT_EQ(StartProcess({"/bin/true", std::string(std::size_t{1} << 23, 'x')}, {}), E2BIG);
  EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
}

TEST_F(Started, WantOfProcessesOrFilesIsTold) {
  EXPECT_EQ(InAnotherProcess([] {
              BecomePlainUser();
              const rlimit none{0, 0};
              setrlimit(RLIMIT_NPROC, &none);
              return StartProcess({"/bin/true"}, {});
            }),
            EAGAIN);
  EXPECT_EQ(InAnotherProcess([] {
              const rlimit few{3, 3};
              setrlimit(RLIMIT_NOFILE, &few);
              return StartProcess({"/bin/true"}, {});
            }),
            EMFILE);
}

}  // namespace
}  // namespace orvanta
