#include "runtime/engine/dialect/expression.h"

#include "runtime/engine/dialect/expression_parser.h"

namespace runtime::engine::dialect {

std::string expression_to_sql(std::string_view text, const Names& names, int syntax_fault) {
  Tokens tokens(text, syntax_fault);
  auto sql = ExpressionParser(tokens, &names).value();
  if (!tokens.at_end()) tokens.fault();
  return sql;
}

std::string condition_to_sql(std::string_view text, const Names& names, int syntax_fault) {
  Tokens tokens(text, syntax_fault);
  auto sql = ExpressionParser(tokens, &names).condition();
  if (!tokens.at_end()) tokens.fault();
  return sql;
}

std::string sort_to_sql(std::string_view text, const Names& names) {
  Tokens tokens(text, 3075);
  std::string sql;
  do {
    sql += (sql.empty() ? "" : ", ") + ExpressionParser(tokens, &names).column() + " COLLATE NOCASE";
    if (tokens.take_word("desc"))
      sql += " DESC";
    else
      tokens.take_word("asc");
  } while (tokens.take_symbol(","));
  if (!tokens.at_end()) tokens.fault();
  return sql;
}

}  // namespace runtime::engine::dialect
