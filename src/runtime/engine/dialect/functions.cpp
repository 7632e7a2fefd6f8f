#include "runtime/engine/dialect/functions.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>

#include "runtime/engine/dialect/arithmetic.h"
#include "runtime/engine/dialect/call.h"
#include "runtime/engine/dialect/like.h"
#include "runtime/fault.h"
#include "runtime/text/numbers.h"

namespace runtime::engine::dialect {

namespace {

// A function of a Null is Null.
template <Value (*function)(const Arguments&)>
Value unless_null(const Arguments& arguments) {
  if (std::any_of(arguments.begin(), arguments.end(), is_null)) return {};
  return function(arguments);
}

// Has nothing to round, and not every one of them is to be had as a fraction, too.
bool is_whole(const Value& value) {
  return std::holds_alternative<std::int64_t>(value);
}

Value calc(const Arguments& arguments) {
  const auto& operations = std::get<std::string>(arguments[0]);
  Value result = arguments[1];
  for (std::size_t i = 0; i < operations.size(); ++i)
    result = calculate(operations[i], result, arguments[i + 2]);
  return result;
}

Value negate(const Arguments& arguments) {
  return negated(arguments[0]);
}

Value like(const Arguments& arguments) {
  return std::int64_t{is_like(text::joined(arguments[0]), text::joined(arguments[1])) ? 1 : 0};
}

Value absolute(const Arguments& arguments) {
  const auto* const whole = std::get_if<std::int64_t>(&arguments[0]);
  if (whole == nullptr) return std::fabs(as_number(arguments[0]));
  if (*whole == std::numeric_limits<std::int64_t>::min()) throw Fault(6);
  return *whole < 0 ? -*whole : *whole;
}

Value round_down(const Arguments& arguments) {
  if (is_whole(arguments[0])) return arguments[0];
  return std::floor(as_number(arguments[0]));
}

Value cut(const Arguments& arguments) {
  if (is_whole(arguments[0])) return arguments[0];
  return std::trunc(as_number(arguments[0]));
}

Value sign(const Arguments& arguments) {
  const double number = as_number(arguments[0]);
  return std::int64_t{(number > 0) - (number < 0)};
}

Value square_root(const Arguments& arguments) {
  return finite(std::sqrt(as_number(arguments[0])));
}

Value rounded(const Arguments& arguments) {
  const auto places = arguments.size() == 2 ? as_whole(arguments[1], 0, 22) : 0;
  if (is_whole(arguments[0])) return arguments[0];
  const double scale = std::pow(10.0, static_cast<double>(places));
  const double scaled = as_number(arguments[0]) * scale;
  // What is beyond the digits of a fraction has nothing to round.
  if (!std::isfinite(scaled)) return arguments[0];
  return std::nearbyint(scaled) / scale;
}

Value to_double(const Arguments& arguments) {
  return as_number(arguments[0]);
}

Value to_single(const Arguments& arguments) {
  return finite(static_cast<double>(static_cast<float>(as_number(arguments[0]))));
}

template <typename Whole>
Value to_whole(const Arguments& arguments) {
  return as_whole(arguments[0], std::numeric_limits<Whole>::min(), std::numeric_limits<Whole>::max());
}

Value to_text(const Arguments& arguments) {
  if (is_null(arguments[0])) throw Fault(94);
  return text::joined(arguments[0]);
}

// As a line shows the number, but for the blank behind it.
Value signed_text(const Arguments& arguments) {
  auto text = text::printed(as_number(arguments[0]));
  text.pop_back();
  return text;
}

Value number_at_start(const Arguments& arguments) {
  return text::val(text::joined(arguments[0]));
}

// Texts are counted in characters, not in bytes.
bool begins_character(char c) {
  return (static_cast<unsigned char>(c) & 0xc0) != 0x80;
}

std::size_t length(const std::string& text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), begins_character));
}

std::size_t place_of(const std::string& text, std::size_t character) {
  for (std::size_t i = 0; i < text.size(); ++i)
    if (begins_character(text[i]) && character-- == 0) return i;
  return text.size();
}

std::string part(const std::string& text, std::size_t first, std::size_t count) {
  const auto begin = place_of(text, first);
  const auto rest = text.substr(begin);
  return rest.substr(0, place_of(rest, count));
}

std::size_t count_in(const Value& value) {
  const auto count =
      as_whole(value, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max());
  if (count < 0) throw Fault(5);
  return static_cast<std::size_t>(count);
}

Value text_length(const Arguments& arguments) {
  return static_cast<std::int64_t>(length(text::joined(arguments[0])));
}

Value left(const Arguments& arguments) {
  return part(text::joined(arguments[0]), 0, count_in(arguments[1]));
}

Value right(const Arguments& arguments) {
  const auto text = text::joined(arguments[0]);
  const auto all = length(text);
  const auto count = std::min(all, count_in(arguments[1]));
  return part(text, all - count, count);
}

Value middle(const Arguments& arguments) {
  const auto first = count_in(arguments[1]);
  if (first == 0) throw Fault(5);
  const auto text = text::joined(arguments[0]);
  return part(text, first - 1, arguments.size() == 3 ? count_in(arguments[2]) : text.size());
}

struct Registered {
  const char* name;
  int arguments;  // -1: any number
  void (*function)(sqlite3_context*, int, sqlite3_value**);
};

constexpr std::array functions{
    Registered{"q_abs", 1, call<unless_null<absolute>>},
    Registered{"q_calc", -1, call<calc>},
    Registered{"q_cdbl", 1, call<to_double>},
    Registered{"q_cint", 1, call<to_whole<std::int16_t>>},
    Registered{"q_clng", 1, call<to_whole<std::int32_t>>},
    Registered{"q_csng", 1, call<to_single>},
    Registered{"q_cstr", 1, call<to_text>},
    Registered{"q_fix", 1, call<unless_null<cut>>},
    Registered{"q_int", 1, call<unless_null<round_down>>},
    Registered{"q_left", 2, call<unless_null<left>>},
    Registered{"q_len", 1, call<unless_null<text_length>>},
    Registered{"q_like", 2, call<unless_null<like>>},
    Registered{"q_mid", -1, call<unless_null<middle>>},
    Registered{"q_negate", 1, call<negate>},
    Registered{"q_right", 2, call<unless_null<right>>},
    Registered{"q_round", -1, call<unless_null<rounded>>},
    Registered{"q_sgn", 1, call<unless_null<sign>>},
    Registered{"q_sqr", 1, call<unless_null<square_root>>},
    Registered{"q_str", 1, call<unless_null<signed_text>>},
    Registered{"q_val", 1, call<unless_null<number_at_start>>},
};

}  // namespace

int register_functions(sqlite3* handle, int* fault) {
  for (const auto& entry : functions) {
    const int code =
        sqlite3_create_function(handle, entry.name, entry.arguments, SQLITE_UTF8 | SQLITE_DETERMINISTIC,
                                fault, entry.function, nullptr, nullptr);
    if (code != SQLITE_OK) return code;
  }
  return SQLITE_OK;
}

}  // namespace runtime::engine::dialect
