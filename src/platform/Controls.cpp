#include "platform/Controls.h"

#include <cmath>
#include <cstdlib>
#include <utility>

namespace orvanta {

namespace {

void Frame(Canvas& canvas, const Rect& r, ColourValue colour) {
  canvas.Fill({r.left, r.top, r.width, 1}, colour);
  canvas.Fill({r.left, r.Bottom() - 1, r.width, 1}, colour);
  canvas.Fill({r.left, r.top, 1, r.height}, colour);
  canvas.Fill({r.Right() - 1, r.top, 1, r.height}, colour);
}

/// Gives `control` the size of `picture`, with `edge` pixels around it.
void FitTo(BoxControl& control, const PicturePtr& picture, int edge) {
  if (!picture || picture->PixelSize().Empty()) return;
  const Size size = picture->PixelSize();
  control.Width.SetQuietly(control.Parent().FromPixels(size.width + 2 * edge));
  control.Height.SetQuietly(control.Parent().FromPixels(size.height + 2 * edge));
}

}  // namespace

Image::Image(Container& parent, std::string name, std::int16_t index)
    : BoxControl(parent, std::move(name), index), Picture(*this), Stretch(*this), BorderStyle(*this) {}

void Image::CopyDesign(const Image& from) {
  Picture.SetQuietly(from.Picture);
  Stretch.SetQuietly(from.Stretch);
  BorderStyle.SetQuietly(from.BorderStyle);
  BoxControl::CopyDesign(from);
}

void Image::Paint(Canvas& canvas, Point origin, const Rect&) const {
  const Rect box = Bounds().Moved(origin);
  const int edge = BorderStyle == 1 ? 1 : 0;
  const Rect inner{box.left + edge, box.top + edge, box.width - 2 * edge, box.height - 2 * edge};
  if (Picture()) canvas.Draw(*Picture(), inner);
  if (edge > 0) Frame(canvas, box, 0);
}

void Image::PropertyChanged(const void* property) {
  if (property == &Picture && !Stretch) FitTo(*this, Picture, BorderStyle == 1 ? 1 : 0);
  Touch();
}

PictureBox::PictureBox(Container& parent, std::string name)
    : BoxControl(parent, std::move(name)),
      Container(ScaleMode::Pixels),
      Picture(*this),
      AutoSize(*this),
      BackColor(*this) {}

void PictureBox::Invalidate(const Rect& area) {
  if (!Visible) return;
  const Rect box = Bounds();
  Parent().Invalidate(Intersection(area.Moved({box.left, box.top}), box));
}

Rect PictureBox::ClientArea() const {
  const Rect box = Bounds();
  return {0, 0, box.width, box.height};
}

void PictureBox::Paint(Canvas& canvas, Point origin, const Rect& area) const {
  const Rect box = Bounds().Moved(origin);
  canvas.PushClip(box);
  canvas.Fill(box, BackColor);
  if (Picture()) canvas.DrawAt({box.left, box.top}, *Picture());
  PaintChildren(canvas, {box.left, box.top}, Intersection(area, box));
  canvas.PopClip();
}

Control* PictureBox::Hit(Point p) {
  if (!BoxControl::Hit(p)) return nullptr;
  const Rect box = Bounds();
  Control* child = ChildAt(p - Point{box.left, box.top});
  return child ? child : this;
}

void PictureBox::PropertyChanged(const void* property) {
  if (property == &Picture && AutoSize) FitTo(*this, Picture, 0);
  Touch();
}

Label::Label(Container& parent, std::string name, std::int16_t index)
    : BoxControl(parent, std::move(name), index),
      Caption(*this),
      ForeColor(*this),
      BackColor(*this, 0xFFFFFF),
      BackStyle(*this),
      FontName(*this, "MS Sans Serif"),
      FontBold(*this),
      FontSize(*this, 8.25),
      Align(*this, Alignment::Left) {}

void Label::CopyDesign(const Label& from) {
  Caption.SetQuietly(from.Caption);
  ForeColor.SetQuietly(from.ForeColor);
  BackColor.SetQuietly(from.BackColor);
  BackStyle.SetQuietly(from.BackStyle);
  FontName.SetQuietly(from.FontName);
  FontBold.SetQuietly(from.FontBold);
  FontSize.SetQuietly(from.FontSize);
  Align.SetQuietly(from.Align);
  BoxControl::CopyDesign(from);
}

void Label::Paint(Canvas& canvas, Point origin, const Rect&) const {
  const Rect box = Bounds().Moved(origin);
  if (BackStyle != 0) canvas.Fill(box, BackColor);
  if (Caption().empty()) return;
  canvas.PushClip(box);
  canvas.Text(Caption, box, Font{FontName, FontBold, FontSize}, ForeColor, Align);
  canvas.PopClip();
}

Line::Line(Container& parent, std::string name, std::int16_t index)
    : Control(parent, std::move(name), index),
      X1(*this),
      Y1(*this),
      X2(*this),
      Y2(*this),
      BorderWidth(*this, 1),
      BorderColor(*this) {
  Visible.SetQuietly(false);
}

void Line::Place(double x1, double y1, double x2, double y2) {
  X1.SetQuietly(x1);
  Y1.SetQuietly(y1);
  X2.SetQuietly(x2);
  Y2.SetQuietly(y2);
  Touch();
}

void Line::CopyDesign(const Line& from) {
  BorderWidth.SetQuietly(from.BorderWidth);
  BorderColor.SetQuietly(from.BorderColor);
  Visible.SetQuietly(false);
  Place(from.X1, from.Y1, from.X2, from.Y2);
}

Rect Line::Bounds() const {
  const Container& parent = Parent();
  const int x1 = parent.ToPixels(X1), y1 = parent.ToPixels(Y1);
  const int x2 = parent.ToPixels(X2), y2 = parent.ToPixels(Y2);
  const int thick = std::max<int>(1, BorderWidth);
  const int left = std::min(x1, x2) - thick / 2, top = std::min(y1, y2) - thick / 2;
  return {left, top, std::abs(x2 - x1) + thick, std::abs(y2 - y1) + thick};
}

void Line::Paint(Canvas& canvas, Point origin, const Rect&) const {
  canvas.Fill(Bounds().Moved(origin), BorderColor);
}

void Shape::Paint(Canvas& canvas, Point origin, const Rect&) const {
  const Rect box = Bounds().Moved(origin);
  canvas.Fill(box, FillColor);
  Frame(canvas, box, BorderColor);
}

}  // namespace orvanta
