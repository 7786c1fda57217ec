#include "support/TestShell.h"

#include <sstream>

namespace orvanta::test {

namespace {

// By Index.
const std::array<std::string, 10> kBarNames = {"Exit",  "SoundOn", "SoundOff", "Help",     "Start",
                                               "Pause", "Stop",    "About",    "Minimise", "Film"};
const std::array<std::string, 5> kKinoNames = {"Play", "Stop", "Pause", "FullScreen", "Window"};

}  // namespace

void TestShell::Do(const std::string& script) {
  std::istringstream list(script);
  for (std::string command; std::getline(list >> std::ws, command, ',');) DoOne(command);
}

void TestShell::DoOne(const std::string& command) {
  std::istringstream words(command);
  std::string verb, what;
  int by = 0;
  words >> verb >> what;
  if (verb == "after") {
    const int delay = std::stoi(what);
    words >> verb >> what;
    return host.After(delay, [this, verb, what] { Act(verb, what); });
  }
  words >> by;
  if (verb == "start") return Launch(), Run(8000);
  if (verb == "run") return Run(std::stoi(what));
  if (verb == "choose") return Do("hover lblPos1" + what + ", click lblPos1" + what + ", run 2000");
  if (verb == "press") return Do("click " + what + ", aside, run 100");
  if (verb == "drag") {
    Do("hover " + what);
    host.Press();
    Run(10);
    host.MoveMouse(host.CursorPos() + Point{70, by});
    return Run(10);
  }
  Act(verb, what);
  Run(verb == "click" || verb == "close" ? 1 : 100);
}

void TestShell::Act(const std::string& verb, const std::string& what) {
  if (verb == "click") return host.Click(MiddleOf(Find(what)));
  if (verb == "hover") return host.MoveMouse(MiddleOf(Find(what)));
  if (verb == "aside") return host.MoveMouse({178 + 300, 136 + 30});
  if (verb == "drop") return host.Release();
  if (verb == "leave") return host.ActivateOther();
  if (verb == "return") return host.Activate(Main());
  if (verb == "minimise") return host.Minimise(Main());
  if (verb == "restore") return host.Restore(Main());
  if (verb == "close") return host.RequestClose(Front());
  throw std::invalid_argument("unknown verb: " + verb);
}

Form& TestShell::Front() {
  if (auto* viewer = shell.frmShowPic.Loaded()) return *viewer;
  if (auto* film = shell.frmKino.Loaded()) return *film;
  return Main();
}

Control& TestShell::Find(const std::string& name) {
  for (std::size_t i = 0; i < kBarNames.size(); ++i)
    if (name == kBarNames[i]) return Main().ButtonM(static_cast<int>(i));
  for (std::size_t i = 0; i < kKinoNames.size(); ++i)
    if (name == "kino" + kKinoNames[i]) return shell.frmKino->ButtonM(static_cast<int>(i));
  for (const Form* form : {&Front(), static_cast<Form*>(&Main())}) {
    if (form == shell.frmKino.Loaded()) continue;
    for (Control* control : form->Controls()) {
      if (name == control->Name + (control->Index < 0 ? "" : std::to_string(control->Index))) return *control;
    }
  }
  throw std::invalid_argument("there is no " + name);
}

Point TestShell::MiddleOf(const Control& control) const {
  Rect box = control.Bounds();
  Container* parent = &control.Parent();
  while (const auto* outer = dynamic_cast<const Control*>(parent)) {
    box = box.Moved({outer->Bounds().left, outer->Bounds().top});
    parent = &outer->Parent();
  }
  const Rect place = parent->OwnerForm().Place();
  return {place.left + box.left + box.width / 2, place.top + box.top + box.height / 2};
}

std::string TestShell::Looks(std::initializer_list<BarButton> buttons) {
  std::string looks;
  for (const BarButton button : buttons) {
    const std::string look = NamedLook(button, Button(button));
    looks += (looks.empty() || look.empty() ? "" : ", ") + look;
  }
  return looks;
}

std::string TestShell::Calls(const std::string& file, std::size_t from) const {
  std::string calls;
  for (std::size_t i = from; i < host.playerCalls.size(); ++i) {
    if (host.playerCalls[i].file == file) calls += (calls.empty() ? "" : ", ") + host.playerCalls[i].call;
  }
  return calls;
}

std::string Shown(const Image& image) {
  const auto* file = dynamic_cast<const PictureFile*>(image.Picture().get());
  return file ? file->name : std::string();
}

std::string LookOf(const Image& button) {
  const std::string name = Shown(button);
  return name.ends_with("1.gif") ? "over" : name.ends_with("2.gif") ? "pressed" : "";
}

std::string StateOf(const ActiveMovie& player) {
  switch (player.CurrentState()) {
    case ActiveMovie::kNoFile: return "no file";
    case ActiveMovie::kStopped: return "stopped";
    case ActiveMovie::kPaused: return "paused";
    default: return "playing";
  }
}

std::string NameOf(BarButton button) {
  return button == BarButton::None ? "none" : kBarNames.at(static_cast<std::size_t>(button));
}

std::string NameOf(KinoButton button) {
  return button == KinoButton::None ? "none" : kKinoNames.at(static_cast<std::size_t>(button));
}

}  // namespace orvanta::test
