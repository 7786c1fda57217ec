#pragma once

#include <string>
#include <string_view>

namespace orvanta {

/// A name of ISO 9660 or Rock Ridge in UTF-8. The standards only know ASCII; Polish discs have names in
/// UTF-8, in Windows-1250 or in CP852, the code page of DOS. A name that is not UTF-8 is read in the code
/// page in which its bytes are Polish letters; Windows-1250 if that is true of both.
std::string NameInUtf8(std::string_view bytes);

/// A name of Joliet, which is UCS-2 with the high byte first ("Joliet" by Microsoft, 1995), in UTF-8. Invalid
/// characters become U+FFFD.
std::string JolietNameInUtf8(std::string_view bytes);

/// The name without the version and the dot that ISO 9660 adds: "README.;1" is README (ECMA-119, 7.5.1).
std::string_view WithoutVersion(std::string_view name);

/// Whether a name can be that of a file, and does not lead anywhere else. On the discs themselves a backslash
/// separates names.
bool IsFileName(std::string_view name);

}  // namespace orvanta
