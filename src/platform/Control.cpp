#include "platform/Control.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/Canvas.h"
#include "platform/Form.h"

namespace orvanta {

namespace {

bool SameArray(const Control& a, const Control& b) {
  return a.Index >= 0 && b.Index >= 0 && a.Name == b.Name;
}

}  // namespace

int Container::ToPixels(double units) const {
  const double pixels = scale_ == ScaleMode::Twips ? units / kTwipsPerPixel : units;
  // Large enough for every 16-bit value of a disc, and small enough that the sum of two stays in range.
  return static_cast<int>(std::nearbyint(std::clamp(pixels, -1e8, 1e8)));
}

void Container::Attach(Control& child) {
  auto place = stack_.end();
  while (place != stack_.begin() && !SameArray(**std::prev(place), child)) --place;
  // A new element of an array goes directly above the other elements, wherever the design put the first.
  stack_.insert(place == stack_.begin() ? stack_.end() : place, &child);
}

void Container::Detach(Control& child) { std::erase(stack_, &child); }

void Container::PaintChildren(Canvas& canvas, Point origin, const Rect& area) const {
  const Place covering = Covering(origin, area);
  for (Place child = covering == stack_.end() ? stack_.begin() : covering; child != stack_.end(); ++child) {
    if ((*child)->Visible && !Intersection((*child)->Bounds().Moved(origin), area).Empty()) {
      (*child)->Paint(canvas, origin, area);
    }
  }
}

Container::Place Container::Covering(Point origin, const Rect& area) const {
  const Rect own = area.Moved({-origin.x, -origin.y});
  const auto covers = [&own](const Control* child) { return child->Visible && child->Covers(own); };
  const auto found = std::find_if(stack_.rbegin(), stack_.rend(), covers);
  return found == stack_.rend() ? stack_.end() : std::prev(found.base());
}

Control* Container::ChildAt(Point p) const {
  for (auto child = stack_.rbegin(); child != stack_.rend(); ++child) {
    if (Control* hit = (*child)->Hit(p)) return hit;
  }
  return nullptr;
}

Control::Control(Container& parent, std::string name, std::int16_t index)
    : Name(std::move(name)),
      Index(index),
      Id(parent.OwnerForm().NextId()),
      Visible(*this, true),
      parent_(parent) {
  parent_.Attach(*this);
  parent_.OwnerForm().Adopt(*this);
}

Control::~Control() {
  parent_.Invalidate(extent_);
  parent_.Detach(*this);
  parent_.OwnerForm().Forget(*this);
}

void Control::Refresh() {
  if (Visible) parent_.Invalidate(Bounds());
  parent_.OwnerForm().PaintNow();
}

void Control::PropertyChanged(const void*) { Touch(); }

void Control::Touch() {
  const Rect now = Visible ? Bounds() : Rect{};
  parent_.Invalidate(extent_);
  if (now != extent_) parent_.Invalidate(now);
  extent_ = now;
}

BoxControl::BoxControl(Container& parent, std::string name, std::int16_t index)
    : Control(parent, std::move(name), index),
      Left(*this),
      Top(*this),
      Width(*this),
      Height(*this),
      Enabled(*this, true),
      MouseIcon(*this, Pointer::Default) {}

void BoxControl::Move(double left, double top, double width, double height) {
  Left.SetQuietly(left);
  Top.SetQuietly(top);
  Width.SetQuietly(width);
  Height.SetQuietly(height);
  Touch();
}

Rect BoxControl::Bounds() const {
  const Container& parent = Parent();
  return {parent.ToPixels(Left), parent.ToPixels(Top), parent.ToPixels(Width), parent.ToPixels(Height)};
}

Control* BoxControl::Hit(Point p) { return Visible && Enabled && Bounds().Contains(p) ? this : nullptr; }

void BoxControl::CopyDesign(const BoxControl& from) {
  Visible.SetQuietly(false);
  Enabled.SetQuietly(from.Enabled);
  MouseIcon.SetQuietly(from.MouseIcon);
  Move(from.Left, from.Top, from.Width, from.Height);
}

}  // namespace orvanta
