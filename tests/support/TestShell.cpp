#include "support/TestShell.h"

namespace orvanta::test {

Point TestShell::MiddleOf(const Control& control) const {
  Rect box = control.Bounds();
  Container* parent = &control.Parent();
  while (const auto* outer = dynamic_cast<const Control*>(parent)) {
    box = box.Moved({outer->Bounds().left, outer->Bounds().top});
    parent = &outer->Parent();
  }
  const Rect place = parent->OwnerForm().Place();
  return {place.left + box.left + box.width / 2, place.top + box.top + box.height / 2};
}

}  // namespace orvanta::test
