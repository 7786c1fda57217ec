// Starting what an entry names: programs, documents, folders and addresses.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include "desktop/Processes.h"
#include "platform/desktop/ProgramStart.h"

namespace orvanta::test {

namespace fs = std::filesystem;

/// A user's desktop in a folder: programs on a search path of its own, applications and what they open.
class Desktop : public testing::Test {
 protected:
  Desktop() {
    fs::create_directories(root / "bin");
    scratch.File("data/mime/globs2", "50:text/plain:*.txt\n50:application/pdf:*.pdf\n50:text/html:*.html\n");
    scratch.File("data/mime/subclasses", "text/html text/plain\n");
  }

  /// Starts something from a shell that ends at once after `before`, and gives the number.
  int start(
      const FileLookup& file, const std::string& parameters, void (*before)() = [] {}) const {
    return InAnotherProcess([&] {
      setenv("PATH", (root / "bin").c_str(), 1);
      setenv("XDG_DATA_HOME", (root / "data").c_str(), 1);
      setenv("XDG_CONFIG_HOME", (root / "config").c_str(), 1);
      for (const char* none : {"XDG_DATA_DIRS", "XDG_CONFIG_DIRS"}) setenv(none, (root / "none").c_str(), 1);
      unsetenv("XDG_CURRENT_DESKTOP");
      before();
      return ProgramStart().Start(file, parameters, ShowMode::Normal);
    });
  }
  int start(
      const fs::path& file, const std::string& parameters = "", void (*before)() = [] {}) const {
    return start(FileLookup{"D:\\file", FileLookup::Result::Found, file}, parameters, before);
  }
  int open(const std::string& address) const {
    return start(FileLookup{address, FileLookup::Result::FileMissing, {}}, "");
  }
  /// A program on the search path that reports its arguments.
  fs::path install(const std::string& name) const {
    return scratch.Script(name.find('/') == name.npos ? "bin/" + name : name,
                          "for a in \"${0##*/}\" \"$@\" $OF_THE_SHELL; do printf '<%s>' \"$a\"; done > '" +
                              report.string() + ".part'; /bin/mv '" + report.string() + ".part' '" +
                              report.string() + "'");
  }
  /// Expects that something was started which reports this; a `#` stands for the file.
  void ExpectStarted(int code, std::string expected, const fs::path& file = {}) const {
    EXPECT_GT(code, 32) << expected;
    EXPECT_TRUE(Soon([&] { return fs::exists(report); })) << "nothing was started";
    if (const auto at = expected.find('#'); at != expected.npos) expected.replace(at, 1, file.string());
    EXPECT_EQ(ContentOf(report), expected);
    fs::remove(report);
  }
  /// An application that is registered for a type.
  void registerFor(const std::string& type, const std::string& exec) const {
    scratch.File("data/applications/app.desktop",
                 "[Desktop Entry]\nType=Application\nName=App\nExec=" + exec + "\n");
    scratch.File("config/mimeapps.list", "[Default Applications]\n" + type + "=app.desktop\n");
  }

