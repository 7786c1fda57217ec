#pragma once

#include <filesystem>
#include <string>

#include "disctool/image/PackedDisc.h"
#include "disctool/image/sectors/ByteSource.h"

namespace orvanta {

/// Whether a file begins as a ZIP or 7z archive does.
bool IsArchiveFile(const ByteSource& bytes);

/// A ZIP or 7z archive. It is rejected if a name leads out of it, if it has a link, or if anything cannot be
/// read.
class PackedArchive : public PackedDisc {
 public:
  PackedArchive(std::filesystem::path file, std::string state)
      : file_(std::move(file)), state_(std::move(state)) {}

  std::string State() const override { return state_; }
  PackedContents Contents() const override;
  std::string Unpack(const std::filesystem::path& folder, const PackedContents& contents,
                     const Progress& progress) const override;
  std::string Restore(const std::filesystem::path& folder) const override;
  bool IsArchive() const override { return true; }

 private:
  const std::filesystem::path file_;
  const std::string state_;
};

/// Finds the one disc among the files of an unpacked archive: the folder that holds `Data`, or an image.
/// Empty if there is none, or if there are several; `problem` then says so.
std::filesystem::path FindDiscIn(const std::filesystem::path& folder, std::string& problem);

}  // namespace orvanta
