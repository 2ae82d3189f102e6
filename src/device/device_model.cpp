#include "device/device_model.h"

#include "base/text_helpers.h"

namespace tr7 {
namespace {

constexpr int kStrokeChars = 3;

int StrokeAt(std::string_view raw, int first) {
  return static_cast<int>(Val(MidChars(raw, first, kStrokeChars)));
}

}  // namespace

DeviceModel CutOldModel(std::string_view raw) {
  return {PlainDecimal(Val(MidChars(raw, 1, 2))), MidChars(raw, 3, 1), StrokeAt(raw, 5)};
}

DeviceModel CutNewModel(std::string_view raw) {
  return {MidChars(raw, 1, 3), MidChars(raw, 4, 1), StrokeAt(raw, 6)};
}

}  // namespace tr7
