#pragma once

#include <string>

#include "config/DiscDrive.h"
#include "platform/Host.h"

namespace orvanta {

/// What the host is asked for when an entry is started. `file` and `parameters` are the entry's, UTF-8.
///
/// A word of the parameters that begins with the disc's drive comes with the file that it names; every other
/// word is the program's own.
StartRequest RequestFor(const std::string& file, const std::string& parameters, const DiscDrive& drive);

}  // namespace orvanta
