#include "runtime/engine/dialect/expression_parser.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <string_view>
#include <system_error>
#include <utility>

#include "runtime/engine/dialect/function_list.h"
#include "runtime/engine/dialect/quoting.h"
#include "runtime/fault.h"

namespace runtime::engine::dialect {

namespace {

constexpr const char* null_literal = "NULL";

// What the store's own parser and this one can stack up is limited.
constexpr int deepest_nesting = 30;

// Loosest first. `code` is what the calculating function calls the operation.
struct Operator {
  std::string_view symbol;
  char code;
};
using Level = std::array<Operator, 2>;
constexpr std::array levels{
    Level{{{"&", '&'}, {}}},   Level{{{"+", '+'}, {"-", '-'}}}, Level{{{"Mod", 'm'}, {}}},
    Level{{{"\\", '\\'}, {}}}, Level{{{"*", '*'}, {"/", '/'}}},
};

char take_operator(Tokens& tokens, const Level& level) {
  for (const auto& entry : level)
    if (!entry.symbol.empty() && (tokens.take_symbol(entry.symbol) || tokens.take_word(entry.symbol)))
      return entry.code;
  return 0;
}

}  // namespace

// A chain of operations is one flat call, because the store's parser can't stack up a long one.
// Kinds: "&" makes a text; "+" joins texts and adds numbers; all else makes a number.
ExpressionParser::Piece ExpressionParser::operation(std::size_t level) {
  const auto operand = [this, level] {
    return level + 1 < levels.size() ? operation(level + 1) : signed_power();
  };
  Piece first = operand();
  char code = take_operator(tokens_, levels[level]);
  if (code == 0) return first;

  Piece result = as_value(std::move(first));
  std::string codes;
  for (; code != 0; code = take_operator(tokens_, levels[level])) {
    const Piece next = as_value(operand());
    result.sql += ", " + next.sql;
    if (code == '&')
      result.kind = Kind::Text;
    else if (code != '+')
      result.kind = Kind::Number;
    else if (result.kind != next.kind)
      result.kind = Kind::Unknown;
    codes += code;
  }
  result.sql = "q_calc(" + quoted_text(codes) + ", " + result.sql + ")";
  return result;
}

ExpressionParser::Piece ExpressionParser::as_value(Piece piece) {
  if (!piece.is_condition) return piece;
  return {"(-" + piece.sql + ")", Kind::Number};
}

std::string ExpressionParser::as_condition(const Piece& piece) const {
  if (piece.kind == Kind::Text) throw Fault(3464);
  return piece.sql;
}

ExpressionParser::Piece ExpressionParser::disjunction() {
  if (++depth_ > deepest_nesting) tokens_.fault();
  Piece first = conjunction();
  if (tokens_.is_word("or")) {
    std::string sql = "(" + as_condition(first);
    while (tokens_.take_word("or")) sql += " OR " + as_condition(conjunction());
    first = {sql + ")", Kind::Number, true};
  }
  --depth_;
  return first;
}

ExpressionParser::Piece ExpressionParser::conjunction() {
  Piece first = negation();
  if (!tokens_.is_word("and")) return first;
  std::string sql = "(" + as_condition(first);
  while (tokens_.take_word("and")) sql += " AND " + as_condition(negation());
  return {sql + ")", Kind::Number, true};
}

ExpressionParser::Piece ExpressionParser::negation() {
  if (!tokens_.take_word("not")) return comparison();
  if (++depth_ > deepest_nesting) tokens_.fault();
  Piece result{"(NOT " + as_condition(negation()) + ")", Kind::Number, true};
  --depth_;
  return result;
}

ExpressionParser::Piece ExpressionParser::comparison() {
  Piece left = operation(0);
  // Each test stands in brackets within the next one.
  for (int tests = 1; auto result = test(left); ++tests) {
    if (tests > deepest_nesting) throw Fault(3360);
    left = std::move(*result);
  }
  return left;
}

std::optional<ExpressionParser::Piece> ExpressionParser::test(const Piece& operand) {
  constexpr std::array<std::string_view, 6> symbols{"=", "<>", "<", ">", "<=", ">="};
  for (const auto symbol : symbols)
    if (tokens_.take_symbol(symbol)) return compared(symbol, as_value(operand), as_value(operation(0)));
  if (tokens_.take_word("is")) return null_test(as_value(operand));

  const bool negated = tokens_.take_word("not");
  std::optional<Piece> result;
  if (tokens_.take_word("like"))
    result = like(as_value(operand));
  else if (tokens_.take_word("between"))
    result = between(as_value(operand));
  else if (tokens_.take_word("in"))
    result = one_of(as_value(operand));
  else if (negated)
    tokens_.fault();
  if (negated) result->sql = "(NOT " + result->sql + ")";
  return result;
}

ExpressionParser::Piece ExpressionParser::compared(std::string_view symbol, const Piece& left,
                                                   const Piece& right) const {
  check_kinds(left, right);
  Piece result{"(" + collated(left) + " " + std::string(symbol) + " " + right.sql + ")", Kind::Number, true};
  // No comparison with Null holds. Said in front, the store knows it before it walks over a large table.
  if (left.sql == null_literal || right.sql == null_literal) result.sql = "(NULL AND " + result.sql + ")";
  return result;
}

ExpressionParser::Piece ExpressionParser::like(const Piece& left) {
  const Piece pattern = as_value(operation(0));
  return {"q_like(" + left.sql + ", " + pattern.sql + ")", Kind::Number, true};
}

ExpressionParser::Piece ExpressionParser::between(const Piece& left) {
  const Piece low = as_value(operation(0));
  tokens_.need_word("and");
  const Piece high = as_value(operation(0));
  check_kinds(left, low);
  check_kinds(left, high);
  return {"(" + collated(left) + " BETWEEN " + low.sql + " AND " + high.sql + ")", Kind::Number, true};
}

ExpressionParser::Piece ExpressionParser::one_of(const Piece& left) {
  const auto candidates = arguments();
  if (candidates.empty()) tokens_.fault();
  std::string list;
  for (const auto& candidate : candidates) {
    check_kinds(left, candidate);
    list += (list.empty() ? "" : ", ") + candidate.sql;
  }
  return {"(" + collated(left) + " IN (" + list + "))", Kind::Number, true};
}

ExpressionParser::Piece ExpressionParser::null_test(const Piece& left) {
  const bool negated = tokens_.take_word("not");
  tokens_.need_word("null");
  return {"(" + left.sql + (negated ? " IS NOT NULL)" : " IS NULL)"), Kind::Number, true};
}

// The store would take any text for greater than any number.
void ExpressionParser::check_kinds(const Piece& left, const Piece& right) const {
  const bool known = left.kind != Kind::Unknown && right.kind != Kind::Unknown;
  if (known && left.kind != right.kind) throw Fault(3464);
}

std::string ExpressionParser::collated(const Piece& piece) {
  return piece.kind == Kind::Number ? piece.sql : piece.sql + " COLLATE NOCASE";
}

// The minus binds looser than a power: -2^2 is -4.
ExpressionParser::Piece ExpressionParser::signed_power() {
  const bool negative = tokens_.is_symbol("-");
  if (!negative && !tokens_.is_symbol("+")) return power();
  tokens_.next();
  if (++depth_ > deepest_nesting) tokens_.fault();
  Piece operand = as_value(signed_power());
  --depth_;
  return negative ? negated(operand) : operand;
}

ExpressionParser::Piece ExpressionParser::negated(const Piece& operand) {
  return {"q_negate(" + operand.sql + ")", Kind::Number};
}

ExpressionParser::Piece ExpressionParser::power() {
  Piece first = primary();
  if (!tokens_.is_symbol("^")) return first;
  std::string codes;
  std::string operands = as_value(std::move(first)).sql;
  while (tokens_.take_symbol("^")) {
    const bool negative = tokens_.take_symbol("-");
    Piece exponent = as_value(primary());
    if (negative) exponent = negated(exponent);
    operands += ", " + exponent.sql;
    codes += '^';
  }
  return {"q_calc(" + quoted_text(codes) + ", " + operands + ")", Kind::Number};
}

ExpressionParser::Piece ExpressionParser::primary() {
  switch (tokens_.peek().kind) {
    case Token::Kind::Number:
      return number();
    case Token::Kind::Text:
      return {quoted_text(tokens_.next().text), Kind::Text};
    case Token::Kind::Word:
      if (tokens_.take_word("null")) return {null_literal, Kind::Unknown};
      return tokens_.is_symbol("(", 1) ? call() : column_piece();
    case Token::Kind::BracketedName:
      return column_piece();
    default:
      break;
  }
  tokens_.need_symbol("(");
  Piece inner = disjunction();
  tokens_.need_symbol(")");
  return inner;
}

ExpressionParser::Piece ExpressionParser::number() {
  const auto text = tokens_.next().text;
  const char* const end = text.data() + text.size();
  std::int64_t whole = 0;
  const auto read = std::from_chars(text.data(), end, whole);
  if (read.ec == std::errc{} && read.ptr == end) return {std::to_string(whole), Kind::Number};

  double fraction = 0;
  if (std::from_chars(text.data(), end, fraction).ec != std::errc{}) throw Fault(6);
  // With an exponent the store takes it for a fraction, also when it is whole.
  std::array<char, 32> buffer{};
  const auto written = std::to_chars(buffer.begin(), buffer.end(), fraction, std::chars_format::scientific);
  return {std::string(buffer.data(), written.ptr), Kind::Number};
}

ExpressionParser::Piece ExpressionParser::call() {
  const auto name = tokens_.next().text;
  const auto* const function = find_function(name);
  if (function == nullptr) throw Fault(3085, name);
  const auto values = arguments();
  if (values.size() < function->least_arguments || values.size() > function->most_arguments) tokens_.fault();

  if (function->name == "IIf")
    return {"iif(" + as_condition(values[0]) + ", " + values[1].sql + ", " + values[2].sql + ")",
            values[1].kind == values[2].kind ? values[1].kind : Kind::Unknown};
  if (function->name == "IsNull") return {"(" + values[0].sql + " IS NULL)", Kind::Number, true};
  if (function->name == "Nz") {
    const auto otherwise = values.size() == 2 ? values[1] : Piece{"0", Kind::Number};
    return {"ifnull(" + values[0].sql + ", " + otherwise.sql + ")",
            values[0].kind == otherwise.kind ? otherwise.kind : Kind::Unknown};
  }
  std::string list;
  for (const auto& value : values) list += (list.empty() ? "" : ", ") + value.sql;
  return {std::string(function->sql) + "(" + list + ")", function->result};
}

std::vector<ExpressionParser::Piece> ExpressionParser::arguments() {
  std::vector<Piece> values;
  tokens_.need_symbol("(");
  if (tokens_.take_symbol(")")) return values;
  do values.push_back(as_value(disjunction()));
  while (tokens_.take_symbol(","));
  tokens_.need_symbol(")");
  return values;
}

ExpressionParser::Piece ExpressionParser::column_piece() {
  auto name = tokens_.need_name();
  if (tokens_.take_symbol(".")) {
    const auto column = tokens_.need_name();
    if (names_ != nullptr) throw Fault(3061, name + "." + column);
    return {quoted_name(name) + "." + quoted_name(column), Kind::Unknown};
  }
  if (names_ == nullptr) return {quoted_name(name), Kind::Unknown};
  const auto known = std::find_if(names_->begin(), names_->end(),
                                  [&name](const Name& entry) { return same_word(entry.name, name); });
  if (known == names_->end()) throw Fault(3061, name);
  return {quoted_name(known->name), known->kind};
}

}  // namespace runtime::engine::dialect
