#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <algorithm>

#include "desktop/ForkedShell.h"
#include "desktop/ProgramImages.h"
#include "desktop/ScratchFolder.h"
#include "platform/desktop/ProgramStart.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

/// A user's desktop in a folder: programs on a search path of its own, applications and what they open.
class Desktop : public testing::Test {
 protected:
  void SetUp() override {
    fs::create_directories(scratch.path / "bin");
    scratch.file("data/mime/globs2", "50:text/plain:*.txt\n50:application/pdf:*.pdf\n50:text/html:*.html\n");
    scratch.file("data/mime/subclasses", "text/html text/plain\n");
  }

  /// Starts `file` from a shell that ends at once, and gives the number.
  int start(const FileLookup& file, const std::string& parameters = "") const {
    return InAnotherProcess([&] {
      useDesktop();
      return ProgramStart().Start(file, parameters, ShowMode::Normal);
    });
  }
  int start(const fs::path& file, const std::string& parameters = "") const {
    return start(FileLookup{"D:\\file", FileLookup::Result::Found, file}, parameters);
  }
  int open(const std::string& address) const {
    return start(FileLookup{address, FileLookup::Result::FileMissing, {}});
  }
  /// The same by a user who is not root.
  int startAsPlainUser(const fs::path& file) const {
    return InAnotherProcess([&] {
      useDesktop();
      BecomePlainUser();
      return ProgramStart().Start({"", FileLookup::Result::Found, file}, "", ShowMode::Normal);
    });
  }

  /// A program on the search path that reports its arguments.
  void install(const std::string& name) const { reporting("bin/" + name); }
  fs::path reporting(const std::string& name) const {
    return scratch.script(name, "for a in \"${0##*/}\" \"$@\"; do printf '<%s>' \"$a\"; done > '" +
                                    report.string() + ".part'; /bin/mv '" + report.string() + ".part' '" +
                                    report.string() + "'");
  }
  /// What the started program has reported.
  std::string reported() const {
    EXPECT_TRUE(Eventually([&] { return fs::exists(report); })) << "nothing was started";
    const std::string content = ScratchFolder::contentOf(report);
    fs::remove(report);
    return content;
  }
  /// An application that is registered for a type.
  void registerFor(const std::string& type, const std::string& exec, const std::string& more = "") const {
    scratch.file("data/applications/app.desktop",
                 "[Desktop Entry]\nType=Application\nName=App\nExec=" + exec + "\n" + more);
    scratch.file("config/mimeapps.list", "[Default Applications]\n" + type + "=app.desktop\n");
  }
  static std::string argument(const fs::path& file) { return "<" + file.string() + ">"; }

  const ScratchFolder scratch;
  const fs::path report = scratch.path / "report";

 private:
  void useDesktop() const {
    setenv("PATH", (scratch.path / "bin").c_str(), 1);
    setenv("XDG_DATA_HOME", (scratch.path / "data").c_str(), 1);
    setenv("XDG_CONFIG_HOME", (scratch.path / "config").c_str(), 1);
    for (const char* none : {"XDG_DATA_DIRS", "XDG_CONFIG_DIRS"})
      setenv(none, (scratch.path / "none").c_str(), 1);
    unsetenv("XDG_CURRENT_DESKTOP");
  }
};

TEST_F(Desktop, WhatIsNotThereIsToldByWhatIsMissing) {
  EXPECT_EQ(start(FileLookup{"D:\\a.exe", FileLookup::Result::FileMissing, {}}), 2);
  EXPECT_EQ(start(FileLookup{"D:\\b\\a.exe", FileLookup::Result::FolderMissing, {}}), 3);
  EXPECT_EQ(start(scratch.path / "gone since"), 2);
  EXPECT_EQ(start(scratch.file("plain", "") / "file"), 3);
}

