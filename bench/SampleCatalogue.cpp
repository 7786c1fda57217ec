#include "SampleCatalogue.h"

#include <unistd.h>

#include <fstream>

namespace orvanta::bench {
namespace {

std::string Numbered(const std::string& prefix, int number) { return prefix + std::to_string(number); }

std::string WindowSection() {
  std::string text = "[GLOBAL]\r\nMainGfx=Main.gif\r\nMenuLevels=6\r\n";
  for (const char* name : {"Back", "Up", "Back2", "Up2", "Ext", "Snd1", "Snd2", "Hlp", "Start", "Stop"}) {
    for (const char* part : {"X", "Y", "W", "H"}) text += std::string(name) + part + "=120\r\n";
  }
  return text + "Early=found\r\n\r\n";
}

std::string Entry(int number) {
  return Numbered("[Program ", number) + "]\r\nExecute=%:\\Programs\\" + Numbered("Setup", number) +
         "\\setup.exe\r\nParameters=/lang=pl /quiet\r\n"
         "Note=Edytor zdjec z filtrami, warstwami i zapisem do wielu formatow. Prostuje, kadruje i "
         "retuszuje, laczy zdjecia w panoramy i drukuje je w kazdym rozmiarze. Wersja probna dziala "
         "trzydziesci dni.\r\n"
         "System=Windows 98, procesor 166 MHz, 32 MB pamieci, 20 MB na dysku, karta graficzna 800x600\r\n"
         "Shot1=Shots\\a.gif\r\nShot2=Shots\\b.gif\r\nShot3=Shots\\c.gif\r\n\r\n";
}

std::string LongMenu() {
  std::string menu = "[MAINMENU]\r\n";
  for (int i = 1; i <= 1001; ++i) menu += Numbered("Menu", i) + Numbered("=Program ", i) + "\r\n";
  return menu;
}

}  // namespace

std::string MakeCatalogue(std::size_t size, MenuPlace menu) {
  const std::string tail = "[Last]\r\nExecute=a.exe\r\nNote=Koniec\r\nLast=found\r\n";
  const std::string inserted = menu == MenuPlace::None ? "" : LongMenu();
  std::string text = WindowSection();
  const std::size_t first = text.size();
  std::size_t middle = first;
  for (int i = 1; text.size() + inserted.size() + tail.size() < size; ++i) {
    text += Entry(i);
    if (text.size() < (size - inserted.size()) / 2) middle = text.size();
  }
  if (menu == MenuPlace::First) middle = first;
  if (menu == MenuPlace::Last) middle = text.size();
  return text.insert(middle, inserted) + tail;
}

TemporaryFile::TemporaryFile(const std::string& text) {
  std::string name = (std::filesystem::temp_directory_path() / "orvanta-bench-XXXXXX").string();
  if (const int file = ::mkstemp(name.data()); file >= 0) ::close(file);
  path_ = name;
  std::ofstream(path_, std::ios::binary) << text;
}

TemporaryFile::~TemporaryFile() {
  std::error_code ignored;
  std::filesystem::remove(path_, ignored);
}

}  // namespace orvanta::bench
