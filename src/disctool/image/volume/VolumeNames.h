#pragma once

#include <string>
#include <string_view>

namespace orvanta {

/// A name of ISO 9660 or Rock Ridge in UTF-8. The standards know no letters beyond ASCII; Polish discs have
/// them in UTF-8, in Windows-1250 or in CP852, the code page of DOS. What is no UTF-8 is taken for the code
/// page that makes Polish letters of its bytes, and for Windows-1250 if both do.
std::string NameInUtf8(std::string_view bytes);

/// A name of Joliet, which is UCS-2 with the high byte first ("Joliet" by Microsoft, 1995),
/// in UTF-8. What is no character becomes U+FFFD.
std::string JolietNameInUtf8(std::string_view bytes);

/// Without the version and the dot that ISO 9660 puts at the end: "README.;1" is README (ECMA-119, 7.5.1).
std::string_view WithoutVersion(std::string_view name);

/// Whether a name can be one of a file: it leads nowhere else. A backslash parts names on the discs
/// themselves.
bool IsFileName(std::string_view name);

}  // namespace orvanta
