#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <string>

namespace orvanta {

/// Bytes that can be read at any place: a file of the host or a block device.
class ByteSource {
 public:
  virtual ~ByteSource() = default;
  /// In bytes.
  virtual std::uint64_t Size() const = 0;
  /// Reads from the place `at` on. Gives how many bytes that were: fewer than asked for at the end, and where
  /// the medium is damaged.
  virtual std::size_t Read(std::uint64_t at, std::span<char> into) const = 0;
  /// A text that changes when the bytes do, as far as the system tells; always the same for a device.
  virtual std::string State() const = 0;

  /// Up to `most` bytes from the place `at` on. Memory grows with what is there, not with what is asked for.
  std::string Text(std::uint64_t at, std::uint64_t most) const;
};

using Bytes = std::shared_ptr<const ByteSource>;

/// Opens a file or a block device. Null if that fails or if it is something else, such as a FIFO; `problem`
/// then says why.
Bytes OpenBytes(const std::filesystem::path& file, std::string& problem);

}  // namespace orvanta
