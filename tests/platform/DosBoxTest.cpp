// What DOSBox is told, so that a DOS program finds the disc and the files that its parameters name.

#include <gtest/gtest.h>

#include "platform/DosBox.h"

namespace orvanta::test {

// DOSBox 0.74-3 has opened files of these names by them.
TEST(DosBox, FilesWithLongNamesHaveShortOnesThatItKnows) {
  for (const auto& [name, dosName] : {std::pair{"Gra.com", "GRA.COM"},
                                      {"docs", "DOCS"},
                                      {"longfilename1.txt", "LONG~J3C.TXT"},
                                      {"two words.txt", "TWO_~DNA.TXT"},
                                      {"readme.html", "READ~403.HTM"},
                                      {"a.b.c", "A_B~~54C.C"},
                                      {".profile", "_PRO~SFW"},
                                      {"x+y.txt", "X_Y~~GTY.TXT"},
                                      {"Długa nazwa foldera", "D__U~CT5"}})
    EXPECT_EQ(DosName(name), dosName) << name;
}

TEST(DosBox, ProgramsRunFromADriveToWriteOnBesideTheDiscTheirParametersName) {
  const auto lines = [](const std::filesystem::path& file, const StartRequest& request) {
    std::string joined;
    for (const std::string& argument : DosBoxArguments(file, request, "/media/Gry i zabawy"))
      if (argument != "-c") joined += argument + "|";
    return joined;
  };
  const std::string drives =
      "mount c \"/media/Gry i zabawy\"|mount d \"/media/Gry i zabawy\" -t cdrom -label GRY_I_ZABAW|c:|";
  EXPECT_EQ(
      lines("/media/Gry i zabawy/gra.exe", {.parameters = "/s x=\"a b\"", .arguments = {{"/s"}, {"x=a b"}}}),
      drives + "GRA.EXE /s x=\"a b\"|exit|")
      << "a program may read its parameters in its own way";
  EXPECT_EQ(lines("/media/Gry i zabawy/Stare gry/gra.exe",
                  {.parameters = "not used",
                   .arguments = {{"D:\\docs\\readme.html", "/media/Gry i zabawy/Docs/readme.html"},
                                 {"a b"},
                                 {"d:", "/media/Gry i zabawy"}}}),
            drives + "cd \\STAR~M0J|GRA.EXE D:\\DOCS\\READ~403.HTM \"a b\" D:\\|exit|");
}

}  // namespace orvanta::test
