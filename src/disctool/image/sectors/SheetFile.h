#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "disctool/image/sectors/ByteSource.h"

namespace orvanta {

/// Opens a data file that a sheet names. The name is UTF-8 or Windows-1250, in any mix of capitals; if it is
/// a path of another machine its last name counts, and if that is not there either, the sheet's own name with
/// the same ending, since images get renamed. Nothing outside the sheet's folder is opened. Null if there is
/// no such file; `problem` then says so.
Bytes OpenSheetFile(const std::filesystem::path& sheet, std::string_view named, std::string& problem);

}  // namespace orvanta
