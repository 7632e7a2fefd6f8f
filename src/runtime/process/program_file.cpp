#include "runtime/process/program_file.h"

#include <cstdint>
#include <fstream>
#include <string>

namespace runtime::process {

namespace {

std::string bytes_at(std::istream& file, std::uint32_t offset, std::size_t count) {
  std::string bytes(count, '\0');
  file.seekg(offset);
  file.read(bytes.data(), static_cast<std::streamsize>(count));
  return file ? bytes : std::string();
}

// The lowest byte comes first, on every processor.
std::uint32_t number_in(const std::string& bytes) {
  std::uint32_t number = 0;
  for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte) {
    number = number << 8 | static_cast<unsigned char>(*byte);
  }
  return number;
}

}  // namespace

ProgramKind kind_of_program(const std::filesystem::path& path) {
  constexpr std::uint32_t header_offset_field = 0x3C;
  constexpr std::uint32_t x86_32 = 0x14C;
  constexpr std::uint32_t x86_64 = 0x8664;
  std::ifstream file(path, std::ios::binary);
  if (bytes_at(file, 0, 2) != "MZ") return ProgramKind::Native;
  const std::uint32_t header = number_in(bytes_at(file, header_offset_field, 4));
  if (bytes_at(file, header, 4) != std::string("PE\0\0", 4)) return ProgramKind::OtherWindows;
  const std::uint32_t machine = number_in(bytes_at(file, header + 4, 2));
  if (machine == x86_32) return ProgramKind::Windows32;
  return machine == x86_64 ? ProgramKind::Windows64 : ProgramKind::OtherWindows;
}

}  // namespace runtime::process
