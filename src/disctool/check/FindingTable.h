#pragma once

#include <span>
#include <string>
#include <string_view>

#include "disctool/Translation.h"

namespace orvanta {

/// A kind of finding. Ids never change and are never reused; texts are translated when they are shown. The
/// manual for makers of discs has the same table.
struct FindingInfo {
  std::string_view id;
  const char* meaning;
  const char* example;
  const char* remedy;
};

inline constexpr FindingInfo kFindings[] = {
    {"no-disc", Translatable("The folder or image has neither of the two configuration files."),
     "orvanta-disc check Data", Translatable("Name the folder that holds `Data`.")},
    {"file-too-large", Translatable("A configuration file is larger than 64 MB."),
     Translatable("Data/Menu.ini of 80 MB"),
     Translatable("Look for a file that was copied to the wrong name.")},
    {"unreadable", Translatable("A configuration file cannot be read."), Translatable("a scratched disc"),
     Translatable("Copy the disc again.")},
    {"utf-16", Translatable("A configuration file is written in UTF-16; the shell can read nothing of it."),
     Translatable("Menu.ini saved as Unicode"), Translatable("Save it as Windows-1250.")},
    {"byte-order-mark",
     Translatable("A configuration file begins with a byte order mark, which hides its first section."),
     Translatable("Menu.ini saved as UTF-8 with a mark"), Translatable("Save it as Windows-1250.")},
    {"utf-8", Translatable("Letters are written in UTF-8, so each appears as two wrong ones."),
     "Note=ZaÅ¼Ã³Å‚Ä‡", Translatable("Save it as Windows-1250.")},
    {"outside-code-page", Translatable("A byte has no character in Windows-1250."),
     Translatable("the byte 81 hexadecimal"), Translatable("Type the letter again.")},
    {"mixed-line-ends", Translatable("The lines of a configuration file end in different ways."),
     Translatable("CR LF, then LF alone"), Translatable("Give all of them CR LF.")},
    {"no-bracket", Translatable("The name of a section has no closing bracket."), "[GLOBAL",
     Translatable("Close it: [GLOBAL]")},
    {"no-equals", Translatable("A line is neither a section nor a setting nor a comment."), "BackX 500",
     Translatable("Write BackX=500, or put a semicolon before it.")},
    {"no-key", Translatable("There is nothing before the equals sign."), "=500",
     Translatable("Name the key.")},
    {"above-sections", Translatable("A setting is above the first section."),
     Translatable("BackX=500 in the first line"), Translatable("Move it into its section.")},
    {"nul-byte", Translatable("A NUL byte ends the value."), Translatable("a damaged file"),
     Translatable("Remove the byte.")},
    {"section-twice", Translatable("A section begins a second time; only its first part is read."),
     Translatable("[GLOBAL] in two places"), Translatable("Join both parts.")},
    {"key-twice", Translatable("A key occurs twice in a section; only the first counts."),
     Translatable("BackX=500 and BackX=510"), Translatable("Remove one.")},
    {"value-cut", Translatable("A value is longer than 254 characters and is cut off there."),
     Translatable("a long Note"), Translatable("Shorten it.")},
    {"missing-section", Translatable("A section that the shell needs is missing."),
     Translatable("no [SLIDER]"), Translatable("Write it; the table of keys shows what it needs.")},
    {"missing-key", Translatable("A key that the shell needs is missing or empty."),
     Translatable("no BackX in [GLOBAL]"), Translatable("Add it.")},
    {"no-number", Translatable("The value should be a number."), "BackX=left",
     Translatable("Write a number.")},
    {"out-of-range", Translatable("A number is out of range; the nearest possible one is used."),
     "S2_Top=40000", Translatable("Write a number from -32768 to 32767.")},
    {"rounded", Translatable("The value should be a whole number; it is rounded."), "S2_Top=2.5",
     Translatable("Write a whole number.")},
    {"no-colour", Translatable("A colour is outside 0 to 16777215."), "Color=16777216",
     Translatable("Add up red, 256 times green and 65536 times blue.")},
    {"no-boolean", Translatable("The value should be True or False."), "FontBold=yes",
     Translatable("Write True or False.")},
    {"senseless", Translatable("A size is so small that something cannot be seen or clicked."), "UpH=0",
     Translatable("Give a size of at least 1.")},
    {"no-file", Translatable("A file that a key names is not on the disc."), "HelpB=hlep.gif",
     Translatable("Correct the name or add the file.")},
    {"special-file", Translatable("A key names a folder, a device or a pipe instead of a file."),
     Translatable("a FIFO called film.avi"), Translatable("Put the file there.")},
    {"other-case", Translatable("The name of a file differs in case."),
     Translatable("HelpB=HELP.gif for help.gif"), Translatable("Spell both the same way.")},
    {"no-picture", Translatable("A file cannot be read as a picture."),
     Translatable("a GIF that was cut off"), Translatable("Save the picture again.")},
    {"picture-too-large", Translatable("A picture has more pixels than the shell shows."),
     Translatable("a GIF of 20000 by 20000 pixels"), Translatable("Make it smaller.")},
    {"main-size", Translatable("The picture of the main window does not have the size of the window."),
     Translatable("MainGfx of 640 by 480 pixels"), Translatable("Make it 667 by 496 pixels large.")},
    {"looks-differ", Translatable("The three looks of a button differ in size."),
     Translatable("ext0.gif 36 by 24, ext1.gif 40 by 24"), Translatable("Give all three the same size.")},
    {"no-font", Translatable("A file cannot be read as a font."), "FontFile=readme.txt",
     Translatable("Name a TrueType font.")},
    {"font-name", Translatable("The name of a font is not in the disc's font files."), "FontName=Szyldd",
     Translatable("Write the name as it is in the file.")},
    {"not-playable", Translatable("A file cannot be played."), "Music=loop.txt",
     Translatable("Convert it, for instance to WAV, MP3 or AVI.")},
    {"breaks-off", Translatable("A sound or film cannot be decoded to its end; only --deep finds that."),
     Translatable("a film that was cut off"), Translatable("Copy it anew from its source.")},
    {"off-the-disc", Translatable("A path leads to another drive."), "Execute=C:\\setup.exe",
     Translatable("Begin it with %:\\ to stay on the disc.")},
    {"link-off-the-disc", Translatable("A symbolic link leads off the disc."),
     Translatable("Data/main.gif, a link to /home/anna/main.gif"), Translatable("Put the file there.")},
    {"no-drive", Translatable("A path depends on the folder in which the shell is started."),
     "Execute=setup.exe", Translatable("Begin it with %:\\ to name a file of the disc.")},
    {"no-program", Translatable("A program is empty, cut short or not a program at all."),
     Translatable("Execute=%:\\setup.exe with 0 bytes"), Translatable("Copy the program again.")},
    {"not-executable", Translatable("A native program or script is not executable."), "Execute=%:\\start.sh",
     Translatable("Make it executable: chmod +x start.sh")},
    {"script-line-ends",
     Translatable("The lines of a script end with CR LF, so its interpreter is not found."),
     Translatable("a script saved on Windows"), Translatable("Save it with LF: dos2unix start.sh")},
    {"no-runner", Translatable("This machine lacks what runs a program; the disc is not at fault."),
     Translatable("a 32-bit Windows program without wine32"), Translatable("Install it.")},
    {"dead-shortcut", Translatable("A shortcut leads to a file that is not on the disc."),
     "Execute=%:\\game.lnk", Translatable("Name the program itself.")},
    {"no-parameter-file", Translatable("Parameters names a file that is not on the disc."),
     "Parameters=%:\\hlep.txt", Translatable("Correct the name or add the file.")},
    {"late-drive", Translatable("A %: that is not at the very beginning of Parameters is not replaced."),
     "Parameters=/s %:\\x.txt", Translatable("Write D:\\ there.")},
    {"empty-menu", Translatable("The first menu has no item."), Translatable("no Menu1 in [MAINMENU]"),
     Translatable("Add Menu1.")},
    {"inert", Translatable("An item leads neither to a menu nor to an entry, and does nothing."),
     Translatable("Menu2=Gmaes without [Gmaes]"),
     Translatable("Add its section, with Menu1, Execute or PlayAs.")},
    {"unreached", Translatable("No item leads to a section."), Translatable("[Games], and no Menu1=Games"),
     Translatable("Add an item, or remove the section.")},
    {"circle", Translatable("An item leads back to a menu that contains it."), "Menu1=MAINMENU",
     Translatable("Remove it; the shell has its own way back.")},
    {"too-deep", Translatable("An item lies deeper than MenuLevels allows."), "MenuLevels=1",
     Translatable("Increase MenuLevels.")},
    {"menu-and-entry", Translatable("A section is a menu and has keys of an entry."),
     Translatable("Menu1 and Note in one section"), Translatable("Remove one or the other.")},
    {"fixed-section-as-menu", Translatable("An item leads to a section of settings."), "Menu1=VOICES",
     Translatable("Give the item another name.")},
    {"no-screenshot", Translatable("An entry has no screenshot."), Translatable("no Shot1"),
     Translatable("Add Shot1.")},
    {"no-text", Translatable("An entry has an empty field."), Translatable("no Note"),
     Translatable("Add Note and System.")},
    {"nothing-to-play", Translatable("Music or a film does not name a file."),
     Translatable("PlayAs without Parameters"), Translatable("Add Parameters.")},
    {"not-played", Translatable("PlayAs has no effect beside Execute."), Translatable("Execute and PlayAs"),
     Translatable("Remove one of the two.")},
    {"unknown-key", Translatable("A key is never read."), "MainGxf=main.gif",
     Translatable("Correct its name or remove it.")},
    {"behind-the-end", Translatable("A numbered key follows a gap and is never read."),
     Translatable("Shot3 without Shot2"), Translatable("Close the gap.")},
    {"hidden-key", Translatable("A key of Param.ini is never read, since Menu.ini has it too."),
     Translatable("BackX in both files"), Translatable("Remove one of the two.")},
    {"outside", Translatable("A button or click zone cannot be seen."), "ExtX=900",
     Translatable("Move it into the window.")},
    {"partly-outside", Translatable("A button or click zone can only be seen in part."), "ExtX=650",
     Translatable("Move it into the window.")},
    {"no-travel", Translatable("A slider cannot move."), Translatable("YMax not above YMin"),
     Translatable("Increase YMax.")},
    {"knob-outside", Translatable("The knob of a slider cannot be seen."), "PosX=472",
     Translatable("Move it into its area.")},
    {"knob-partly-outside", Translatable("The knob of a slider leaves its area."), "YMax=300",
     Translatable("Reduce YMax.")},
};

/// The kind with an id; null if there is none.
constexpr const FindingInfo* FindFinding(std::string_view id) {
  for (const FindingInfo& info : kFindings)
    if (info.id == id) return &info;
  return nullptr;
}

/// The id of a finding; does not compile if the table does not have it.
struct FindingId {
  std::string_view text;
  consteval FindingId(const char* id) : text(id) {
    if (!FindFinding(id)) throw "the table has no such finding";
  }
};

/// The output of `check --explain`; empty if there is no such id.
std::string Explanation(std::string_view id);

}  // namespace orvanta
