#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "disctool/image/sectors/DataSectors.h"
#include "disctool/image/volume/VolumeEntry.h"

namespace orvanta {

/// The ISO 9660 file system of a disc (ECMA-119), with the names of Rock Ridge or Joliet if it has them.
/// Everything is read in place and only when it is needed. Nothing that an image claims is trusted.
class Volume {
 public:
  /// The names of Rock Ridge are used if all of them are UTF-8, or if there are no others. Null if the data
  /// has no file system.
  static std::unique_ptr<Volume> Open(SessionData data);

  const VolumeEntry& Root() const { return root_; }
  /// The content of a folder, each name once. Names that lead out of it are left out; then `fault` says so.
  std::vector<VolumeEntry> List(const VolumeEntry& folder, std::string* fault = nullptr) const;
  /// At most `most` bytes of a file, starting at `from`; nothing if they cannot be read.
  std::optional<std::string> Read(const VolumeEntry& file, std::uint64_t from, std::uint64_t most) const;
  /// The size of all data on the disc, in bytes. No file is larger.
  std::uint64_t Capacity() const;
  /// The name of the disc, in UTF-8.
  const std::string& Label() const { return label_; }
  /// Its label, size and dates as they are written on it: different for two discs in one drive.
  const std::string& Id() const { return id_; }
  /// The serial number that Windows NT and its successors, and Wine, show for the disc: a checksum of the
  /// descriptor of its Joliet names, or else of the primary one.
  std::uint32_t Serial() const { return serial_; }

 private:
  enum class Names { Plain, RockRidge, Joliet };

  explicit Volume(SessionData data) : sectors_(std::move(data.sectors)) {}
  bool ReadDescriptors(std::size_t run);
  std::uint64_t FindRoot(std::uint32_t block) const;
  void UseNames(const std::string& primary, const std::string& joliet);
  bool AllNamesAreUtf8() const;
  VolumeEntry EntryOf(std::string_view record) const;
  std::string BytesOf(const VolumeEntry& folder) const;

  DataSectors sectors_;
  VolumeEntry root_;
  Names names_ = Names::Plain;
  std::size_t skip_ = 0;  // bytes before those of Rock Ridge
  std::string label_, id_;
  std::uint32_t serial_ = 0;
};

}  // namespace orvanta
