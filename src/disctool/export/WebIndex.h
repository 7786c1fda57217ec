#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "disctool/disc/DiscTree.h"
#include "platform/FileKind.h"

namespace orvanta {

/// A file of an exported disc as the page is told of it.
struct WebFile {
  std::uintmax_t size = 0;  ///< in bytes
  /// Started by the user: what it is.
  FileKind kind = FileKind::Document;
  bool read = false;   ///< the program reads it itself, at its start
  std::string as{};    ///< the converted file that is played in its place, from the page's folder; or empty
  std::string data{};  ///< its content in base64, in a page of a single file
};

/// The disc's files by their paths from its root, spelled as they are there.
using WebFiles = std::map<std::string, WebFile>;

/// Every file of a disc but those whose names are not UTF-8; their folders are told apart by what `Look`
/// says. A link that leads round in circles ends at forty folders.
WebFiles ListWebFiles(const DiscTree& disc);

/// Whether the shell may have to play the file, by its extension.
bool IsPlayed(const std::string& path);

/// What `page/disc.js` reads: `{"title", "files": {PATH: {"size", "kind", "read", "as", "data"}}}`.
std::string WebIndexJson(const std::string& title, const WebFiles& files);

}  // namespace orvanta