TEST_F(Desktop, AScriptGetsItsParametersAsWindowsWouldSplitThem) {
  EXPECT_GT(start(reporting("Gra o jaźń/start"), R"(/s "D:\Gry i zabawy" "" zażółć $HOME "a \"b\"")"), 32);
  EXPECT_EQ(reported(), R"(<start></s><D:\Gry i zabawy><><zażółć><$HOME><a "b">)");
}

// A name that begins with a dash would be an option to the runner.
TEST_F(Desktop, ARelativePathIsMadeAbsolute) {
  install("wine");
  scratch.file("-setup.exe", WindowsProgram());
  const fs::path before = fs::current_path();
  fs::current_path(scratch.path);
  EXPECT_GT(start("-setup.exe"), 32);
  fs::current_path(before);
  EXPECT_EQ(reported(), "<wine>" + argument(scratch.path / "-setup.exe"));
}

TEST_F(Desktop, AProgramThatCannotRunTellsWhy) {
  EXPECT_EQ(start(scratch.file("script", "#!/no/such/interpreter\n", 0755)), 27);
  EXPECT_EQ(start(scratch.file("cut",
                               "\x7f"
                               "ELF",
                               0755)),
            11);
  std::string program = ScratchFolder::contentOf("/bin/true");
  const fs::path busy = scratch.file("busy", program, 0755);
  const int writer = ::open(busy.c_str(), O_WRONLY | O_CLOEXEC);
  EXPECT_EQ(start(busy), 26);
  close(writer);
  const auto loader = program.find("/ld-");
  ASSERT_NE(loader, std::string::npos);
  program[loader + 1] = 'X';
  EXPECT_EQ(start(scratch.file("no loader", program, 0755)), 32);
}

TEST_F(Desktop, WhatTheUserMayNotReadIsDenied) {
  const fs::path secret = scratch.file("secret.txt", "text", 0);
  const fs::path closed = scratch.path / "closed";
  fs::create_directory(closed);
  scratch.file("closed/file.txt", "text");
  ScratchFolder::mode(closed, 0);
  install("manager");
  registerFor("inode/directory", "manager %U");
  EXPECT_EQ(startAsPlainUser(secret), 5);
  EXPECT_EQ(startAsPlainUser(closed), 5);
  EXPECT_EQ(startAsPlainUser(closed / "file.txt"), 5);
  ScratchFolder::mode(closed, 0755);
}

TEST_F(Desktop, WantOfProcessesIsWantOfMemory) {
  EXPECT_EQ(InAnotherProcess([] {
              BecomePlainUser();
              const rlimit none{0, 0};
              setrlimit(RLIMIT_NPROC, &none);
              return ProgramStart().Start({"", FileLookup::Result::Found, "/bin/true"}, "", ShowMode::Normal);
            }),
            8);
}

// Opening a pipe without a writer would freeze the shell.
TEST_F(Desktop, APipeIsNoFileToOpen) {
  const fs::path fifo = scratch.path / "pipe.txt";
  ASSERT_EQ(mkfifo(fifo.c_str(), 0644), 0);
  EXPECT_EQ(start(fifo), 5);
}

TEST_F(Desktop, WindowsProgramsGoToWine) {
  const fs::path program = scratch.file("SETUP.EXE", WindowsProgram());
  EXPECT_EQ(start(program), 31);
  install("wine");
  EXPECT_GT(start(program, "/s \"a b\""), 32);
  EXPECT_EQ(reported(), "<wine>" + argument(program) + "</s><a b>");
  const fs::path package = scratch.file("setup.msi", "package");
  EXPECT_GT(start(package, "/q"), 32);
  EXPECT_EQ(reported(), "<wine><start></unix>" + argument(package) + "</q>");
  scratch.file("bin/wine", "#!/no/such/interpreter\n", 0755);
  EXPECT_EQ(start(program), 31);
}

TEST_F(Desktop, DosProgramsGoToDosBox) {
  install("wine");
  const fs::path program = scratch.file("GRA.COM", "code");
  EXPECT_EQ(start(program), 31);
  install("dosbox");
  EXPECT_GT(start(program, " "), 32);
  EXPECT_EQ(reported(), "<dosbox>" + argument(program) + "<-exit>");
  EXPECT_GT(start(program, "/s \"a b\""), 32);
  EXPECT_EQ(reported(), "<dosbox><-c><mount C \"" + scratch.path.string() +
                            "\"><-c><C:><-c><GRA.COM /s \"a b\"><-c><exit>");
}

TEST_F(Desktop, ABrokenProgramIsToldEvenWithoutWine) {
  EXPECT_EQ(start(scratch.file("SETUP.EXE", "MZ")), 11);
  EXPECT_EQ(start(scratch.file("SETUP2.EXE", WindowsProgram().substr(0, 130))), 11);
}

TEST_F(Desktop, ADocumentGoesToTheUsersApplication) {
  const fs::path text = scratch.file("Czytaj to.txt", "Witaj!", 0755);
  EXPECT_EQ(start(text), 31);
  install("viewer");
  registerFor("text/plain", "viewer --new \"in one\" %f");
  EXPECT_GT(start(text, "not for documents"), 32);
  EXPECT_EQ(reported(), "<viewer><--new><in one>" + argument(text));
  EXPECT_GT(start(scratch.file("pusty.txt", "")), 32);
  reported();
  // A more special type falls to the application for the general one.
  EXPECT_GT(start(scratch.file("strona.html", "<html>")), 32);
  reported();
  EXPECT_EQ(start(scratch.file("a.pdf", "%PDF-1.4")), 31);
}

TEST_F(Desktop, AnApplicationThatIsGoneIsNoApplication) {
  const fs::path text = scratch.file("a.txt", "text");
  registerFor("text/plain", "viewer %f");
  EXPECT_EQ(start(text), 27) << "its program is gone";
  fs::remove(scratch.path / "data/applications/app.desktop");
  EXPECT_EQ(start(text), 27) << "its entry is gone";
  EXPECT_EQ(start(scratch.file("a.html", "<html>")), 27);
  EXPECT_EQ(start(scratch.file("a.pdf", "%PDF-1.4")), 31);
  scratch.file("config/mimeapps.list",
               "[Default Applications]\napplication/octet-stream=a.desktop\ntext/plain=\n");
  EXPECT_EQ(start(text), 31) << "an empty entry registers nothing, one for any bytes not this";
  registerFor("text/plain", "broken %f");
  scratch.file("bin/broken", "#!/no/such/interpreter\n", 0755);
  EXPECT_EQ(start(text), 27);
}

TEST_F(Desktop, AnApplicationForATerminalGetsOne) {
  const fs::path text = scratch.file("a.txt", "text");
  install("editor");
  registerFor("text/plain", "editor %F", "Terminal=true\n");
  EXPECT_EQ(start(text), 27);
  install("x-terminal-emulator");
  EXPECT_GT(start(text), 32);
  EXPECT_EQ(reported(), "<x-terminal-emulator><-e>" + argument(scratch.path / "bin/editor") + argument(text));
}

TEST_F(Desktop, AFolderOpensInTheFileManagerIfThereIsOne) {
  const fs::path folder = scratch.path / "Muzyka i film";
  fs::create_directory(folder);
  EXPECT_EQ(start(folder), 5);
  registerFor("inode/directory", "manager %U");
  EXPECT_EQ(start(folder), 5);
  install("manager");
  EXPECT_GT(start(folder), 32);
  EXPECT_EQ(reported(), "<manager><file://" + scratch.path.string() + "/Muzyka%20i%20film>");
}

TEST_F(Desktop, AddressesGoToTheirOwnApplications) {
  EXPECT_EQ(open("http://example.org/"), 31);
  install("browser");
  registerFor("x-scheme-handler/http", "browser %u");
  EXPECT_GT(open("HTTP://example.org/a b?c=%20&d"), 32);
  EXPECT_EQ(reported(), "<browser><HTTP://example.org/a b?c=%20&d>");
  EXPECT_EQ(open("https://example.org/"), 31);
  EXPECT_EQ(open("ftp://example.org/"), 2);
  EXPECT_EQ(open("http"), 2);
  registerFor("x-scheme-handler/mailto", "browser");
  EXPECT_GT(open("MailTo:ktos@example.org"), 32);
  EXPECT_EQ(reported(), "<browser><MailTo:ktos@example.org>");
}

// The shell sets the toolkit's variables for itself; a game must not inherit them.
TEST_F(Desktop, ProgramsGetTheEnvironmentFromBeforeTheShellsOwn) {
  const fs::path program = scratch.script(
      "program", "echo \"$ORVANTA_BEFORE,$ORVANTA_AFTER\" > '" + report.string() + ".part'; /bin/mv '" +
                     report.string() + ".part' '" + report.string() + "'");
  EXPECT_GT(InAnotherProcess([&] {
              setenv("ORVANTA_BEFORE", "yes", 1);
              const ProgramStart starter;
              setenv("ORVANTA_BEFORE", "changed", 1);
              setenv("ORVANTA_AFTER", "yes", 1);
              return starter.Start({"", FileLookup::Result::Found, program}, "", ShowMode::Normal);
            }),
            32);
  EXPECT_EQ(reported(), "yes,\n");
}

}  // namespace
}  // namespace orvanta
