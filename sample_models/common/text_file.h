// Writing whole text files.
#pragma once

#include <string>
#include <string_view>

namespace model {

/// Replaces the file `name` by `bytes`. False when not every byte reached the file.
bool write_file(const std::string& name, std::string_view bytes);

/// Replaces the file `name` by `text`, whose lines end in "\n" and come out with CR LF. Throws Refusal when
/// the file cannot be written whole; no cut file stays behind then.
void write_lines(const std::string& name, std::string_view text);

}  // namespace model
