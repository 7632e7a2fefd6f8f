#include "common/text_file.h"

#include <filesystem>
#include <fstream>
#include <system_error>

#include "common/refusal.h"

namespace model {

bool write_file(const std::string& name, std::string_view bytes) {
  std::ofstream file(name, std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  return file.good();
}

void write_lines(const std::string& name, std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size() + text.size() / 16);
  for (const char c : text) {
    if (c == '\n') bytes += '\r';
    bytes += c;
  }
  if (write_file(name, bytes)) return;
  std::error_code ignored;
  // Only a plain file can be a cut one: a directory or a device of that name was there before.
  if (std::filesystem::is_regular_file(name, ignored)) std::filesystem::remove(name, ignored);
  throw Refusal(name, "the file cannot be written");
}

}  // namespace model
