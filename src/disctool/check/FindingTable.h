#pragma once

#include <span>
#include <string>
#include <string_view>

#include "disctool/Translation.h"

namespace orvanta {

/// A kind of finding. Ids never change and are never used for anything else; the texts are translated where
/// they are written. The manual for makers of discs has the same table.
struct FindingInfo {
  std::string_view id;
  const char* meaning;
  const char* example;
  const char* remedy;
};

inline constexpr FindingInfo kFindings[] = {
    {"no-disc", Translatable("The folder or image has neither of the two configuration files."),
     "orvanta-disc check Data", Translatable("Name the folder that holds `Data`.")},
    {"file-too-large", Translatable("A configuration file is larger than 64 MB."), "Data/Menu.ini of 80 MB",
     Translatable("Look for a file that was copied to the wrong name.")},
    {"unreadable", Translatable("A configuration file cannot be read."), "a scratched disc",
     Translatable("Copy the disc anew.")},
    {"utf-16", Translatable("A configuration file is written in UTF-16; the shell can read nothing of it."),
     "Menu.ini saved as Unicode", Translatable("Save it as Windows-1250.")},
    {"byte-order-mark",
     Translatable("A configuration file begins with a byte order mark, which hides its first section."),
     "Menu.ini saved as UTF-8 with a mark", Translatable("Save it as Windows-1250.")},
    {"utf-8", Translatable("Letters are written in UTF-8 and come out as two wrong ones each."),
     "Note=ZaÅ¼Ã³Å‚Ä‡", Translatable("Save it as Windows-1250.")},
    {"outside-code-page", Translatable("A byte stands for no character of Windows-1250."),
     "the byte 81 hexadecimal", Translatable("Write the letter anew.")},
    {"mixed-line-ends", Translatable("The lines of a configuration file end in different ways."),
     "CR LF, then LF alone", Translatable("Give all of them CR LF.")},
    {"no-bracket", Translatable("The name of a section has no closing bracket."), "[GLOBAL",
     Translatable("Close it: [GLOBAL]")},
    {"no-equals", Translatable("A line is neither a section nor a setting nor a comment."), "BackX 500",
     Translatable("Write BackX=500, or put a semicolon before it.")},
    {"no-key", Translatable("Nothing stands before the equals sign."), "=500", Translatable("Name the key.")},
    {"above-sections", Translatable("A setting stands above the first section."),
     "BackX=500 in the first line", Translatable("Move it into its section.")},
    {"nul-byte", Translatable("A NUL byte ends the value."), "a damaged file",
     Translatable("Remove the byte.")},
    {"section-twice", Translatable("A section begins a second time; only its first part is read."),
     "[GLOBAL] in two places", Translatable("Join both parts.")},
    {"key-twice", Translatable("A key stands twice in a section; only the first counts."),
     "BackX=500 and BackX=510", Translatable("Remove one.")},
    {"value-cut", Translatable("A value is longer than 254 characters and is cut there."), "a long Note",
     Translatable("Shorten it.")},
    {"missing-section", Translatable("A section that the shell needs is not there."), "no [SLIDER]",
     Translatable("Write it; the table of keys tells what it needs.")},
    {"missing-key", Translatable("A key that the shell needs is not there or empty."), "no BackX in [GLOBAL]",
     Translatable("Add it.")},
    {"no-number", Translatable("A number is expected, and the text is not one."), "BackX=left",
     Translatable("Write a number.")},
    {"out-of-range", Translatable("A number does not fit; the nearest that fits is taken."), "S2_Top=40000",
     Translatable("Stay between -32768 and 32767.")},
    {"rounded", Translatable("A whole number is expected; the number is rounded."), "S2_Top=2.5",
     Translatable("Write a whole number.")},
    {"no-colour", Translatable("A colour is outside 0 to 16777215."), "Color=16777216",
     Translatable("Add red, 256 times green and 65536 times blue.")},
    {"no-boolean", Translatable("True or False is expected."), "FontBold=yes",
     Translatable("Write True or False.")},
    {"senseless", Translatable("A size makes something that cannot be seen or clicked."), "UpH=0",
     Translatable("Give a size of at least 1.")},
    {"no-file", Translatable("A file that is named is not on the disc."), "HelpB=hlep.gif",
     Translatable("Correct the name or add the file.")},
    {"special-file", Translatable("In place of a file there is a folder, a device or a pipe."),
     "a FIFO called film.avi", Translatable("Put the file there.")},
    {"other-case", Translatable("The name of a file differs in capitals."), "HelpB=HELP.gif for help.gif",
     Translatable("Spell both alike.")},
    {"no-picture", Translatable("A file cannot be read as a picture."), "a GIF that was cut off",
     Translatable("Save the picture anew.")},
    {"picture-too-large", Translatable("A picture has more pixels than the shell shows."),
     "a GIF of 20000 by 20000 pixels", Translatable("Make it smaller.")},
    {"main-size", Translatable("The picture of the main window has another size than the window."),
     "MainGfx of 640 by 480 pixels", Translatable("Paint it 667 by 496 pixels large.")},
    {"looks-differ", Translatable("The three looks of a button differ in size."),
     "ext0.gif 36 by 24, ext1.gif 40 by 24", Translatable("Give all three one size.")},
    {"no-font", Translatable("A file cannot be read as a font."), "FontFile=readme.txt",
     Translatable("Name a TrueType font.")},
    {"font-name", Translatable("The name of a font is not in the disc's font files."), "FontName=Szyldd",
     Translatable("Write the name as it is in the file.")},
    {"not-playable", Translatable("A file cannot be played."), "Music=loop.txt",
     Translatable("Convert it, for instance to WAV, MP3 or AVI.")},
    {"breaks-off", Translatable("A sound or film cannot be decoded to its end; only --deep finds that."),
     "a film that was cut off", Translatable("Copy it anew from its source.")},
    {"off-the-disc", Translatable("A path leads to another drive."), "Execute=C:\\setup.exe",
     Translatable("Begin it with %:\\ to stay on the disc.")},
    {"link-off-the-disc", Translatable("A symbolic link leads off the disc."),
     "Data/main.gif, a link to /home/anna/main.gif", Translatable("Put the file there.")},
    {"no-drive", Translatable("A path depends on the folder in which the shell is started."),
     "Execute=setup.exe", Translatable("Begin it with %:\\ to name a file of the disc.")},
    {"empty-menu", Translatable("The first menu has no item."), "no Menu1 in [MAINMENU]",
     Translatable("Add Menu1.")},
    {"inert", Translatable("An item leads to no menu and no entry, and does nothing."),
     "Menu2=Gmaes without [Gmaes]", Translatable("Add its section, with Menu1, Execute or PlayAs.")},
    {"unreached", Translatable("No item leads to a section."), "[Games], and no Menu1=Games",
     Translatable("Add an item, or remove the section.")},
    {"circle", Translatable("An item leads back to a menu that it lies in."), "Menu1=MAINMENU",
     Translatable("Remove it; the shell has its own way back.")},
    {"too-deep", Translatable("An item lies deeper than MenuLevels allows and cannot be opened."),
     "MenuLevels=1", Translatable("Raise MenuLevels.")},
    {"menu-and-entry", Translatable("A section is a menu and has keys of an entry."),
     "Menu1 and Note in one section", Translatable("Remove one or the other.")},
    {"fixed-section-as-menu", Translatable("An item leads to a section of settings."), "Menu1=VOICES",
     Translatable("Give the item another name.")},
    {"no-screenshot", Translatable("An entry has no screenshot."), "no Shot1", Translatable("Add Shot1.")},
    {"no-text", Translatable("An entry has an empty field."), "no Note",
     Translatable("Add Note and System.")},
    {"nothing-to-play", Translatable("Music or a film names no file."), "PlayAs without Parameters",
     Translatable("Add Parameters.")},
    {"not-played", Translatable("PlayAs beside Execute has no effect."), "Execute and PlayAs",
     Translatable("Remove one of the two.")},
    {"unknown-key", Translatable("Nothing reads a key."), "MainGxf=main.gif",
     Translatable("Correct its name, or remove it.")},
    {"behind-the-end", Translatable("A numbered key follows a gap and is never read."), "Shot3 without Shot2",
     Translatable("Close the gap.")},
    {"hidden-key", Translatable("A key of Param.ini is never read, since Menu.ini has it too."),
     "BackX in both files", Translatable("Remove one of the two.")},
    {"outside", Translatable("A button or click zone cannot be seen."), "ExtX=900",
     Translatable("Move it into the window.")},
    {"partly-outside", Translatable("A button or click zone is seen in part."), "ExtX=650",
     Translatable("Move it into the window.")},
    {"no-travel", Translatable("A slider cannot move."), "YMax not above YMin", Translatable("Raise YMax.")},
    {"knob-outside", Translatable("The knob of a slider cannot be seen."), "PosX=472",
     Translatable("Move it into its area.")},
    {"knob-partly-outside", Translatable("The knob of a slider leaves its area."), "YMax=300",
     Translatable("Lower YMax.")},
};

/// Null for what is not an id.
constexpr const FindingInfo* FindFinding(std::string_view id) {
  for (const FindingInfo& info : kFindings)
    if (info.id == id) return &info;
  return nullptr;
}

/// The id of a finding; does not compile if the table lacks it.
struct FindingId {
  std::string_view text;
  consteval FindingId(const char* id) : text(id) {
    if (!FindFinding(id)) throw "the table has no such finding";
  }
};

/// What `check --explain` writes; empty for what is not an id.
std::string Explanation(std::string_view id);

}  // namespace orvanta
