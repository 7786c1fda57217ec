#pragma once

#include <string>

#include "config/DiscDrive.h"
#include "platform/Host.h"

namespace orvanta {

/// The request to the host that starts an entry. `file` and `parameters` are those of the entry, in UTF-8.
///
/// A word of the parameters that begins with the disc's drive comes with the file that it names; every other
/// word belongs to the program. A shortcut (.lnk, .url) is followed once; one that leads nowhere on the disc
/// is left to the host.
StartRequest RequestFor(const std::string& file, const std::string& parameters, const DiscDrive& drive);

}  // namespace orvanta
