#pragma once

namespace orvanta {

/// Two files in the root of the unpacked copy of an image. Wine reads the label and the serial number (eight
/// hexadecimal digits) of a drive from them if it cannot read them from a device.
inline constexpr const char* VolumeLabelFile = ".windows-label";
inline constexpr const char* VolumeSerialFile = ".windows-serial";

}  // namespace orvanta
