#pragma once

#include <string>

#include "platform/Canvas.h"
#include "platform/Control.h"

namespace orvanta {

/// A picture. Without `Stretch` its size follows each picture that it is given; the empty picture leaves the
/// size as it was, so that a control without art can still be clicked.
class Image : public BoxControl {
 public:
  Image(Container& parent, std::string name, std::int16_t index = -1);

  Property<PicturePtr> Picture;
  Property<bool> Stretch;
  /// 1 is a thin single line inside the edge, 0 is none.
  Property<int> BorderStyle;

  void CopyLook(const Image& from);
  void Paint(Canvas& canvas, Point origin, const Rect& area) const override;
  void PropertyChanged(const void* property) override;
};

/// A picture that holds further controls and clips them. Its size follows its picture if `AutoSize` is on.
class PictureBox : public BoxControl, public Container {
 public:
  PictureBox(Container& parent, std::string name);

  Property<PicturePtr> Picture;
  Property<bool> AutoSize;
  /// Shown where there is no picture.
  Property<ColourValue> BackColor;

  Form& OwnerForm() override { return Parent().OwnerForm(); }
  void Invalidate(const Rect& area) override;
  Rect ClientArea() const override;
  void Paint(Canvas& canvas, Point origin, const Rect& area) const override;
  Control* Hit(Point p) override;
  void PropertyChanged(const void* property) override;
};

/// Text in one colour, wrapped at the label's width.
class Label : public BoxControl {
 public:
  Label(Container& parent, std::string name, std::int16_t index = -1);

  Property<std::string> Caption;
  Property<ColourValue> ForeColor, BackColor;
  /// 0 is transparent, 1 opaque.
  Property<int> BackStyle;
  Property<std::string> FontName;
  Property<bool> FontBold;
  /// In points.
  Property<double> FontSize;
  Property<Alignment> Align;

  void CopyLook(const Label& from);
  void Paint(Canvas& canvas, Point origin, const Rect& area) const override;
};

/// A level or upright line from one point to the other, both included, `BorderWidth` pixels thick (1 at the
/// least) around it. A slanting one is painted as the rectangle that it crosses.
class Line : public Control {
 public:
  Line(Container& parent, std::string name, std::int16_t index = -1);

  Property<double> X1, Y1, X2, Y2;
  Property<int> BorderWidth;
  Property<ColourValue> BorderColor;

  void Place(double x1, double y1, double x2, double y2);
  void CopyLook(const Line& from);
  Rect Bounds() const override;
  void Paint(Canvas& canvas, Point origin, const Rect& area) const override;
};

/// A filled rectangle with an edge of one pixel. It takes no clicks.
class Shape : public BoxControl {
 public:
  Shape(Container& parent, std::string name) : BoxControl(parent, std::move(name)) {}

  ColourValue FillColor = 0;
  ColourValue BorderColor = 0;

  Control* Hit(Point) override { return nullptr; }
  void Paint(Canvas& canvas, Point origin, const Rect& area) const override;
};

}  // namespace orvanta
