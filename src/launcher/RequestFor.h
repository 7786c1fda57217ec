#pragma once

#include <string>

#include "config/DiscDrive.h"
#include "platform/Host.h"

namespace orvanta {

/// What the host is asked for when an entry is started. `file` and `parameters` are the entry's, UTF-8.
///
/// A word of the parameters that begins with the disc's drive comes with the file that it names; every other
/// word is the program's own. A shortcut (.lnk, .url) is followed once; one that leads nowhere on the disc is
/// left to the host.
StartRequest RequestFor(const std::string& file, const std::string& parameters, const DiscDrive& drive);

}  // namespace orvanta
