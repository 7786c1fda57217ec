#pragma once

#include <QImage>
#include <map>
#include <string>

namespace orvanta {

/// The pictures of a new disc, by their file names without ".gif".
std::map<std::string, QImage> NewDiscArt();

}  // namespace orvanta
