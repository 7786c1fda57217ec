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

/// The main window of the program. Its centre shows one of three views, which the visible controls alone
/// determine: a menu list, the detail view of an entry (`picTlo` is hidden), or a page (`imgPomoc` or
/// `imgSeven` is visible).
///
/// It is one class; each routine is defined in the folder of its subject.
class MainForm : public Form {
 public:
  explicit MainForm(Shell& shell);

  // The controls, from the bottom of the stacking order to its top. Lengths are in pixels.
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

  /// One slider for two knobs: `listKnob` of lists and pages, `shotKnob` of screenshots.
  Slider slider;
  Slider::Knob listKnob{imgSuwak, imgSuwakPas, [this] { ScrollList(); }};
  Slider::Knob shotKnob{imgSSuwak, imgSSlider, [this] { ScrollShots(); }};

  std::vector<std::string> MenuPath;  ///< node names from the root; those above `MenuLevel` are out of date
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

  // The menu tree and the position in it: menu/MainForm_Menu.cpp
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

  // Tick, hover and crosshair: menu/MainForm_Hover.cpp
  void Timer1_Timer();
  void MousePos();
  void OverLabel(std::int16_t Index);
  void LinesSet(std::int16_t Index);
  void Strzal(std::int16_t Index);

  // Scrolling: menu/MainForm_Slider.cpp, menu/MainForm_Shots.cpp
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
  /// False if the user has opened another view while the music faded.
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

  // What screen readers learn: startup/, menu/ and buttons/MainForm_Accessible.cpp,
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
  std::vector<std::int32_t> PosTop;  // tops of the labels or the screenshots before scrolling
  std::int32_t LabelTop = 0, ShotTop = 0;
  std::int32_t MouseX = 0, MouseY = 0;  // the cursor relative to picTlo, as of the last tick
  std::int16_t S2Start = 0, S2End = 0, S2Len = 0;
  std::int16_t SavedVolume = 0;
  std::int16_t selected_ = 0;   // lblPos1_Click: the selected label's index plus 1
  std::uint32_t views_ = 0;     // number of views built so far
  bool crosshairRuns_ = false;  // Strzal: clicks on labels are ignored meanwhile
  std::int16_t hovered_ = 0;    // OverLabel: the hovered label's index plus 1
  std::int16_t markerAt_ = 0;   // Timer1_Timer: the last position of S2
  std::mt19937 generator_;      // never seeded: a disc always makes the same choice
};

}  // namespace orvanta
