#include "session/followers.h"

namespace tr7 {

FollowersRecord Followers;

}  // namespace tr7