  const ScratchFolder scratch;
  const fs::path root = scratch.Path(), report = root / "report";
};

TEST_F(Desktop, ProgramsThatCannotRunTellWhy) {
  EXPECT_EQ(start({"D:\\a.exe", FileLookup::Result::FileMissing, {}}, ""), 2);
  EXPECT_EQ(start({"D:\\b\\a.exe", FileLookup::Result::FolderMissing, {}}, ""), 3);
  std::string program = ContentOf("/bin/true");
  const fs::path busy = scratch.Executable("busy", program), secret = scratch.File("secret.txt", "text");
  const int writer = ::open(busy.c_str(), O_WRONLY | O_CLOEXEC);
  program[program.find("/ld-") + 1] = 'X';
  ASSERT_EQ(mkfifo((root / "pipe.txt").c_str(), 0644), 0);
  for (const auto& [file, code] :
       std::vector<std::pair<fs::path, int>>{{root / "gone since", 2},
                                             {scratch.File("plain", "") / "file", 3},
                                             {root / "pipe.txt", 5},
                                             {root, 5},
                                             {scratch.File("SETUP.EXE", "MZ"), 11},
                                             {scratch.Executable("cut", "\x7f\x45LF"), 11},
                                             {busy, 26},
                                             {scratch.Executable("script", "#!/no/such/interpreter\n"), 27},
                                             {scratch.File("setup.msi", "x"), 31},
                                             {scratch.File("GRA.COM", "code"), 31},
                                             {scratch.File("a.pdf", "%PDF-1.4"), 31},
                                             {scratch.Executable("no loader", program), 32}})
    EXPECT_EQ(start(file), code) << file;
  close(writer);
  Allow(secret, 0);
  EXPECT_EQ(start(secret, "", BecomePlainUser), 5);
  Allow(root / "bin", 0);
  EXPECT_EQ(start(root / "bin", "", BecomePlainUser), 5);
  EXPECT_EQ(start(root / "bin/file.txt", "", BecomePlainUser), 5);
  EXPECT_EQ(start("/bin/true", "",
                  [] {
                    BecomePlainUser();
                    const rlimit none{0, 0};
                    setrlimit(RLIMIT_NPROC, &none);
                  }),
            8);
}

// Faults: arguments that a shell has had its fingers in; a name that begins with a dash, as an option to the
// runner.
TEST_F(Desktop, ProgramsOfAllSystemsGetTheirArguments) {
  ExpectStarted(start(install("Gra o jaźń/start"), R"(/s "D:\Gry i zabawy" "" zażółć $HOME "a \"b\"")"),
                R"(<start></s><D:\Gry i zabawy><><zażółć><$HOME><a "b">)");
  for (const char* runner : {"wine", "dosbox"}) install(runner);
  const fs::path package = scratch.File("-setup.msi", "package"), dos = scratch.File("GRA.COM", "code");
  ExpectStarted(start(package, "/q \"a b\""), "<wine><start></unix><#></q><a b>", package);
  const fs::path before = fs::current_path();
  fs::current_path(root);
  ExpectStarted(start("-setup.msi"), "<wine><start></unix><#>", package);
  fs::current_path(before);
  ExpectStarted(start(dos, " "), "<dosbox><#><-exit>", dos);
  ExpectStarted(start(dos, "/s \"a b\""),
                "<dosbox><-c><mount C \"#\"><-c><C:><-c><GRA.COM /s \"a b\"><-c><exit>", root);
  scratch.Executable("bin/wine", "#!/no/such/interpreter\n");
  EXPECT_EQ(start(package), 31);
}

TEST_F(Desktop, DocumentsFoldersAndAddressesGoToTheUsersApplications) {
  const fs::path text = scratch.File("Czytaj to.txt", "Witaj!"), page = scratch.File("strona.html", "<html>");
  EXPECT_EQ(start(text), 31);
  registerFor("text/plain", "viewer --new \"in one\" %f");
  EXPECT_EQ(start(text), 27) << "its program is gone";
  install("viewer");
  ExpectStarted(start(text, "not for documents"), "<viewer><--new><in one><#>", text);
  ExpectStarted(start(page), "<viewer><--new><in one><#>", page);  // a more special type
  registerFor("text/plain", "viewer %F\nTerminal=true");
  EXPECT_EQ(start(text), 27);
  install("x-terminal-emulator");
  ExpectStarted(start(text), "<x-terminal-emulator><-e><" + (root / "bin/viewer").string() + "><#>", text);
  fs::remove(root / "data/applications/app.desktop");
  EXPECT_EQ(start(page), 27) << "its entry is gone";
  scratch.File("config/mimeapps.list",
               "[Default Applications]\napplication/octet-stream=a.desktop\ntext/plain=\n");
  EXPECT_EQ(start(text), 31) << "an empty entry registers nothing, one for any bytes not this";

  registerFor("inode/directory", "viewer %U");
  fs::create_directory(root / "Muzyka i film");
  ExpectStarted(start(root / "Muzyka i film"), "<viewer><file://#/Muzyka%20i%20film>", root);
  EXPECT_EQ(open("http://example.org/"), 31);
  registerFor("x-scheme-handler/http", "viewer %u");
  ExpectStarted(open("HTTP://example.org/a b?c=%20&d"), "<viewer><HTTP://example.org/a b?c=%20&d>");
  for (const auto& [address, code] :
       {std::pair{"https://example.org/", 31}, {"ftp://example.org/", 2}, {"http", 2}})
    EXPECT_EQ(open(address), code) << address;
  registerFor("x-scheme-handler/mailto", "viewer");
  ExpectStarted(open("MailTo:ktos@example.org"), "<viewer><MailTo:ktos@example.org>");
}

// The shell sets the toolkit's variables for itself; a game must not inherit them.
TEST_F(Desktop, ProgramsGetTheEnvironmentFromBeforeTheShellsOwn) {
  const fs::path program = install("p");
  ExpectStarted(InAnotherProcess([&] {
                  setenv("OF_THE_SHELL", "before", 1);
                  const ProgramStart starter;
                  setenv("OF_THE_SHELL", "after", 1);
                  return starter.Start({"", FileLookup::Result::Found, program}, "", ShowMode::Normal);
                }),
                "<p><before>");
}

}  // namespace orvanta::test
