#pragma once

#include <array>
#include <cstdint>

#include "config/Schema.h"

namespace orvanta {

class Image;
class ImageList;
class Shell;

/// The buttons of the main window's bar, by their `Index`.
enum class BarButton : std::int16_t {
  None = -1,
  Exit,
  SoundOn,   ///< shown while the sound is on; a click turns it off
  SoundOff,  ///< shown while the sound is off; a click turns it on
  Help,
  Start,
  Pause,
  Stop,
  About,
  Minimise,
  Film
};

/// The buttons of the cinema, by their `Index`.
enum class KinoButton : std::int16_t {
  None = -1,
  Play,
  Stop,
  Pause,
  FullScreen,  ///< shown while the film is in the window
  Window       ///< shown while the film fills the screen
};

/// The keys of a button's art and position, and the name of its first picture in `ImageList1` of the form.
struct ButtonKeys {
  KeyRef<Kind::Base> base;
  KeyRef<Kind::Whole> left, top;
  const char* name;
  const char* meaning;
};

inline constexpr std::array<ButtonKeys, 10> kBarButtons{{
    {{"GLOBAL", "ExtB"}, {"GLOBAL", "ExtX"}, {"GLOBAL", "ExtY"}, "ext", "Wyjście"},
    {{"GLOBAL", "Snd1B"}, {"GLOBAL", "Snd1X"}, {"GLOBAL", "Snd1Y"}, "snd1", "Wyłącz dźwięk"},
    {{"GLOBAL", "Snd2B"}, {"GLOBAL", "Snd2X"}, {"GLOBAL", "Snd2Y"}, "snd2", "Włącz dźwięk"},
    {{"GLOBAL", "HlpB"}, {"GLOBAL", "HlpX"}, {"GLOBAL", "HlpY"}, "hlp", "Pomoc"},
    {{"GLOBAL", "StartB"}, {"GLOBAL", "StartX"}, {"GLOBAL", "StartY"}, "Start", "Uruchom"},
    {{"GLOBAL", "PauzaB"}, {"GLOBAL", "PauzaX"}, {"GLOBAL", "PauzaY"}, "Pauza", "Pauza"},
    {{"GLOBAL", "StopB"}, {"GLOBAL", "StopX"}, {"GLOBAL", "StopY"}, "Stop", "Stop"},
    {{"GLOBAL", "InfoB"}, {"GLOBAL", "InfoX"}, {"GLOBAL", "InfoY"}, "Info", "O płycie"},
    {{"GLOBAL", "MinB"}, {"GLOBAL", "MinX"}, {"GLOBAL", "MinY"}, "Min", "Minimalizuj"},
    {{"GLOBAL", "PokazB"}, {"GLOBAL", "PokazX"}, {"GLOBAL", "PokazY"}, "Pokaz", "Pokaż film"},
}};

inline constexpr std::array<ButtonKeys, 5> kKinoButtons{{
    {{"CINEMA", "CPlayB"}, {"CINEMA", "CPlayX"}, {"CINEMA", "CPlayY"}, "cplay", "Odtwarzaj"},
    {{"CINEMA", "CStopB"}, {"CINEMA", "CStopX"}, {"CINEMA", "CStopY"}, "cstop", "Zamknij kino"},
    {{"CINEMA", "CpauseB"}, {"CINEMA", "CPauseX"}, {"CINEMA", "CPauseY"}, "cpause", "Pauza"},
    {{"CINEMA", "CScaleB"}, {"CINEMA", "CScaleX"}, {"CINEMA", "CScaleY"}, "cscale", "Cały ekran"},
    {{"CINEMA", "CFScaleB"}, {"CINEMA", "CFScaleX"}, {"CINEMA", "CFScaleY"}, "cfscale", "W oknie"},
}};

/// The three pictures of a button.
enum class ButtonPicture { Normal = 1, Over = 2, Pressed = 3 };

/// The number of a button's picture in `ImageList1` of its form.
constexpr int PictureEntry(int index, ButtonPicture picture) { return index * 3 + static_cast<int>(picture); }
template <class Button>
constexpr int PictureEntry(Button button, ButtonPicture picture) {
  return PictureEntry(static_cast<int>(button), picture);
}

/// Appends the button's three pictures to the list and moves the button to its position. The buttons of a
/// form must be loaded in the order of their `Index`.
void LoadButton(Shell& shell, Image& button, ImageList& pictures, const ButtonKeys& keys);

}  // namespace orvanta
