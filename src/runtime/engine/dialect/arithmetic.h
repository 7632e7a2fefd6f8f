// What the dialect's operators and functions do with values.
#pragma once

#include <cstdint>

#include "runtime/value.h"

namespace runtime::engine::dialect {

/// A number as such, a text that is one as its number. Fault 13 for any other text, 94 for Null.
double as_number(const Value& value);
/// Rounded half to even. Fault 6 outside `least` to `most`.
std::int64_t as_whole(const Value& value, double least, double most);

/// `number`, unless it is infinite (Fault 6) or none at all (Fault 5).
double finite(double number);

/// One operation of + - * / \ ^ &, or m for the remainder. Null with anything is Null, but for &.
/// Faults: 6 too large, 11 division by zero, 13 a word where a number must stand, 5 a root of a negative one.
Value calculate(char operation, const Value& left, const Value& right);

Value negated(const Value& value);

}  // namespace runtime::engine::dialect
