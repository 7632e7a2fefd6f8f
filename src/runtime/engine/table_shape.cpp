#include "runtime/engine/table_shape.h"

#include <sqlite3.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>

#include "runtime/engine/connection.h"
#include "runtime/fault.h"
#include "runtime/text/numbers.h"

namespace runtime::engine {

namespace {

FieldKind kind_of(const std::string& declared_type) {
  if (same_name(declared_type, "INTEGER") || same_name(declared_type, "INT")) return FieldKind::Whole;
  if (same_name(declared_type, "REAL")) return FieldKind::Double;
  if (same_name(declared_type, "TEXT")) return FieldKind::Text;
  return FieldKind::Any;
}

// The store knows one kind of fraction only, so single precision is told by a table beside.
void mark_singles(Connection& connection, const std::string& table, std::vector<Field>& fields) {
  if (!connection.has_table("field_types")) return;
  Statement rows(
      connection,
      "SELECT field_name FROM field_types WHERE table_name = ?1 COLLATE NOCASE AND type = 'single'");
  rows.bind(1, table);
  while (rows.step()) {
    const auto name = rows.text(0);
    for (auto& field : fields)
      if (field.kind == FieldKind::Double && same_name(field.name, name)) field.kind = FieldKind::Single;
  }
}

std::optional<double> number_of(const Value& value) {
  if (const auto* const whole = std::get_if<std::int64_t>(&value)) return static_cast<double>(*whole);
  if (const auto* const single = std::get_if<float>(&value)) return *single;
  if (const auto* const number = std::get_if<double>(&value)) return *number;
  return text::number_in(std::get<std::string>(value));
}

// A text that is a number is one, as a box posts it. Null is no business of this function.
double finite_number(const Field& field, const Value& value) {
  const auto number = number_of(value);
  if (!number || !std::isfinite(*number)) throw Fault(3421, field.name);
  return *number;
}

std::int64_t whole_number(const Field& field, double number) {
  using Limits = std::numeric_limits<std::int32_t>;
  if (number != std::trunc(number) || number < Limits::min() || number > Limits::max())
    throw Fault(3421, field.name);
  return static_cast<std::int64_t>(number);
}

float single_number(const Field& field, double number) {
  const auto single = static_cast<float>(number);
  if (!std::isfinite(single)) throw Fault(3421, field.name);
  return single;
}

}  // namespace

bool same_name(std::string_view one, std::string_view other) {
  return one.size() == other.size() &&
         sqlite3_strnicmp(one.data(), other.data(), static_cast<int>(one.size())) == 0;
}

std::vector<Field> fields_of(Connection& connection, const std::string& table) {
  std::vector<Field> fields;
  {
    Statement columns(connection, "SELECT name, type FROM pragma_table_info(?1)");
    columns.bind(1, table);
    while (columns.step()) fields.push_back({columns.text(0), kind_of(columns.text(1))});
  }
  if (fields.empty()) throw Fault(3078, table);
  mark_singles(connection, table, fields);
  return fields;
}

dialect::Names names_of(const std::vector<Field>& fields) {
  dialect::Names names;
  for (const auto& field : fields)
    names.push_back({field.name, field.kind == FieldKind::Text  ? dialect::Kind::Text
                                 : field.kind == FieldKind::Any ? dialect::Kind::Unknown
                                                                : dialect::Kind::Number});
  return names;
}

Value converted(const Field& field, const Value& value) {
  if (is_null(value)) return value;
  switch (field.kind) {
    case FieldKind::Whole:
      return whole_number(field, finite_number(field, value));
    case FieldKind::Double:
      return finite_number(field, value);
    case FieldKind::Single:
      return single_number(field, finite_number(field, value));
    case FieldKind::Text:
      return text::joined(value);
    default:
      return value;
  }
}

Value as_read(const Field& field, Value stored) {
  const auto* const number = std::get_if<double>(&stored);
  if (field.kind == FieldKind::Single && number != nullptr) return static_cast<float>(*number);
  return stored;
}

}  // namespace runtime::engine
