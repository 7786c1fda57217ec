#include "platform/web/WebHost.h"
#include "startup/Shell.h"

int main() {
  // The program is suspended while it waits, and ends without returning: what it needs outlives this
  // function.
  auto* const host = new orvanta::WebHost("/disc");
  auto* const shell = new orvanta::Shell(*host);
  shell->Run();
  return 0;
}
