#pragma once

#include <QIcon>

namespace orvanta {

/// The shell's icon in the sizes that task bars and lists of windows ask for.
QIcon ShellIcon();

}  // namespace orvanta
