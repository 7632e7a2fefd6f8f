// Input #: values out of the free-format files that the models leave.
#pragma once

#include <istream>
#include <string>

namespace runtime::files {

/// What ends a value. A sentence holds blanks, so only a number or a word is read up to a blank.
enum class Until { blank_comma_or_line, comma_or_line };

/// The next value of a file opened in binary mode, as a text. Leading blanks are skipped, blanks behind the
/// value go, and so do quotes around it (what stands within them is taken whole, up to the end of the line).
/// The comma or line end behind the value is taken along, so "1, text", "1 ,text" and "1" above "text" all
/// give "1" and "text". A line end is LF, CR LF or CR; a line without a value is an empty text. A file ends
/// at a byte 1A or at its end, with or without a line end before it. A value ends after 4,096 bytes, and the
/// next one begins behind them.
/// Fault 62 when the file is at its end already, 57 when it cannot be read.
std::string input_value(std::istream& stream, Until until);

}  // namespace runtime::files
