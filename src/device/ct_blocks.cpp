#include "device/ct_blocks.h"

#include "base/text_helpers.h"

namespace tr7 {
namespace {

constexpr int kFirstOfAxis = 2;  // axis 1's first block; three for each axis
// The one size with a letter: the speed's place carries a mark instead of the speed.
const char* const kMarkedSize = "E35";
const char* const kMarkedSpeed = "L";
const char* const kMark = "E";

bool IsPlain(const std::string& text) {
  for (const char c : text) {
    if (c < ' ' || c > '~') return false;
  }
  return true;
}

}  // namespace

char ParaBlockChar(int block) { return "0123456789ABCD"[block]; }

int ParaBlockOfAxis(int axis, int which) { return kFirstOfAxis + 3 * axis + which; }

std::string DeviceTextField(const std::string& size, const std::string& speed) {
  if (size == kMarkedSize) return speed == kMarkedSpeed ? size.substr(1) + kMark + " " : "";
  if (size.size() != 3 || size[0] != ' ' || speed.size() != 1) return "";
  if (speed == kMark || !IsPlain(size + speed)) return "";
  return size.substr(1) + speed + " ";
}

void TakeDeviceTexts(const std::string& size_field, const std::string& speed_field,
                     std::string& size, std::string& speed) {
  speed = Trim(speed_field);
  if (speed == kMark) {
    speed = kMarkedSpeed;
    size = kMarkedSize;
  } else {
    size = " " + size_field;
  }
}

}  // namespace tr7
