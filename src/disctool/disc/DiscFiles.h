#pragma once

#include <optional>
#include <string>
#include <unordered_map>

#include "disctool/disc/DiscProbe.h"
#include "disctool/disc/DiscTree.h"

namespace orvanta {

/// The files that the settings of a disc name. Each path is looked up only once, and each file is tried only
/// once.
class DiscFiles {
 public:
  /// Both must outlive this object.
  DiscFiles(const DiscTree& disc, DiscProbe& probe) : disc_(disc), probe_(probe) {}

  /// The same as `DiscTree::Find`.
  const FoundPath& Find(const std::string& windowsPath);

  DiscTree::Kind KindOf(const std::string& path) const { return disc_.EntryAt(path).kind; }
  /// The same as the functions of the probe, for paths on the disc. Whatever is not a file counts as
  /// unreadable.
  std::optional<Size> PictureSize(const std::string& path);
  std::int64_t MostPixels() const { return probe_.MostPixels(); }
  std::vector<std::string> FontNames(const std::string& path);
  bool CanPlay(const std::string& path, bool film);
  std::string DecodingProblem(const std::string& path);
  Runner RunnerOf(const FileFacts& facts) const { return probe_.RunnerOf(facts); }

 private:
  template <class Value, class Try>
  Value Once(std::unordered_map<std::string, Value>& known, const std::string& path, Try attempt);

  const DiscTree& disc_;
  DiscProbe& probe_;
  std::unordered_map<std::string, FoundPath> found_;
  std::unordered_map<std::string, std::optional<Size>> pictures_;
  std::unordered_map<std::string, std::vector<std::string>> fonts_;
  std::unordered_map<std::string, bool> sounds_, films_;
  std::unordered_map<std::string, std::string> decoded_;
};

}  // namespace orvanta
