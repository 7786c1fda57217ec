#pragma once

#include <string>

#include "disctool/image/sectors/ByteSource.h"

namespace orvanta {

/// Says why a file is not an image that can be read: what it is, by its first bytes, and what to do with it.
std::string WhyNoImage(const ByteSource& bytes);

}  // namespace orvanta
