#pragma once

#include <string>

namespace orvanta {

class Shell;

/// Makes a font file available to the texts of this program and waits half a second, or removes it again. A
/// file that is not a font changes nothing. `path` is a path of the disc.
void FontResource(Shell& shell, const std::string& path, bool add);

}  // namespace orvanta
