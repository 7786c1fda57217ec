#include "config/Settings.h"

#include "config/Values.h"

namespace orvanta {

std::int16_t Settings::Whole(KeyRef<Kind::Whole> key) const { return WholeOf(Value(key)); }
float Settings::Single(KeyRef<Kind::Single> key) const { return SingleOf(Value(key)); }
double Settings::Double(KeyRef<Kind::Double> key) const { return DoubleOf(Value(key)); }
bool Settings::Boolean(KeyRef<Kind::Boolean> key) const { return BooleanOf(Value(key)); }
std::int32_t Settings::Colour(KeyRef<Kind::Colour> key) const { return ColourOf(Value(key)); }

std::string Settings::Picture(KeyRef<Kind::Picture> key) const { return ini_->PicturePath(Value(key)); }
std::string Settings::Base(KeyRef<Kind::Base> key) const { return ini_->PicturePath(Value(key)); }
std::string Settings::Font(KeyRef<Kind::Font> key) const { return ini_->PicturePath(Value(key)); }
std::string Settings::Sound(KeyRef<Kind::Sound> key) const { return ini_->SoundPath(Value(key)); }

}  // namespace orvanta
