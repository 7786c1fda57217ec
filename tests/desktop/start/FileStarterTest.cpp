// Starting what an entry names: programs, documents, folders and addresses.

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <regex>

#include "config/DiscDrive.h"
#include "desktop/support/Processes.h"
#include "platform/CommandLine.h"
#include "platform/desktop/start/FileStarter.h"
#include "support/Project.h"

namespace orvanta::test {

namespace fs = std::filesystem;

static std::string Backslashed(const fs::path& path) {
  return std::regex_replace(path.string(), std::regex("/"), "\\");
}

// Gives up the rights of root, who could read everything, and allows no new processes.
static void BecomePoorUser() {
  constexpr uid_t kNobody = 65534;
  const rlimit none{0, 0};
  if ((geteuid() == 0 && setuid(kNobody) != 0) || setrlimit(RLIMIT_NPROC, &none) != 0) _exit(99);
}

/// A user's desktop in a folder: programs on its own search path, applications, and what they open.
struct Desktop : testing::Test {
  Desktop() {
    fs::create_directories(root / "bin");
    scratch.File("data/mime/globs2", "50:text/plain:*.txt\n50:application/pdf:*.pdf\n50:text/html:*.html\n");
    scratch.File("data/mime/subclasses", "text/html text/plain\n");
  }
  /// Starts something from a shell of its own and returns the result. The shell sets a variable for itself.
  int start(
      const StartRequest& request, void (*before)() = [] {}) const {
    return InAnotherProcess([&] {
      setenv("PATH", (root / "bin").c_str(), 1);
      setenv("XDG_DATA_HOME", (root / "data").c_str(), 1);
      setenv("XDG_CONFIG_HOME", (root / "config").c_str(), 1);
      for (const char* none : {"XDG_DATA_DIRS", "XDG_CONFIG_DIRS"}) setenv(none, (root / "none").c_str(), 1);
      unsetenv("XDG_CURRENT_DESKTOP");
      setenv("WINEPREFIX", winePrefix.c_str(), 1);
      FileStarter starter(disc);
      setenv("OF_THE_SHELL", "set", 1);
      before();
      const int number = starter.Start(request);
      int result = number;
      Soon([&] { return (result = starter.Result(number)) != number; }, patience);
      return result;
    });
  }
  int start(
      const fs::path& file, const std::string& parameters = "", void (*before)() = [] {}) const {
    StartRequest request{StartRequest::Status::Found, "D:\\file", file, parameters};
    for (const std::string& word : SplitArguments(parameters))
      request.arguments.push_back({word, HasDrive(word) ? DiscDrive(disc).Find(word).path : fs::path()});
    return start(request, before);
  }
  int open(const std::string& address) const { return start(StartRequest{.name = address}); }
  /// Installs a program, on the search path or elsewhere, that reports its name and arguments.
  fs::path install(const std::string& name) const {
    const std::string to = report.string(), part = to + ".part";
    return scratch.Script(
        name, "for a in \"${0##*/}\" \"$@\" $OF_THE_SHELL; do printf '<%s>' \"$a\"; done > '" + part +
                  "'; /bin/mv '" + part + "' '" + to + "'");
  }
  /// Expects that a program was started and has reported this; a `#` stands for the file.
  void ExpectStarted(int code, std::string expected, const fs::path& file = {}) const {
    EXPECT_GT(code, 32) << expected;
    EXPECT_TRUE(Soon([&] { return fs::exists(report); })) << "nothing was started";
    if (const auto at = expected.find('#'); at != expected.npos) expected.replace(at, 1, file.string());
    EXPECT_EQ(ContentOf(report), expected);
    fs::remove(report);
  }
  /// Registers an application for a type.
  void registerFor(const std::string& type, const std::string& exec) const {
    scratch.File("data/applications/app.desktop",
                 "[Desktop Entry]\nType=Application\nName=App\nExec=" + exec + "\n");
    scratch.File("config/mimeapps.list", "[Default Applications]\n" + type + "=app.desktop\n");
  }
  const ScratchFolder scratch;
  const fs::path root = scratch.Path(), report = root / "report";
  fs::path disc = root, winePrefix;
  std::chrono::milliseconds patience{0};
};

TEST_F(Desktop, ProgramsThatCannotRunReportWhy) {
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
  // A file in a folder without search permission is not missing: the drive finds it, and opening it reports
  // why it cannot be read.
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

// Faults: arguments that a command interpreter has changed; variables that the shell has set for its own
// toolkit.
TEST_F(Desktop, ProgramsOfAllSystemsGetTheirArguments) {
  ExpectStarted(start(install("Gra o jaźń/start"), R"(/s "D:\Gry i zabawy" "" zażółć $HOME "a \"b\"")"),
                R"(<start></s><D:\Gry i zabawy><><zażółć><$HOME><a "b">)");
  const fs::path named = scratch.File("Docs/Czytaj to.txt", "");
  ExpectStarted(start(install("start"), R"("D:\docs\CZYTAJ TO.TXT" D:\none)"), R"(<start><#><D:\none>)",
                named);
  for (const char* runner : {"bin/wine", "bin/dosbox"}) install(runner);
  const fs::path dos = scratch.File("GRA.COM", "code");
  EXPECT_GT(start(dos, "D:\\docs\\*.txt"), 32);
  EXPECT_TRUE(Soon([&] { return fs::exists(report); }));
  EXPECT_TRUE(ContentOf(report).ends_with("<c:><-c><GRA.COM D:\\docs\\*.txt><-c><exit>"))
      << ContentOf(report);
}

// Fault: an hourglass that stands for ever after Wine has given up.
TEST_F(Desktop, AProgramThatGivesUpAtOnceHasNotStarted) {
  patience = std::chrono::seconds(1);
  for (const auto& [body, started] : {std::pair{"exit 1", false},
                                      {"kill -9 $$", false},
                                      {"exit 0", true},
                                      {"/bin/sleep 0.8; exit 1", true}})
    EXPECT_EQ(start(scratch.Script("p", body)) > 32, started) << body;
  scratch.Script("bin/wine", "exit 1");
  EXPECT_EQ(start(scratch.File("setup.msi", "package")), 11);
  // Without its 32-bit half Wine 8 ends as if all were well.
  scratch.Script("bin/wine", "exit 0");
  EXPECT_GT(start(scratch.File("setup.msi", "package")), 32);
  EXPECT_EQ(start(ProjectFolder() / "discs/demo/Programy/Batymetr/batymetr.exe"), 11);
}

// Faults: the user's own prefix changed; a program whose disc is taken away by the start of another disc's.
TEST_F(Desktop, WindowsProgramsHaveTheirDiscAsADrive) {
  const fs::path gate = scratch.File("gate", ""), calls = root / "calls", prefix = root / "data/orvanta/wine";
  scratch.Script("bin/wine", "for a in \"${WINEPREFIX##*/}\" \"$@\"; do printf '<%s>' \"$a\"; done >> '" +
                                 calls.string() + "'; case $1 in start) while [ -e '" + gate.string() +
                                 "' ]; do /bin/sleep 0.01; done; esac");
  const fs::path file = scratch.File("1/a.msi", ""), other = scratch.File("2/b.msi", "");
  scratch.File("1/Docs/Czytaj to.txt", "");
  const auto hears = [&](const fs::path& of, const std::string& parameters, const std::string& heard) {
    disc = of.parent_path();
    fs::remove(calls);
    EXPECT_GT(start(of, parameters), 32);
    const std::string expected = "></unix><" + of.string() + ">" + heard;
    EXPECT_TRUE(Soon([&] { return ContentOf(calls).ends_with(expected); })) << ContentOf(calls);
  };
  const auto drive = [&](const char* letter) { return fs::read_symlink(prefix / "dosdevices" / letter); };
  hears(file, "\"d:\\docs\\czytaj TO.txt\" D:\\save.dat /D:", "<D:\\Docs\\Czytaj to.txt><D:\\save.dat></D:>");
  EXPECT_TRUE(ContentOf(calls).starts_with("<wine><regedit></S><drives.reg><wine><start>")) << "filled first";
  EXPECT_EQ(drive("d:"), disc);
  hears(other, "D:\\save.dat", "<E:\\save.dat>");
  hears(file, "D:", "<D:\\>");
  EXPECT_EQ(drive("d:"), disc);
  fs::remove(gate);
  disc = other.parent_path();
  EXPECT_TRUE(Soon([&] { return start(other) > 32 && drive("d:") == disc; })) << "free again";
}

TEST_F(Desktop, APrefixOfTheUsersStaysAsItIs) {
  install("bin/wine");
  winePrefix = root / "mine";
  const fs::path package = scratch.File("-setup.msi", "package"), named = scratch.File("Docs/x.txt", "");
  ExpectStarted(start(package, "/q D:\\docs\\X.TXT \"a b\""),
                "<wine><start></d><Z:" + Backslashed(fs::current_path()) + "></unix><" + package.string() +
                    "></q><Z:#><a b>",
                Backslashed(named));
  EXPECT_FALSE(fs::exists(root / "mine") || fs::exists(root / "data/orvanta"));
}

TEST_F(Desktop, DocumentsFoldersAndAddressesGoToTheUsersApplications) {
  const fs::path text = scratch.File("Czytaj to.txt", "Witaj!"), page = scratch.File("strona.html", "<html>");
  registerFor("text/plain", "viewer --new \"in one\" %f");
  EXPECT_EQ(start(text), 27) << "its program is gone";
  install("bin/viewer");
  ExpectStarted(start(text, "not for documents"), "<viewer><--new><in one><#>", text);
  ExpectStarted(start(page), "<viewer><--new><in one><#>", page);  // a more specific type
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
