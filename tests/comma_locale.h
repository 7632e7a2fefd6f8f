// A country where numbers have a comma.
#pragma once

#include <cstdlib>
#include <locale>
#include <stdexcept>

namespace testing_aids {

/// While it lives, the C library and the streams write numbers with a comma, as in Germany. The build makes
/// the locale, so that the machine need not have it.
class CommaLocale {
 public:
  CommaLocale() {
#ifdef COMMA_LOCALES
    setenv("LOCPATH", COMMA_LOCALES, 1);
#endif
    try {
      std::locale::global(std::locale("de_DE.UTF-8"));
      is_there_ = true;
    } catch (const std::runtime_error&) {
      is_there_ = false;
    }
  }
  CommaLocale(const CommaLocale&) = delete;
  CommaLocale& operator=(const CommaLocale&) = delete;
  ~CommaLocale() {
    std::locale::global(before_);
  }

  explicit operator bool() const {
    return is_there_;
  }

 private:
  std::locale before_;
  bool is_there_ = false;
};

}  // namespace testing_aids
