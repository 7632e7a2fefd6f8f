// Expressions as the program and its analyst write them, turned into the store's language.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace runtime::engine::dialect {

enum class Kind { Unknown, Number, Text };

struct Name {
  std::string name;
  Kind kind = Kind::Unknown;
};

/// The columns that an expression may name.
using Names = std::vector<Name>;

/// One value, fully bracketed. Faults: `syntax_fault` for anything but a single expression, 3061 for an
/// unknown name, 3085 for an unknown function, 3464 for a text compared with a number, 6 for a number that is
/// too large.
std::string expression_to_sql(std::string_view text, const Names& names, int syntax_fault = 3075);

/// As expression_to_sql(), for use as a condition: what holds is any number but 0.
std::string condition_to_sql(std::string_view text, const Names& names, int syntax_fault = 3075);

/// "a, b desc" as what stands behind ORDER BY. Columns only, each of them known: else 3061.
std::string sort_to_sql(std::string_view text, const Names& names);

}  // namespace runtime::engine::dialect
