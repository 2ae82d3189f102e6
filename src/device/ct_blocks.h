#pragma once

#include <cstddef>
#include <string>

namespace tr7 {

// The controller's parameter memory as it lies on the line: blocks "0" to "9" and "A" to "D".

inline constexpr int kParaBlocks = 14;
inline constexpr std::size_t kParaBlockLength = 32;
/// Where a block's data begins in its reply, counted from 1: behind "0RD" and the block character.
inline constexpr std::size_t kParaDataAt = 5;

/// Character of a block on the line, "0" to "9" and "A" to "D".
char ParaBlockChar(int block);
/// Index of an axis' (0 to 3) first, second or third block (0 to 2); the third is the device block.
int ParaBlockOfAxis(int axis, int which);

/// Size and speed in the four characters that they have in the device block; empty when they have
/// no form there.
std::string DeviceTextField(const std::string& size, const std::string& speed);
/// The reverse: size and speed as the device block carries them, its positions 21 and 23.
void TakeDeviceTexts(const std::string& size_field, const std::string& speed_field,
                     std::string& size, std::string& speed);

}  // namespace tr7
