#include "device/device_names.h"

#include <string>

#include "base/text_helpers.h"
#include "device/dev_setting.h"
#include "device/dev_setting_store.h"
#include "device/device_list.h"
#include "state/axes_in_use.h"
#include "state/message_box.h"

namespace tr7 {
namespace {

constexpr int kMsgNotSelected = 4;
constexpr int kMsgSelectAgain = 5;
constexpr int kOptionLetters = 3;
constexpr int kShortestWithStroke = 9;

struct DeviceName {
  std::string size, speed;
  double stroke = 0;
  std::string options;  ///< at most three letters
};

std::string DigitsAt(const std::string& name, int first) {
  const std::string rest = MidChars(name, first, CharCount(name));
  return rest.substr(0, rest.find_first_not_of("0123456789"));
}

/// Cuts a name of two ("QV-28L-100E") or three ("QV-E35L-100E") characters of size.
DeviceName Cut(const std::string& name) {
  if (MidChars(name, 7, 1) == "-") {
    const bool has_stroke = CharCount(name) >= kShortestWithStroke;
    return {RightAlignText(MidChars(name, 4, 2), 3), MidChars(name, 6, 1),
            has_stroke ? Val(DigitsAt(name, 8)) : 0, MidChars(name, 11, kOptionLetters)};
  }
  return {MidChars(name, 4, 3), MidChars(name, 7, 1), Val(MidChars(name, 9, 3)),
          MidChars(name, 12, kOptionLetters)};
}

bool TakeSeries(int axis, const std::string& name) {
  const std::string series = MidChars(name, 1, 3);
  if (series != "QV-" && series != "NB-") return false;
  DevSettei[axis].NewType = False;
  if (series == "QV-") {
    DevSetting[axis].Series = DevSettei[axis].Series = "QV";
    DevSettei[axis].NewType = DevSettei[axis].NewTypeWord == "NEW";
  }
  return true;
}

/// False: the device is not in the catalogue.
bool TakeOptions(DevSettingRecord& device, const std::string& options) {
  const auto chosen = [&](char letter) { return options.find(letter) != std::string::npos; };
  const int vertical = GetVKindNew(device.Size, device.Speed, device.Stroke);
  if (vertical == kKindUnknown) return false;
  // Where the variant may be chosen, a name without the letter says nothing: it stays as it was.
  if (vertical != 1) device.Vertical = vertical == 2;
  if (vertical == 1 && chosen('V')) device.Vertical = True;

  const int pg = GetPgKindNew(device.Size, device.Speed, device.Stroke);
  if (pg == kKindUnknown) return false;
  device.WithPG = pg == 2 || (pg == 1 && chosen('E'));
  return true;
}

bool ParseName(int axis) {
  if (!TakeSeries(axis, FileDevice[axis])) return false;
  const DeviceName name = Cut(FileDevice[axis]);
  if (CheckDeviceFormat(name.size, name.speed, name.stroke) != 0) return false;
  DevSettingRecord& device = DevSettei[axis];
  device.Size = name.size;
  device.Speed = name.speed;
  device.Stroke = static_cast<std::int16_t>(name.stroke);
  // Every name counts as new type here, whatever the file's header says.
  device.NewType = True;
  return TakeOptions(device, name.options);
}

}  // namespace

int ParseDeviceNames() {
  for (const int axis : AxesInUse()) {
    if (AppState.AxisMukoOfFile[axis] || ParseName(axis)) continue;
    MsgBox(TwoLines(kMsgNotSelected, kMsgSelectAgain));
    return 1;
  }
  return 0;
}

}  // namespace tr7
