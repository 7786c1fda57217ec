#include "support/Project.h"

namespace orvanta {

std::filesystem::path ProjectFolder() { return ORVANTA_SOURCE_DIR; }

}  // namespace orvanta
