#include "state/app_state.h"

namespace tr7 {

AppStateRecord AppState;

}  // namespace tr7
