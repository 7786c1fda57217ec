#pragma once

#include <QIcon>

namespace orvanta {

/// The program's icon in the sizes that task bars and lists of windows ask for.
QIcon ProgramIcon();

}  // namespace orvanta
