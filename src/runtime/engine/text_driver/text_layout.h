// How the lines of a text file hold the fields of a table; for this room only.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/engine/recordset.h"
#include "runtime/fault.h"

namespace runtime::engine {

struct TextColumn {
  std::string name;
  FieldKind kind = FieldKind::Text;
  std::size_t width = 0;  ///< Bytes; 0 when none is told.
};

/// `is_fixed`: every column has its width. Else commas separate them.
struct TextLayout {
  bool is_fixed = false;
  bool has_heading = false;
  std::vector<TextColumn> columns;
};

/// Reads the section [`file_name`] of a description:
///
///     [trips.csv]
///     Format=FixedLength            or CSVDelimited, as when nothing is told
///     ColNameHeader=False           or True; False when nothing is told
///     COL1=Zone Integer Width 10    a name, a type and, as FixedLength needs it, a width, in their order
///
/// Sections, keys and words are in any case, names keep theirs; other keys are passed over. Types: Byte,
/// Short, Integer, Long; Single, Double, Float; Text, Char. Faults: 3625 no description or no such section,
/// 3349 a line that does not fit.
TextLayout read_layout(const std::filesystem::path& description, std::string_view file_name);

/// Fault 3349: what does not fit in a line of a file, counted from 1.
Fault misfit(const std::filesystem::path& file, std::int64_t line, const std::string& what);

}  // namespace runtime::engine
