#include "support/TestShell.h"

#include <sstream>

namespace orvanta::test {

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
  if (verb == "press") return Do("click ButtonM" + what + ", aside, run 100");
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
  throw std::invalid_argument("nobody knows how to " + verb);
}

Form& TestShell::Front() {
  if (auto* viewer = shell.frmShowPic.Loaded()) return *viewer;
  if (auto* film = shell.frmKino.Loaded()) return *film;
  return Main();
}

Control& TestShell::Find(const std::string& name) {
  if (name.starts_with("kino")) return shell.frmKino->ButtonM(std::stoi(name.substr(4)));
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

std::string TestShell::Looks(std::initializer_list<int> buttons) {
  std::string looks;
  for (const int i : buttons) looks += LookOf(Button(i));
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
  return name.size() < 5 ? "-" : name.substr(name.size() - 5, 1);
}

}  // namespace orvanta::test
