#include "runtime/files/wildcards.h"

#include "runtime/files/path_names.h"

namespace runtime::files {

bool has_wildcard(std::string_view name) {
  return name.find_first_of("*?") != std::string_view::npos;
}

bool matches(std::string_view pattern, std::string_view name) {
  if (pattern.empty()) return name.empty();
  const std::string_view rest = pattern.substr(1);
  const bool at_end = name.empty();
  switch (pattern.front()) {
    case '*':
      return matches(rest, name) || (!at_end && matches(pattern, name.substr(1)));
    case '?':
      return at_end || name.front() == '.' ? matches(rest, name) : matches(rest, name.substr(1));
    case '.':
      if (at_end) return has_wildcard(rest.substr(0, 1)) && matches(rest, name);
      break;
    default:
      if (at_end) return false;
  }
  return equal_but_for_case(pattern.substr(0, 1), name.substr(0, 1)) && matches(rest, name.substr(1));
}

}  // namespace runtime::files
