#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "buttons/PictureButtons.h"
#include "menu/Slider.h"
#include "platform/ActiveMovie.h"
#include "platform/ControlArray.h"
#include "platform/Controls.h"
#include "platform/Form.h"
#include "platform/ImageList.h"
#include "platform/Timer.h"

namespace orvanta {

class Shell;

/// The program's window. Its centre shows one of three views, which follow from the visible controls alone:
/// a menu list, the detail view of an entry (`picTlo` hidden), or a page (`imgPomoc` or `imgSeven` visible).
///
/// One class, whose routines stand in the folders of their subjects.
class MainForm : public Form {
 public:
  explicit MainForm(Shell& shell);

  // Controls, from the bottom of the stack to its top. Pixels.
  Label lblNote;
  Shape Shape1;
  Label Label1;
  Label lblSystem;
  Label lblTitle;
  Label lblBackTxt;
  Image imgProducer;
  ControlArray<Image> ButtonM;
  Shape S2;
  Image imgBack, imgUp;
  ActiveMovie AM2, AM3;
  PictureBox picShotTlo;
  ControlArray<Image> picShot;
  Image imgSSlider, imgSSuwak;
  PictureBox picTlo;
  ControlArray<Label> lblPos1;
  ControlArray<Line> Line1, Line2;
  Image imgSuwakPas, imgSuwak;
  Image imgSeven, imgPomoc;
  PictureBox imgKreska;
  Label lblBackTxt2;
  Image ImgBack2, imgUp2;
  Timer Timer1;
  ImageList ImageList1;

  /// One for lists and pages (`listKnob`) and for screenshots (`shotKnob`).
  Slider slider;
  Slider::Knob listKnob{imgSuwak, imgSuwakPas, [this] { ScrollList(); }};
  Slider::Knob shotKnob{imgSSuwak, imgSSlider, [this] { ScrollShots(); }};

  std::vector<std::string> MenuPath;  ///< node names from the root; above `MenuLevel` they are stale
  std::int16_t MenuLevel = 0;
  BarButton PressedButton = BarButton::None;  ///< the latched one of the transport buttons

  void Form_Load() override;
  void lblPos1_Click(std::int16_t Index);
  void imgBack_Click();
  void imgUp_Click();
  void ButtonM_Click(BarButton button);
  AccessibleNode Accessible() const override;
  /// "Zrzut ekranu 2 z 5" for index 1.
  std::string ShotName(int index) const;

 protected:
  void CloseRequested() override { Unload(); }

 private:
  // Lifecycle: startup/
  void DesignControls();
  void DesignDetail();
  void WireEvents();
  void LoadTitle();
  void LoadMenuArea();
  void LoadZones();
  void LoadProducer();
  void LoadLines();
  void LoadBackLabels();
  void StartMusic();
  void PinWindow();
  void ShowStrips(bool visible);
  void Form_Activate() override;
  void Form_Resize() override;
  void Form_Unload() override;

  // The tree and the position in it: menu/MainForm_Menu.cpp
  void MenuInit(const std::string& menu);
  std::int16_t IleMenu(const std::string& menu) const;
  void StronaInit(double height);
  void StronaKoniec();
  void BuildLabel(int i, const std::string& menu, bool opaque, ColourValue backColour);
  void ShowPlace(const std::string& name);
  bool InView(const Label& label) const;
  ColourValue LabelColour(const Label& label) const;
  std::string CurrentNode() const;
  void EnterLevel(const std::string& name);

  // Hover, tick and crosshair: menu/MainForm_Hover.cpp
  void Timer1_Timer();
  void MousePos();
  void OverLabel(std::int16_t Index);
  void LinesSet(std::int16_t Index);
  void Strzal(std::int16_t Index);

  // What scrolls: menu/MainForm_Slider.cpp, menu/MainForm_Shots.cpp
  void SuwakInit();
  void FitSlider(std::int32_t contentHeight);
  void HideSlider();
  void ScrollList();
  void SSuwakInit();
  void ScrollShots();
  void picShot_Click(std::int16_t Index);

  // The detail view: menu/MainForm_Detail.cpp
  void OpisInit();
  bool IsExec(const std::string& name) const;
  bool IsPlay(const std::string& name) const;
  std::int16_t IleShot(const std::string& name) const;
  /// False if the user has gone on to another view while the music fell silent.
  bool ShowKind(const std::string& name);
  void ShowTransport();
  void LoadShots(const std::string& name);

  // Buttons: buttons/
  void ButtonsInit();
  void Press(BarButton button);
  void Release(BarButton button);
  void Drop();
  void ShowStopped();
  void SwitchSound(bool on);
  void TogglePage(BarButton button, Image& page, Image& other);
  void StartEntry();
  void StartMusicEntry(const std::string& entry);
  void WaitForMusic();
  void PauseMusic();
  void StopMusic();
  void ShowFilm();
  void ClosePage(Image& page);

  // What screen readers are told: startup/, menu/ and buttons/MainForm_Accessible.cpp,
  // media/MainForm_Music.cpp
  using Nodes = std::vector<AccessibleNode>;
  AccessibleNode AccessibleMenu() const;
  AccessibleNode AccessibleShots() const;
  void AddEntry(Nodes& nodes) const;
  void AddKnob(Nodes& nodes, const Image& knob) const;
  void AddWays(Nodes& nodes) const;
  void AddButtons(Nodes& nodes) const;
  void AddMusic(Nodes& nodes) const;
  bool DoesNothing(BarButton button) const;

  // Sound: media/MainForm_Cues.cpp, media/MainForm_Music.cpp
  void PlaySoundFile(const std::string& file, bool flag);
  void PlayRandomSoundFile(const std::string& base, bool flag);
  void PlayEndSound(bool flag);
  void StopEntrySound();
  void ParkMusic();
  bool MoveMarker();
  void SoundOn();
  void SoundOff();

  Shell& shell_;
  std::vector<std::int32_t> PosTop;  // unscrolled tops of the labels or of the screenshots
  std::int32_t LabelTop = 0, ShotTop = 0;
  std::int32_t MouseX = 0, MouseY = 0;  // the cursor relative to picTlo at the last tick
  std::int16_t S2Start = 0, S2End = 0, S2Len = 0;
  std::int16_t SavedVolume = 0;
  std::int16_t selected_ = 0;   // lblPos1_Click: the selected label's index plus 1
  std::uint32_t views_ = 0;     // how many views have been built
  bool crosshairRuns_ = false;  // Strzal: a click on a label meanwhile is ignored
  std::int16_t hovered_ = 0;    // OverLabel: the hovered label's index plus 1
  std::int16_t markerAt_ = 0;   // Timer1_Timer: the last place given to S2
  std::mt19937 generator_;      // never seeded: one disc, one choice
};

}  // namespace orvanta
