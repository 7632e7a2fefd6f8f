// The fields of a table and what each can take; for this room only.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "runtime/engine/dialect/expression.h"
#include "runtime/engine/recordset.h"
#include "runtime/value.h"

namespace runtime::engine {

class Connection;

struct Field {
  std::string name;
  FieldKind kind = FieldKind::Any;
};

/// The fields of a table in stored order. Fault 3078 when there is no such table.
std::vector<Field> fields_of(Connection& connection, const std::string& table);

/// What an expression may name.
dialect::Names names_of(const std::vector<Field>& fields);

/// The value as the field keeps it. Fault 3421 when it can't take it.
Value converted(const Field& field, const Value& value);

/// A value that came from the store, in the field's own precision.
Value as_read(const Field& field, Value stored);

bool same_name(std::string_view one, std::string_view other);

}  // namespace runtime::engine
