#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace orvanta {

/// What the user reads when the start of an entry's program has failed: the warning with its number, an empty
/// line, and the message. Lines end with CR LF, the text is UTF-8.
///
/// `code` is what the host's document-open call gave. Codes from 0 to 32 are failures; any other gives
/// nothing.
std::optional<std::string> ExecErrorText(std::int32_t code);

}  // namespace orvanta
