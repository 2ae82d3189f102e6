#include "tests/fleet/work_files.h"

#include <string>

#include "state/app_state.h"

namespace tr7 {
namespace {

std::string Quoted(const std::string& text) { return '"' + text + '"'; }

std::string AnyDevices(Random& random) {
  std::string line;
  for (int axis = 0; axis < kAxes; ++axis) {
    const std::string name = random.OneOf({"QV- 28L-100_", "QV- 28L-100_", "QV- 28L-100_",
                                           "QV- 28H-200E", "QV-E35L-200_", "QV- 28L-333_"});
    const bool none = axis > 0 && random.Chance(10);
    line += (axis > 0 ? "," : "") + Quoted(none ? "" : name);
  }
  return line + "\r\n";
}

std::string AnyWords(Random& random) {
  std::string line;
  for (int axis = 0; axis < kAxes; ++axis) {
    line += (axis > 0 ? "," : "") + Quoted(random.Chance(80) ? "NEW" : "OLD");
  }
  return line + "\r\n";
}

std::string AnyPosition(Random& random, int number) {
  std::string line = std::to_string(number);
  for (int axis = 0; axis < kAxes; ++axis) {
    line += ",\" 30\",\" 10\",\" 1\"," + Quoted(" " + std::to_string(random.Below(10000))) +
            ",\" 0\",\" 0\"";
  }
  return line + ",\" 0\",\" 0\",\" 0\"," + Quoted(random.OneOf({"", "approach", "pick"})) + "\r\n";
}

std::string AnyFile(Random& random) {
  const bool program = random.Chance(25);
  std::string text = "\"QV-R7\"\r\n";
  text += program ? "\"PRG MODE\"\r\n" : "\"POS MODE\"\r\n";
  text += AnyDevices(random) + AnyWords(random);
  const int first = random.Between(1, 30);
  for (int n = first; n <= first + random.Below(12); ++n) text += AnyPosition(random, n);
  return text;
}

}  // namespace

void PutWorkFiles(Voyage& voyage) {
  for (const char* path : {"/work/a.qvd", "/work/b.qvd"}) {
    if (voyage.random.Chance(20)) continue;
    voyage.virt.files.Put(path, AnyFile(voyage.random));
    voyage.damaged.insert(path);  // not a file as this tool spells it
  }
}

}  // namespace tr7
