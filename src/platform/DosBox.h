#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Host.h"

namespace orvanta {

/// The name by which a DOS program in DOSBox opens a file that is called `name` (UTF-8) on the host: the name
/// in capitals if it is a valid DOS name; otherwise one of eight and three characters that is made of the
/// name alone. Unlike a numbered name (LONGFI~1.TXT), this one does not depend on the other files in the
/// folder. DOSBox recognises it as one of Wine's (drive_cache.cpp, `WINE_DRIVE_SUPPORT`).
std::string DosName(std::string_view name);

/// The arguments with which DOSBox runs the program `file` of the disc and ends with it. The folder `disc`
/// becomes drive D, a read-only CD-ROM. It also becomes drive C, from which the program runs, so that the
/// program can write beside itself. If the file is elsewhere, its own folder becomes drive C.
///
/// An argument that names something on the disc is replaced by its path on drive D. If no argument does, the
/// parameters are passed on exactly as they are.
std::vector<std::string> DosBoxArguments(const std::filesystem::path& file, const StartRequest& request,
                                         const std::filesystem::path& disc);

}  // namespace orvanta
