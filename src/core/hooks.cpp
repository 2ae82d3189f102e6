#include "core/hooks.h"

namespace tr7 {

HookTable Hooks;

}  // namespace tr7
