#include "core/build_facts.h"

namespace tr7 {

std::string BuildRevision() { return TR7_BUILD_REVISION; }
std::string BuildDate() { return TR7_BUILD_DATE; }

}  // namespace tr7
