#include "tests/support/virtual_doors.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include "platform/doors.h"

namespace tr7 {

VirtualDoors::VirtualDoors(const qvr7sim::Setup& setup, std::uint64_t seed) : port(setup, seed) {
  doors = {&pump, &port, &settings, &forms, &clipboard, &files, &help};
  doors.printer = &printer;
  for (const auto& entry : std::filesystem::directory_iterator(TR7_SOURCE_LISTS)) {
    std::ifstream file(entry.path(), std::ios::binary);
    files.Put(files.program_folder + "/" + entry.path().filename().string(),
              {std::istreambuf_iterator<char>(file), {}});
  }
  settings.Set("Settings", "PortDevice1", "sim");
}

VirtualDoors::~VirtualDoors() { doors = Doors{}; }

}  // namespace tr7
