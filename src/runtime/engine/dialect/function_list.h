// The functions that an expression may call.
#pragma once

#include <string_view>

#include "runtime/engine/dialect/expression.h"

namespace runtime::engine::dialect {

/// A call is written "sql(arguments)"; a function without `sql` is written out by the parser.
struct AllowedFunction {
  std::string_view name;
  std::size_t least_arguments;
  std::size_t most_arguments;
  std::string_view sql;
  Kind result;
};

/// Nothing for a function that is not allowed. Case is no matter.
const AllowedFunction* find_function(std::string_view name);

}  // namespace runtime::engine::dialect
