#pragma once

#include <string>
#include <vector>

#include "device/device_list_record.h"

namespace tr7 {

enum class DeviceListKind { Old, New };

/// How reading a catalogue went.
struct DeviceListReport {
  bool Read = false;    ///< false: missing or damaged; rows read so far stand, but no names
  std::string Fault;    ///< why not; empty for a file that is not there
  std::string LeftOut;  ///< the rows that are left out, a line each under a heading; empty: none
};

/// Reads the catalogue's file into `list`. A row with a number out of its range is left out: the
/// others are good without it. Shows nothing.
DeviceListReport ReadDeviceListFile(DeviceListKind kind, DeviceListRecord& list);

/// The distinct speeds of the rows of this size, in the file's order; false when they are more than
/// a list holds.
bool SpeedsOfSize(const DeviceListRecord& list, const std::string& size,
                  std::vector<std::string>& speeds);

}  // namespace tr7
