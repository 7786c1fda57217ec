#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace orvanta {

/// The message for a failed start of an entry's program: a warning with a number, an empty line, and the
/// reason. Lines end with CR LF; the text is UTF-8.
///
/// `code` is the result of the host's document-open call. Codes from 0 to 32 are failures; for any other
/// there is no message.
std::optional<std::string> ExecErrorText(std::int32_t code);

}  // namespace orvanta
