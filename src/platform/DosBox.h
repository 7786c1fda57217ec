#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Host.h"

namespace orvanta {

/// The name by which a DOS program in DOSBox opens a file that is called `name` (UTF-8) on the host: the name
/// in capitals if it is a DOS name, else one of eight and three characters that is made of the name alone.
/// Unlike a numbered name (LONGFI~1.TXT) that one does not depend on what else lies in the folder. DOSBox
/// understands it as one of Wine's (drive_cache.cpp, `WINE_DRIVE_SUPPORT`).
std::string DosName(std::string_view name);

/// The arguments with which DOSBox runs the program `file` of the disc and ends with it. The folder `disc` is
/// the drive D, a CD-ROM and so read-only. It is also the drive C, from which the program runs, so that the
/// program can write beside itself. A file that lies elsewhere has its own folder as the drive C.
///
/// What an argument names on the disc is named by its path on the drive D. Where no argument does, the
/// parameters stay as they are, to the letter.
std::vector<std::string> DosBoxArguments(const std::filesystem::path& file, const StartRequest& request,
                                         const std::filesystem::path& disc);

}  // namespace orvanta
