#include "platform/Form.h"

#include <cmath>

#include "platform/Host.h"

namespace orvanta {

Form::Form(Host& host, const FormDesign& design)
    : Container(design.scale),
      Left(*this),
      Top(*this),
      Width(*this, design.width),
      Height(*this, design.height),
      Caption(*this),
      Picture(*this),
      Visible(*this),
      WindowState(*this, kNormal),
      MousePointer(*this, kDefaultPointer),
      host_(host),
      design_(design),
      window_(host.MakeWindow(*this, design.window)) {
  host_.Loop().Add(*this);
  if (design_.centred) Centre();
}

Form::~Form() { host_.Loop().Forget(*this); }

Rect Form::Place() const {
  const auto pixels = [](double twips) {
    return static_cast<int>(std::nearbyint(std::clamp(twips / kTwipsPerPixel, -1e8, 1e8)));
  };
  // The program computes the cursor's position in the window from the whole pixels of its corner.
  const auto whole = [](double twips) {
    return static_cast<int>(std::clamp(twips / kTwipsPerPixel, -1e8, 1e8));
  };
  return {whole(Left), whole(Top), pixels(Width), pixels(Height)};
}

Rect Form::ClientArea() const {
  const Rect place = Place();
  return {0, 0, place.width, place.height};
}

AccessibleNode Form::Accessible() const { return {.name = Caption, .place = ClientArea()}; }

void Form::Centre() {
  const Size screen = host_.ScreenSize();
  const Rect place = Place();
  Left = std::floor((screen.width - place.width) / 2.0) * kTwipsPerPixel;
  Top = std::floor((screen.height - place.height) / 2.0) * kTwipsPerPixel;
}

void Form::Show() {
  if (!Visible) {
    Visible = true;
  } else {
    window_->Raise();
  }
}

void Form::ShowModal(Form& owner) {
  SetOwner(owner);
  EventLoop::Delivery delivery(host_.Loop());
  modal_.emplace(host_.Loop(), this);
  Visible = true;
  host_.Loop().RunUntil([this] { return unloading_ && !Visible; });
}

void Form::SetOwner(Form& owner) {
  owner_ = &owner;
  window_->SetOwner(owner);
}

void Form::Refresh() {
  Invalidate(ClientArea());
  PaintNow();
}

void Form::Unload() {
  if (unloading_) return;
  // Ends last, so that an unload outside of handlers also destroys the form.
  EventLoop::Delivery delivery(host_.Loop());
  unloading_ = true;
  Form_Unload();
  Visible = false;
  modal_.reset();
  host_.Loop().Forget(*this);
  if (Released) Released();
}

void Form::PropertyChanged(const void* property) {
  if (property == &Left || property == &Top || property == &Width || property == &Height) {
    window_->SetPlace(Place());
  } else if (property == &Caption) {
    window_->SetCaption(Caption);
  } else if (property == &Picture) {
    Invalidate(ClientArea());
  } else if (property == &Visible) {
    VisibleChanged();
  } else if (property == &WindowState) {
    window_->SetMinimised(WindowState == kMinimised);
    // The release of a held button goes to another window.
    EndPress();
    Form_Resize();
  } else if (property == &MousePointer) {
    pointerStale_ = true;
    Settle();
  }
}

void Form::VisibleChanged() {
  if (Visible && !shownBefore_) {
    shownBefore_ = true;
    if (design_.centred) Centre();
    // The first showing counts as a resize, and its handler may still move the window.
    Form_Resize();
  }
  // For the program a form without an area is visible, but there is nothing to show.
  window_->SetVisible(Visible && !ClientArea().Empty());
}

void Form::Forget(Control& control) {
  std::erase(controls_, &control);
  if (captured_ == &control) captured_ = nullptr;
  pointerStale_ = true;
}

void Form::Invalidate(const Rect& area) {
  pointerStale_ = true;
  if (!Visible) return;
  const Rect part = Intersection(area, ClientArea());
  if (!part.Empty()) window_->Invalidate(part);
}

void Form::PaintNow() {
  if (Visible) window_->PaintNow();
}

void Form::PaintGround(Canvas& canvas, const Rect& area) const {
  // The art may be smaller than the form, and it may have transparent pixels.
  canvas.Fill(area, 0);
  if (Picture()) canvas.DrawAt({0, 0}, *Picture());
}

void Form::Paint(Canvas& canvas, const Rect& area) const {
  canvas.PushClip(area);
  if (!Covered({0, 0}, area)) PaintGround(canvas, area);
  PaintChildren(canvas, {0, 0}, area);
  canvas.PopClip();
}

}  // namespace orvanta
