#pragma once

// With what nearly every test of shared state uses: texts, devices, views.

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "base/text_helpers.h"
#include "core/reset_state.h"
#include "device/dev_setting.h"
#include "device/device_list.h"
#include "device/limits.h"
#include "forms/control.h"
#include "forms/frm_device.h"
#include "forms/frm_main.h"
#include "forms/frm_parameta2.h"
#include "forms/frm_posi.h"
#include "para/param_set.h"
#include "platform/doors.h"
#include "posi/posi_grid_layout.h"
#include "posi/posi_range.h"
#include "posi/posi_table.h"
#include "state/app_state.h"
#include "state/message_box.h"
#include "state/text.h"
#include "state/text_file.h"
#include "state/views.h"
#include "tests/support/virtual_doors.h"

namespace tr7 {

using Texts = std::vector<std::string>;

/// The device of one axis as a user would choose it, of the new catalogue.
void SetDevice(DevSettingRecord& device, const char* size, const char* speed, int stroke);

/// The user chooses this entry; fails when the list does not offer it.
void Pick(ComboBox& list, const std::string& text);

/// The user chooses one axis's device; a speed or stroke that is not given stays.
void PickDevice(DeviceView& view, int axis, const char* size, const char* speed = nullptr,
                const char* stroke = nullptr);

/// The text with this part of it replaced, where it stands first.
std::string With(std::string text, const std::string& part, const std::string& other);

/// Every test that touches shared state: start values, virtual doors, English.
class StateTest : public ::testing::Test {
 protected:
  explicit StateTest(const qvr7sim::Setup& setup = qvr7sim::Setup::Useful());

  /// Fails when a box or dialogue came up that the script did not expect.
  void TearDown() override;

  /// What the user does in a modal view, visit by visit; a visit more counts as unanswered.
  void InDialog(const std::string& view, std::vector<std::function<void()>> visits);
  /// Shared state as at the start, in English, for the next row of a table.
  static void StartAnew();
  /// True when a box holds this text.
  bool BoxShown(const std::string& part) const;
  /// Texts of the boxes since the last call.
  Texts Boxes();
  /// The lines sent, without their ends.
  Texts Lines() const;
  /// The first `characters` of every line sent, one blank behind each.
  std::string SentLines(std::size_t characters = std::string::npos) const;
  /// A fault at the `at_request`-th request that begins with `prefix`; 0: at every one. Bytes of a
  /// reply count from 0.
  void Spoil(qvr7sim::FaultKind kind, const std::string& prefix, int at_request = 1,
             int at_byte = -1);
  /// Puts a file into the program's folder in the place of its own.
  void PutList(const char* name, const std::string& content);

  VirtualDoors virt;
  VirtualPump& pump = virt.pump;
  VirtualFormHost& forms = virt.forms;
  SimPort& port = virt.port;
  bool allow_unanswered = false;
};

}  // namespace tr7
