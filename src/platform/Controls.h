#pragma once

#include <string>

#include "platform/Canvas.h"
#include "platform/Control.h"

namespace orvanta {

/// A picture. Without `Stretch` the control takes the size of each picture that it is given. An empty picture
/// does not change the size, so that a control without art can still be clicked.
class Image : public BoxControl {
 public:
  Image(Container& parent, std::string name, std::int16_t index = -1);

  Property<PicturePtr> Picture;
  Property<bool> Stretch;
  /// 1 is a thin line inside the edge, 0 means none.
  Property<int> BorderStyle;

  void CopyDesign(const Image& from);
  void Paint(Canvas& canvas, Point origin, const Rect& area) const override;
  void PropertyChanged(const void* property) override;
};

/// A picture that contains controls and clips them. If `AutoSize` is on, it takes the size of its picture.
class PictureBox : public BoxControl, public Container {
 public:
  PictureBox(Container& parent, std::string name);

  Property<PicturePtr> Picture;
  Property<bool> AutoSize;
  /// The background where there is no picture.
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

  void CopyDesign(const Label& from);
  void Paint(Canvas& canvas, Point origin, const Rect& area) const override;
};

/// A horizontal or vertical line between two points, including both, `BorderWidth` pixels thick (at least 1)
/// and centred on them. A slanting line is painted as the rectangle around it.
class Line : public Control {
 public:
  Line(Container& parent, std::string name, std::int16_t index = -1);

  Property<double> X1, Y1, X2, Y2;
  Property<int> BorderWidth;
  Property<ColourValue> BorderColor;

  void Place(double x1, double y1, double x2, double y2);
  void CopyDesign(const Line& from);
  Rect Bounds() const override;
  void Paint(Canvas& canvas, Point origin, const Rect& area) const override;
};

/// A filled rectangle with a border of one pixel. It takes no clicks.
class Shape : public BoxControl {
 public:
  Shape(Container& parent, std::string name) : BoxControl(parent, std::move(name)) {}

  ColourValue FillColor = 0;
  ColourValue BorderColor = 0;

  Control* Hit(Point) override { return nullptr; }
  void Paint(Canvas& canvas, Point origin, const Rect& area) const override;
};

}  // namespace orvanta
