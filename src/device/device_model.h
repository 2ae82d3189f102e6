#pragma once

#include <string>
#include <string_view>

namespace tr7 {

/// What a model field names.
struct DeviceModel {
  std::string Size;   ///< 3 characters; of an old list the number alone, without a blank
  std::string Speed;  ///< 1 character
  int Stroke = 0;     ///< mm
};

// Model fields are cut by position; what a short field lacks stays empty or 0.

/// "28L-100": the size (by value) at 1, the speed at 3, the stroke (by value) at 5. Character 4 is
/// not read.
DeviceModel CutOldModel(std::string_view raw);
/// " 28L-100": the size (as text) at 1, the speed at 4, the stroke (by value) at 6. Character 5 is
/// not read.
DeviceModel CutNewModel(std::string_view raw);

}  // namespace tr7
