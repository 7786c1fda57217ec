#include "buttons/ButtonLook.h"

#include "startup/Shell.h"

namespace orvanta {

void AddButtonArt(Shell& shell, ImageList& list, const std::string& base, const std::string& key) {
  list.Add(shell.LoadPicture(base + "0.gif"), key);
  list.Add(shell.LoadPicture(base + "1.gif"));
  list.Add(shell.LoadPicture(base + "2.gif"));
}

}  // namespace orvanta
