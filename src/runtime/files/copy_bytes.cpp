#include "runtime/files/copy_bytes.h"

#include <cerrno>
#include <fstream>
#include <system_error>
#include <vector>

#include "runtime/fault.h"
#include "runtime/files/path_names.h"
#include "runtime/files/plain_file.h"
#include "runtime/text/print_line.h"

namespace runtime::files {

namespace {

void pour(std::ifstream& source, std::ofstream& target, const std::string& source_name,
          const std::string& target_name) {
  std::vector<char> buffer(std::size_t{1} << 20);
  errno = 0;
  while (source.good() && target.good()) {
    source.read(buffer.data(), static_cast<std::streamsize>(buffer.size()));
    target.write(buffer.data(), source.gcount());
  }
  if (source.bad()) throw Fault(57, source_name);
  if (target.good()) target.close();
  text::expect_written(target, target_name);
}

}  // namespace

void copy_bytes(const std::filesystem::path& from, const std::filesystem::path& to) {
  expect_plain_file(from);
  std::ifstream source(from, std::ios::binary);
  if (!source) throw Fault(75, text_of(from));
  std::ofstream target(to, std::ios::binary | std::ios::trunc);
  if (!target) throw Fault(75, text_of(to));
  try {
    pour(source, target, text_of(from), text_of(to));
  } catch (const Fault&) {
    target.close();
    std::error_code error;
    std::filesystem::remove(to, error);
    throw;
  }
}

}  // namespace runtime::files
