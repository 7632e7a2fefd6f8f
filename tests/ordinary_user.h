// File modes as an ordinary user meets them.
#pragma once

#ifndef _WIN32
#include <unistd.h>

namespace testing_aids {

/// While it lives, the administrator, who passes over file modes, acts as a user without rights.
class OrdinaryUser {
 public:
  OrdinaryUser() { is_there_ = !was_root_ || seteuid(65534) == 0; }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;
  ~OrdinaryUser() {
    if (was_root_) is_there_ = seteuid(0) == 0;
  }

  explicit operator bool() const { return is_there_; }

 private:
  bool was_root_ = geteuid() == 0;
  bool is_there_ = false;
};

}  // namespace testing_aids
#endif
