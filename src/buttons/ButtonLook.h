#pragma once

#include <string>

#include "platform/ImageList.h"

namespace orvanta {

/// The three looks of a picture button.
enum class Look { Normal = 1, Over = 2, Pressed = 3 };

/// The entry of a button's look in its form's `ImageList1`.
constexpr int LookEntry(int index, Look look) { return index * 3 + static_cast<int>(look); }

class Shell;

/// Appends the three pictures whose paths begin with `base`, the first of them under `key`.
void AddButtonArt(Shell& shell, ImageList& list, const std::string& base, const std::string& key);

}  // namespace orvanta
