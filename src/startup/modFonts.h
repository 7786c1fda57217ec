#pragma once

#include <string>

namespace orvanta {

class Shell;

/// Makes a font file known to the text of this program and waits half a second, or takes it back.
/// A file that is no font changes nothing. `path` is a path of the disc.
void FontResource(Shell& shell, const std::string& path, bool add);

}  // namespace orvanta
