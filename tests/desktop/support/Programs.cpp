#include "desktop/support/Programs.h"

namespace orvanta {

std::string ShellProgram() { return ORVANTA_PROGRAM; }
std::string DiscToolProgram() { return ORVANTA_DISC_TOOL; }
std::string BareWindowProgram() { return ORVANTA_BARE_WINDOW; }

}  // namespace orvanta
