#include "tests/support/state_test.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace tr7 {
namespace {

void PutListFiles(MemoryFiles& files) {
  for (const auto& entry : std::filesystem::directory_iterator(TR7_SOURCE_LISTS)) {
    std::ifstream file(entry.path(), std::ios::binary);
    files.Put(files.program_folder + "/" + entry.path().filename().string(),
              {std::istreambuf_iterator<char>(file), {}});
  }
}

}  // namespace

VirtualDoors::VirtualDoors(const qvr7sim::Setup& setup, std::uint64_t seed) : port(setup, seed) {
  doors.pump = &pump;
  doors.serial = &port;
  doors.forms = &forms;
  doors.settings = &settings;
  doors.clipboard = &clipboard;
  doors.help = &help;
  doors.files = &files;
  PutListFiles(files);
  settings.Set("Settings", "PortDevice1", "sim");
}

VirtualDoors::~VirtualDoors() { doors = Doors{}; }

StateTest::StateTest(const qvr7sim::Setup& setup) : virt(setup) {
  ResetState();
  AppState.LanguageNo = 2;
  AppState.LangOffset = 10000;
}

void StateTest::TearDown() {
  if (allow_unanswered) return;
  for (const std::string& name : forms.unanswered) ADD_FAILURE() << "unanswered: " << name;
}

bool StateTest::BoxShown(const std::string& part) const {
  for (const MessageBoxCall& box : forms.boxes) {
    if (box.Text.find(part) != std::string::npos) return true;
  }
  return false;
}

}  // namespace tr7
