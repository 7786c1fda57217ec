// Starting what an entry names: programs, documents, folders and addresses.

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include "config/DiscDrive.h"
#include "desktop/support/Processes.h"
#include "platform/desktop/start/FileStarter.h"

namespace orvanta::test {

namespace fs = std::filesystem;

// Gives up the rights of root, which would read the unreadable, and may start no process.
static void BecomePoorUser() {
  constexpr uid_t kNobody = 65534;
  const rlimit none{0, 0};
  if ((geteuid() == 0 && setuid(kNobody) != 0) || setrlimit(RLIMIT_NPROC, &none) != 0) _exit(99);
}

/// A user's desktop in a folder: programs on a search path of its own, applications and what they open.
struct Desktop : testing::Test {
  Desktop() {
    fs::create_directories(root / "bin");
    scratch.File("data/mime/globs2", "50:text/plain:*.txt\n50:application/pdf:*.pdf\n50:text/html:*.html\n");
    scratch.File("data/mime/subclasses", "text/html text/plain\n");
  }
  /// Starts something from a shell of its own and gives the number. The shell sets a variable for itself.
  int start(
      const StartRequest& request, void (*before)() = [] {}) const {
    return InAnotherProcess([&] {
      setenv("PATH", (root / "bin").c_str(), 1);
      setenv("XDG_DATA_HOME", (root / "data").c_str(), 1);
      setenv("XDG_CONFIG_HOME", (root / "config").c_str(), 1);
      for (const char* none : {"XDG_DATA_DIRS", "XDG_CONFIG_DIRS"}) setenv(none, (root / "none").c_str(), 1);
      unsetenv("XDG_CURRENT_DESKTOP");
      const FileStarter starter;
      setenv("OF_THE_SHELL", "set", 1);
      before();
      return starter.Start(request);
    });
  }
  int start(
      const fs::path& file, const std::string& parameters = "", void (*before)() = [] {}) const {
    return start(StartRequest{StartRequest::Status::Found, "D:\\file", file, parameters}, before);
  }
  int open(const std::string& address) const { return start(StartRequest{.name = address}); }
  /// A program, on the search path or elsewhere, that reports its name and its arguments.
  fs::path install(const std::string& name) const {
    const std::string to = report.string(), part = to + ".part";
    return scratch.Script(
        name, "for a in \"${0##*/}\" \"$@\" $OF_THE_SHELL; do printf '<%s>' \"$a\"; done > '" + part +
                  "'; /bin/mv '" + part + "' '" + to + "'");
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
  EXPECT_EQ(start({.status = StartRequest::Status::FileMissing}), 2);
  EXPECT_EQ(start({.status = StartRequest::Status::FolderMissing}), 3);
  const fs::path secret = scratch.File("secret.txt", "text"), busy = scratch.Script("busy", "");
  fs::copy_file("/bin/true", busy, fs::copy_options::overwrite_existing);
  const std::ofstream writer(busy, std::ios::app);
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
                                             {scratch.File("a.pdf", "%PDF-1.4"), 31}})
    EXPECT_EQ(start(file), code) << file;
  Allow(secret, 0);
  EXPECT_EQ(start(secret, "", BecomePoorUser), 5);
  // What lies in a closed folder is not missing: the drive finds it, and opening it tells why it cannot be
  // read.
  const fs::path hidden = scratch.File("closed/a.exe", "MZ");
  Allow(hidden.parent_path(), 0);
  EXPECT_EQ(start(hidden, "", BecomePoorUser), 5);
  EXPECT_EQ(InAnotherProcess([this] {
              BecomePoorUser();
              return DiscDrive(root).Find("D:\\closed\\A.EXE") ? 1 : 0;
            }),
            1);
  Allow(hidden.parent_path(), 0755);
  EXPECT_EQ(start("/bin/true", "", BecomePoorUser), 8);
}

// Faults: arguments that a shell has had its fingers in; variables that the shell set for its own toolkit.
TEST_F(Desktop, ProgramsOfAllSystemsGetTheirArguments) {
  ExpectStarted(start(install("Gra o jaźń/start"), R"(/s "D:\Gry i zabawy" "" zażółć $HOME "a \"b\"")"),
                R"(<start></s><D:\Gry i zabawy><><zażółć><$HOME><a "b">)");
  for (const char* runner : {"bin/wine", "bin/dosbox"}) install(runner);
  const fs::path package = scratch.File("-setup.msi", "package"), dos = scratch.File("GRA.COM", "code");
  ExpectStarted(start(package, "/q \"a b\""), "<wine><start></unix><#></q><a b>", package);
  ExpectStarted(start(dos, " "), "<dosbox><#><-exit>", dos);
  ExpectStarted(start(dos, "/s \"a b\""),
                "<dosbox><-c><mount C \"#\"><-c><C:><-c><GRA.COM /s \"a b\"><-c><exit>", root);
}

TEST_F(Desktop, DocumentsFoldersAndAddressesGoToTheUsersApplications) {
  const fs::path text = scratch.File("Czytaj to.txt", "Witaj!"), page = scratch.File("strona.html", "<html>");
  registerFor("text/plain", "viewer --new \"in one\" %f");
  EXPECT_EQ(start(text), 27) << "its program is gone";
  install("bin/viewer");
  ExpectStarted(start(text, "not for documents"), "<viewer><--new><in one><#>", text);
  ExpectStarted(start(page), "<viewer><--new><in one><#>", page);  // a more special type
  fs::remove(root / "data/applications/app.desktop");
  EXPECT_EQ(start(page), 27) << "its entry is gone";

  registerFor("inode/directory", "viewer %U");
  fs::create_directory(root / "Muzyka i film");
  ExpectStarted(start(root / "Muzyka i film"), "<viewer><file://#/Muzyka%20i%20film>", root);
  EXPECT_EQ(open("http://example.org/"), 31);
  registerFor("x-scheme-handler/http", "viewer %u");
  ExpectStarted(open("HTTP://example.org/a b?c=%20&d"), "<viewer><HTTP://example.org/a b?c=%20&d>");
  registerFor("x-scheme-handler/mailto", "viewer");
  ExpectStarted(open("MailTo:ktos@example.org"), "<viewer><MailTo:ktos@example.org>");
}

}  // namespace orvanta::test
