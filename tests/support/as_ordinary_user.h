#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

namespace tr7 {

/// Nothing is protected from root: a run as root becomes another user for a while.
class AsOrdinaryUser {
 public:
  AsOrdinaryUser() : was_root_(geteuid() == 0) {
    if (was_root_) {
      EXPECT_EQ(setresuid(kNobody, kNobody, 0), 0);
    }
  }
  ~AsOrdinaryUser() {
    if (was_root_) {
      EXPECT_EQ(setresuid(0, 0, 0), 0);
    }
  }
  AsOrdinaryUser(const AsOrdinaryUser&) = delete;
  AsOrdinaryUser& operator=(const AsOrdinaryUser&) = delete;

 private:
  static constexpr uid_t kNobody = 65534;
  bool was_root_;
};

}  // namespace tr7
