#pragma once

namespace orvanta {

/// Two files in the root of an image's unpacked copy. Wine takes the label of a drive and its serial number
/// (eight hexadecimal digits) from them, where it cannot read them from a device.
inline constexpr const char* VolumeLabelFile = ".windows-label";
inline constexpr const char* VolumeSerialFile = ".windows-serial";

}  // namespace orvanta
