#pragma once

#include <filesystem>
#include <string>

namespace orvanta {

std::string Base64(const std::string& bytes);

/// The page of the folder `page` as one HTML file: its style sheet and scripts inside, the program and
/// `index` (the text of WebIndexJson) with them. Its content security policy names each script by its hash.
/// Empty if a file of the page cannot be read.
std::string SinglePage(const std::filesystem::path& page, const std::string& index);

}  // namespace orvanta
