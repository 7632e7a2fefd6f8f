#include "runtime/files/plain_file.h"

#include "runtime/fault.h"
#include "runtime/files/path_names.h"
#include "runtime/files/path_state.h"

namespace runtime::files {

void expect_plain_file(const std::filesystem::path& path) {
  if (is_there(path) && !is_plain_file(path)) throw Fault(75, text_of(path));
}

}  // namespace runtime::files
