// The precedence parser behind expressions and the expressions inside statements.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/engine/dialect/expression.h"
#include "runtime/engine/dialect/tokens.h"

namespace runtime::engine::dialect {

/// Reads one expression from where the tokens stand to where it ends.
class ExpressionParser {
 public:
  /// Without `names` every name is allowed and the store tells the unknown ones.
  explicit ExpressionParser(Tokens& tokens, const Names* names = nullptr) : tokens_(tokens), names_(names) {}

  /// As a value: a comparison that holds is -1.
  std::string value() { return as_value(disjunction()).sql; }
  std::string condition() { return as_condition(disjunction()); }
  /// A column, with the table's name before it or not.
  std::string column() { return column_piece().sql; }

 private:
  struct Piece {
    std::string sql;
    Kind kind = Kind::Unknown;
    bool is_condition = false;  // the store's own truth, 1 or 0
  };

  static Piece as_value(Piece piece);
  std::string as_condition(const Piece& piece) const;

  Piece disjunction();
  Piece conjunction();
  Piece negation();
  Piece comparison();
  Piece operation(std::size_t level);
  Piece signed_power();
  static Piece negated(const Piece& operand);
  Piece power();
  Piece primary();
  Piece number();
  Piece call();
  Piece column_piece();

  std::optional<Piece> test(const Piece& operand);
  Piece compared(std::string_view symbol, const Piece& left, const Piece& right) const;
  Piece like(const Piece& left);
  Piece between(const Piece& left);
  Piece one_of(const Piece& left);
  Piece null_test(const Piece& left);
  void check_kinds(const Piece& left, const Piece& right) const;
  static std::string collated(const Piece& piece);
  std::vector<Piece> arguments();

  Tokens& tokens_;
  const Names* names_;
  int depth_ = 0;
};

}  // namespace runtime::engine::dialect
