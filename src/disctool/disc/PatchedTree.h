#pragma once

#include <map>
#include <string>

#include "disctool/disc/DiscTree.h"

namespace orvanta {

/// Another disc with different bytes in some of its files, to see the effect of a change.
class PatchedTree : public DiscTree {
 public:
  /// `disc` must outlive it.
  explicit PatchedTree(const DiscTree& disc) : DiscTree(disc.Name()), disc_(disc) {}

  void Replace(const std::string& path, std::string bytes) { files_[path] = std::move(bytes); }

  Entry EntryAt(const std::string& path) const override;
  bool IsLink(const std::string& path) const override { return disc_.IsLink(path); }
  bool LeadsOff(const std::string& path) const override { return disc_.LeadsOff(path); }
  std::string Label() const override { return disc_.Label(); }
  std::vector<std::string> List(const std::string& folder) const override { return disc_.List(folder); }
  std::optional<std::string> Read(const std::string& path, std::uintmax_t from = 0,
                                  std::uintmax_t most = kAll) const override;
  /// The unpatched file of the other disc.
  std::filesystem::path OnHost(const std::string& path) const override { return disc_.OnHost(path); }

 private:
  const DiscTree& disc_;
  std::map<std::string, std::string> files_;
};

}  // namespace orvanta
