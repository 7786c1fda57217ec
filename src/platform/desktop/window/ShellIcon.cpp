#include "platform/desktop/window/ShellIcon.h"

namespace orvanta {

QIcon ShellIcon() {
  QIcon icon;
  for (const int size : {16, 32, 48, 128}) icon.addFile(QStringLiteral(":/icon/orvanta-%1.png").arg(size));
  return icon;
}

}  // namespace orvanta
