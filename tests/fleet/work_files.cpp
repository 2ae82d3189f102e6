#include "tests/fleet/voyage.h"

namespace tr7 {
namespace {

std::string Quoted(const std::string& text) { return '"' + text + '"'; }

/// A line with a field for each axis.
template <typename Field>
std::string AxisLine(Field field) {
  std::string line;
  for (int axis = 0; axis < kAxes; ++axis) line += (axis > 0 ? "," : "") + Quoted(field(axis));
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
  std::string text = "\"QV-R7\"\r\n";
  text += random.Chance(25) ? "\"PRG MODE\"\r\n" : "\"POS MODE\"\r\n";
  text += AxisLine([&random](int axis) {
    const std::string name = random.OneOf({"QV- 28L-100_", "QV- 28L-100_", "QV- 28L-100_",
                                           "QV- 28H-200E", "QV-E35L-200_", "QV- 28L-333_"});
    return axis > 0 && random.Chance(10) ? std::string() : name;
  });
  text += AxisLine([&random](int) { return std::string(random.Chance(80) ? "NEW" : "OLD"); });
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
