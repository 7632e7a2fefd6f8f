#include "runtime/engine/dialect/arithmetic.h"

#include <cmath>
#include <limits>

#include "runtime/fault.h"
#include "runtime/text/numbers.h"

namespace runtime::engine::dialect {

namespace {

using Long = std::numeric_limits<std::int32_t>;

bool is_whole(const Value& value) {
  return std::holds_alternative<std::int64_t>(value);
}
bool is_text(const Value& value) {
  return std::holds_alternative<std::string>(value);
}

// Two whole numbers give a whole one as long as a fraction could hold it exactly.
Value sized(double number, bool whole) {
  constexpr double exact = 9007199254740992.0;
  if (whole && std::fabs(number) < exact) return static_cast<std::int64_t>(number);
  return finite(number);
}

double nonzero(double divisor) {
  if (divisor == 0) throw Fault(11);
  return divisor;
}

std::int64_t as_long(const Value& value) {
  return as_whole(value, Long::min(), Long::max());
}

Value joined(const Value& left, const Value& right) {
  if (is_null(left) && is_null(right)) return {};
  return text::joined(left) + text::joined(right);
}

Value divided_whole(char operation, const Value& left, const Value& right) {
  const auto dividend = as_long(left);
  const auto divisor = as_long(right);
  if (divisor == 0) throw Fault(11);
  return operation == 'm' ? dividend % divisor : dividend / divisor;
}

double raised(double base, double exponent) {
  if (base == 0 && exponent < 0) throw Fault(5);
  return std::pow(base, exponent);
}

}  // namespace

double as_number(const Value& value) {
  if (is_null(value)) throw Fault(94);
  if (const auto* const whole = std::get_if<std::int64_t>(&value)) return static_cast<double>(*whole);
  if (const auto* const single = std::get_if<float>(&value)) return *single;
  if (const auto* const number = std::get_if<double>(&value)) return *number;
  const auto number = text::number_in(std::get<std::string>(value));
  if (!number) throw Fault(13);
  return *number;
}

std::int64_t as_whole(const Value& value, double least, double most) {
  const double rounded = std::nearbyint(as_number(value));
  if (!(rounded >= least && rounded <= most)) throw Fault(6);
  return static_cast<std::int64_t>(rounded);
}

double finite(double number) {
  if (std::isnan(number)) throw Fault(5);
  if (std::isinf(number)) throw Fault(6);
  return number;
}

Value calculate(char operation, const Value& left, const Value& right) {
  if (operation == '&') return joined(left, right);
  if (is_null(left) || is_null(right)) return {};
  if (operation == '+' && is_text(left) && is_text(right)) return joined(left, right);
  if (operation == '\\' || operation == 'm') return divided_whole(operation, left, right);

  const double a = as_number(left);
  const double b = as_number(right);
  const bool whole = is_whole(left) && is_whole(right);
  switch (operation) {
    case '+':
      return sized(a + b, whole);
    case '-':
      return sized(a - b, whole);
    case '*':
      return sized(a * b, whole);
    case '/':
      return finite(a / nonzero(b));
    default:
      return finite(raised(a, b));
  }
}

Value negated(const Value& value) {
  if (is_null(value)) return {};
  return sized(-as_number(value), is_whole(value));
}

}  // namespace runtime::engine::dialect
