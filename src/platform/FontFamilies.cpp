#include "platform/FontFamilies.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "platform/AsciiText.h"

namespace orvanta {

namespace {

/// The Liberation font that replaces a font; empty if there is none.
std::string_view StandIn(std::string_view name) {
  static constexpr struct {
    std::string_view old;
    std::string_view now;
  } kTable[] = {{"MS Sans Serif", "Liberation Sans"}, {"Microsoft Sans Serif", "Liberation Sans"},
                {"Arial", "Liberation Sans"},         {"Helvetica", "Liberation Sans"},
                {"Tahoma", "Liberation Sans"},        {"Verdana", "Liberation Sans"},
                {"System", "Liberation Sans"},        {"Times New Roman", "Liberation Serif"},
                {"MS Serif", "Liberation Serif"},     {"Courier New", "Liberation Mono"},
                {"Courier", "Liberation Mono"}};
  // "Arial CE" was the same font with another code page.
  constexpr std::string_view kCodePage = " CE";
  const bool codePage = name.size() > kCodePage.size() &&
                        EqualNoCaseAscii(name.substr(name.size() - kCodePage.size()), kCodePage);
  if (codePage) name.remove_suffix(kCodePage.size());
  for (const auto& entry : kTable) {
    if (EqualNoCaseAscii(name, entry.old)) return entry.now;
  }
  return {};
}

}  // namespace

std::vector<std::string> FontFamilies(const std::string& name) {
  std::vector<std::string> families;
  for (const std::string_view family :
       {std::string_view(name), StandIn(name), std::string_view("Liberation Sans")}) {
    if (!family.empty() && std::find(families.begin(), families.end(), family) == families.end())
      families.emplace_back(family);
  }
  return families;
}

int PixelSize(const Font& font) { return std::max(1, static_cast<int>(std::nearbyint(font.size * 96 / 72))); }

}  // namespace orvanta
