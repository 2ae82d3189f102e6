#pragma once

#include <string>
#include <vector>

#include "device/device_list_record.h"

namespace tr7 {

enum class DeviceListKind { Old, New };

/// Reads the catalogue's file into `list`. False when it is missing or damaged: rows read so far
/// stand then, without sizes and speeds. Shows nothing.
bool ReadDeviceListFile(DeviceListKind kind, DeviceListRecord& list);

/// The distinct speeds of the rows of this size, in the file's order; false when they are more than
/// a list holds.
bool SpeedsOfSize(const DeviceListRecord& list, const std::string& size,
                  std::vector<std::string>& speeds);

}  // namespace tr7
