#pragma once

#include <string>
#include <vector>

#include "platform/Canvas.h"
#include "platform/headless/PictureFile.h"

namespace orvanta {

/// Records what is painted, with the part that the clip lets through.
class RecordingCanvas : public Canvas {
 public:
  struct Stroke {
    enum class Kind { Fill, Picture, Text } kind;
    Rect seen;  ///< in pixels of the form
    Rect whole;
    ColourValue colour = 0;
    std::string text;  ///< the text, or the file name of the picture
  };
  std::vector<Stroke> strokes;

  void PushClip(const Rect& area) override {
    clips_.push_back(clips_.empty() ? area : Intersection(clips_.back(), area));
  }
  void PopClip() override { clips_.pop_back(); }
  void Fill(const Rect& area, ColourValue colour) override {
    Add({Stroke::Kind::Fill, {}, area, colour, {}});
  }
  void Draw(const Picture& picture, const Rect& target) override {
    const auto* file = dynamic_cast<const PictureFile*>(&picture);
    Add({Stroke::Kind::Picture, {}, target, 0, file ? file->name : std::string()});
  }
  void Text(const std::string& text, const Rect& area, const Font&, ColourValue colour, Alignment) override {
    Add({Stroke::Kind::Text, {}, area, colour, text});
  }

 private:
  void Add(Stroke stroke) {
    stroke.seen = clips_.empty() ? stroke.whole : Intersection(clips_.back(), stroke.whole);
    if (!stroke.seen.Empty()) strokes.push_back(std::move(stroke));
  }

  std::vector<Rect> clips_;
};

}  // namespace orvanta
