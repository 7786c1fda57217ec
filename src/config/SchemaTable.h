#pragma once

#include <array>
#include <string_view>

namespace orvanta {

/// What the text of a key is converted to.
enum class Kind {
  Picture,  ///< a file below Data
  Base,     ///< common start of the names of three files below Data, which end in 0.gif, 1.gif and 2.gif
  Font,     ///< a file below Data
  Sound,    ///< a file below Data\\Sound, or a path with a drive
  Whole,    ///< 16-bit number
  Single,   ///< 32-bit real number
  Double,   ///< 64-bit real number
  Colour,   ///< 32-bit number: red in the low byte, then green, then blue
  Boolean,  ///< True, False or a number
  Text,     ///< unchanged
  Any       ///< read, but not used
};

/// Whether a disc needs a key.
enum class Presence {
  Mandatory,
  Optional,
  Run  ///< numbered, up to the first empty one: `Menu` stands for Menu1, Menu2 up to Menu1001
};

/// One key of the catalogue, or one run of keys.
struct SchemaKey {
  std::string_view section;
  std::string_view name;
  Kind kind;
  Presence presence = Presence::Mandatory;
};

/// The name of the section in the table that stands for every node of the menu tree, including "MAINMENU".
inline constexpr std::string_view kNodeSection = "*";

/// Every key that the program reads.
inline constexpr auto kSchema = [] {
  using enum Kind;
  constexpr Presence kOptional = Presence::Optional;
  constexpr Presence kRun = Presence::Run;
  return std::to_array<SchemaKey>({
      {"GLOBAL", "MainGfx", Picture},
      {"GLOBAL", "MenuLevels", Whole},
      {"GLOBAL", "BackgroundPic", Picture},
      {"GLOBAL", "BackgroundPicX", Whole},
      {"GLOBAL", "BackgroundPicY", Whole},
      {"GLOBAL", "LinePic", Picture},
      {"GLOBAL", "LinePicX", Whole},
      {"GLOBAL", "LinePicY", Whole},
      {"GLOBAL", "BackX", Whole},
      {"GLOBAL", "BackY", Whole},
      {"GLOBAL", "BackW", Whole},
      {"GLOBAL", "BackH", Whole},
      {"GLOBAL", "UpX", Whole},
      {"GLOBAL", "UpY", Whole},
      {"GLOBAL", "UpW", Whole},
      {"GLOBAL", "UpH", Whole},
      {"GLOBAL", "Back2X", Whole},
      {"GLOBAL", "Back2Y", Whole},
      {"GLOBAL", "Back2W", Whole},
      {"GLOBAL", "Back2H", Whole},
      {"GLOBAL", "Up2X", Whole},
      {"GLOBAL", "Up2Y", Whole},
      {"GLOBAL", "Up2W", Whole},
      {"GLOBAL", "Up2H", Whole},
      {"GLOBAL", "ProducerB", Picture, kOptional},
      {"GLOBAL", "ProducerX", Whole},
      {"GLOBAL", "ProducerY", Whole},
      {"GLOBAL", "HelpB", Picture},
      {"GLOBAL", "AboutB", Picture},
      {"GLOBAL", "S2_Top", Whole},
      {"GLOBAL", "S2_Start", Whole},
      {"GLOBAL", "S2_End", Whole},
      {"GLOBAL", "ExtB", Base},
      {"GLOBAL", "ExtX", Whole},
      {"GLOBAL", "ExtY", Whole},
      {"GLOBAL", "Snd1B", Base},
      {"GLOBAL", "Snd1X", Whole},
      {"GLOBAL", "Snd1Y", Whole},
      {"GLOBAL", "Snd2B", Base},
      {"GLOBAL", "Snd2X", Whole},
      {"GLOBAL", "Snd2Y", Whole},
      {"GLOBAL", "HlpB", Base},
      {"GLOBAL", "HlpX", Whole},
      {"GLOBAL", "HlpY", Whole},
      {"GLOBAL", "StartB", Base},
      {"GLOBAL", "StartX", Whole},
      {"GLOBAL", "StartY", Whole},
      {"GLOBAL", "PauzaB", Base},
      {"GLOBAL", "PauzaX", Whole},
      {"GLOBAL", "PauzaY", Whole},
      {"GLOBAL", "StopB", Base},
      {"GLOBAL", "StopX", Whole},
      {"GLOBAL", "StopY", Whole},
      {"GLOBAL", "InfoB", Base},
      {"GLOBAL", "InfoX", Whole},
      {"GLOBAL", "InfoY", Whole},
      {"GLOBAL", "MinB", Base},
      {"GLOBAL", "MinX", Whole},
      {"GLOBAL", "MinY", Whole},
      {"GLOBAL", "PokazB", Base},
      {"GLOBAL", "PokazX", Whole},
      {"GLOBAL", "PokazY", Whole},
      {"GLOBAL", "StartPic", Picture, kOptional},
      {"GLOBAL", "UnderPic", Picture},
      {"GLOBAL", "LeftPic", Picture},
      {"GLOBAL", "UpperPic", Picture},
      {"GLOBAL", "RightPic1", Picture},
      {"GLOBAL", "RightPic2", Picture},
      {"GLOBAL", "RightPic3", Picture},

      {"HEADLINE", "FontFile", Font},
      {"HEADLINE", "Caption", Text},
      {"HEADLINE", "Left", Single},
      {"HEADLINE", "Top", Single},
      {"HEADLINE", "FontName", Text},
      {"HEADLINE", "FontBold", Boolean},
      {"HEADLINE", "FontSize", Whole},
      {"HEADLINE", "Color", Colour},

      {"MENUITEM", "BackgroundB", Picture},
      {"MENUITEM", "BackgroundX", Single},
      {"MENUITEM", "BackgroundY", Single},
      {"MENUITEM", "FontFile", Font},
      {"MENUITEM", "FontName", Text},
      {"MENUITEM", "FontBold", Boolean},
      {"MENUITEM", "FontSize", Whole},
      {"MENUITEM", "LabelPosX", Whole},
      {"MENUITEM", "LabelPosY", Whole},
      {"MENUITEM", "BackStyle", Whole},
      {"MENUITEM", "BackColor", Colour},
      {"MENUITEM", "LineSize", Whole},
      {"MENUITEM", "LineColor", Colour},
      {"MENUITEM", "Line2Size", Whole},
      {"MENUITEM", "Line2Color", Colour},
      {"MENUITEM", "Line2Sleep", Whole},
      {"MENUITEM", "BackTxt1X", Whole},
      {"MENUITEM", "BackTxt1Y", Whole},
      {"MENUITEM", "BackTxt1Color", Colour},
      {"MENUITEM", "BackTxt2X", Whole},
      {"MENUITEM", "BackTxt2Y", Whole},
      {"MENUITEM", "BackTxt2Color", Colour},

      {"SLIDER", "SliderBarB", Picture},
      {"SLIDER", "SliderBarX", Double},
      {"SLIDER", "SliderBarY", Double},
      {"SLIDER", "SliderB", Picture},
      {"SLIDER", "PosX", Double},
      {"SLIDER", "YMin", Double},
      {"SLIDER", "YMax", Double},
      {"SLIDER", "YStep", Double},

      {"SHOTSLIDER", "SSliderBarB", Picture},
      {"SHOTSLIDER", "SSliderBarX", Whole},
      {"SHOTSLIDER", "SSliderBarY", Whole},
      {"SHOTSLIDER", "SSuwakB", Picture},
      {"SHOTSLIDER", "PosX", Double},
      {"SHOTSLIDER", "YMin", Double},
      {"SHOTSLIDER", "YMax", Double},
      {"SHOTSLIDER", "YStep", Double},

      {"VOICES", "Music", Sound},
      {"VOICES", "Start", Sound},
      {"VOICES", "Exit", Sound, kRun},
      {"VOICES", "Tool0", Any, kOptional},
      {"VOICES", "Button0", Any, kOptional},
      {"VOICES", "Exec0", Any, kOptional},
      {"VOICES", "Cinema", Any, kOptional},

      {"CINEMA", "CBackground", Picture},
      {"CINEMA", "CMiddX", Whole},
      {"CINEMA", "CMiddY", Whole},
      {"CINEMA", "CPlayB", Base},
      {"CINEMA", "CPlayX", Whole},
      {"CINEMA", "CPlayY", Whole},
      {"CINEMA", "CStopB", Base},
      {"CINEMA", "CStopX", Whole},
      {"CINEMA", "CStopY", Whole},
      {"CINEMA", "CpauseB", Base},
      {"CINEMA", "CPauseX", Whole},
      {"CINEMA", "CPauseY", Whole},
      {"CINEMA", "CScaleB", Base},
      {"CINEMA", "CScaleX", Whole},
      {"CINEMA", "CScaleY", Whole},
      {"CINEMA", "CFScaleB", Base},
      {"CINEMA", "CFScaleX", Whole},
      {"CINEMA", "CFScaleY", Whole},

      {kNodeSection, "Menu", Text, kRun},
      {kNodeSection, "Execute", Text, kOptional},
      {kNodeSection, "Parameters", Text, kOptional},
      {kNodeSection, "PlayAs", Text, kOptional},
      {kNodeSection, "Note", Text, kOptional},
      {kNodeSection, "System", Text, kOptional},
      {kNodeSection, "Shot", Picture, kRun},
  });
}();

}  // namespace orvanta
