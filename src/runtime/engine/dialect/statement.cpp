#include "runtime/engine/dialect/statement.h"

#include <array>

#include "runtime/engine/dialect/expression_parser.h"
#include "runtime/engine/dialect/quoting.h"
#include "runtime/engine/dialect/tokens.h"
#include "runtime/fault.h"

namespace runtime::engine::dialect {

namespace {

using Tables = std::vector<std::string>;

std::string table_name(Tokens& tokens, Tables& tables) {
  return quoted_name(tables.emplace_back(tokens.need_name()));
}

std::string where(Tokens& tokens) {
  if (!tokens.take_word("where")) return {};
  return " WHERE " + ExpressionParser(tokens).condition();
}

std::string delete_rows(Tokens& tokens, Tables& tables) {
  tokens.take_symbol("*");
  tokens.need_word("from");
  const auto table = table_name(tokens, tables);
  return "DELETE FROM " + table + where(tokens);
}

std::string drop_table(Tokens& tokens, Tables& tables) {
  tokens.need_word("table");
  return "DROP TABLE " + table_name(tokens, tables);
}

std::string column_type(Tokens& tokens) {
  struct TypeWords {
    std::string_view word;
    const char* sql;
  };
  constexpr std::array types{TypeWords{"integer", " INTEGER"}, TypeWords{"double", " REAL"},
                             TypeWords{"text", " TEXT"}};
  for (const auto& type : types)
    if (tokens.take_word(type.word)) return type.sql;
  tokens.fault();
}

std::string create_table(Tokens& tokens, Tables& tables) {
  tokens.need_word("table");
  auto sql = "CREATE TABLE " + table_name(tokens, tables) + " (";
  tokens.need_symbol("(");
  const char* separator = "";
  do {
    const auto column = quoted_name(tokens.need_name());
    sql += separator + column + column_type(tokens);
    separator = ", ";
  } while (tokens.take_symbol(","));
  tokens.need_symbol(")");
  return sql + ") STRICT";
}

std::string selected_values(Tokens& tokens) {
  if (tokens.take_symbol("*")) return "*";
  std::string sql;
  do {
    sql += (sql.empty() ? "" : ", ") + ExpressionParser(tokens).value();
    if (tokens.take_word("as")) sql += " AS " + quoted_name(tokens.need_name());
  } while (tokens.take_symbol(","));
  return sql;
}

std::string insert_rows(Tokens& tokens, Tables& tables) {
  tokens.need_word("into");
  auto sql = "INSERT INTO " + table_name(tokens, tables) + " SELECT ";
  tokens.need_word("select");
  sql += selected_values(tokens);
  tokens.need_word("from");
  sql += " FROM " + table_name(tokens, tables);
  while (tokens.take_symbol(",")) sql += ", " + table_name(tokens, tables);
  return sql + where(tokens);
}

std::string update_rows(Tokens& tokens, Tables& tables) {
  auto sql = "UPDATE " + table_name(tokens, tables) + " SET ";
  tokens.need_word("set");
  const char* separator = "";
  do {
    const auto column = quoted_name(tokens.need_name());
    tokens.need_symbol("=");
    sql += separator + column + " = " + ExpressionParser(tokens).value();
    separator = ", ";
  } while (tokens.take_symbol(","));
  return sql + where(tokens);
}

struct StatementKind {
  std::string_view word;
  Verb verb;
  int syntax_fault;
  std::string (*translate)(Tokens&, Tables&);
};
constexpr std::array kinds{
    StatementKind{"delete", Verb::Delete, 3075, delete_rows},
    StatementKind{"drop", Verb::Drop, 3295, drop_table},
    StatementKind{"create", Verb::Create, 3290, create_table},
    StatementKind{"insert", Verb::Insert, 3134, insert_rows},
    StatementKind{"update", Verb::Update, 3144, update_rows},
};

// Read before all else, because the kind of statement says how its syntax faults are called.
std::string_view first_word(std::string_view sql) {
  const auto begin = sql.find_first_not_of(" \t\r\n");
  if (begin == std::string_view::npos) return {};
  return sql.substr(begin, sql.find_first_of(" \t\r\n*([;", begin) - begin);
}

}  // namespace

Translation translated(std::string_view sql) {
  const auto word = first_word(sql);
  for (const auto& kind : kinds) {
    if (!same_word(word, kind.word)) continue;
    Tokens tokens(sql, kind.syntax_fault);
    tokens.need_word(kind.word);
    Translation result{kind.verb, {}, {}};
    result.sql = kind.translate(tokens, result.tables);
    tokens.take_symbol(";");
    if (!tokens.at_end()) tokens.fault();
    return result;
  }
  throw Fault(3129);
}

std::string statement_to_sql(std::string_view sql) {
  return translated(sql).sql;
}

Selection parse_selection(std::string_view source) {
  Tokens tokens(source, 3075);
  Selection selection;
  if (tokens.take_word("select")) {
    tokens.need_symbol("*");
    tokens.need_word("from");
  }
  selection.table = tokens.need_name();
  if (tokens.take_word("where")) {
    const auto begin = tokens.place();
    ExpressionParser(tokens).condition();
    selection.condition = source.substr(begin, tokens.place() - begin);
  }
  tokens.take_symbol(";");
  if (!tokens.at_end()) tokens.fault();
  return selection;
}

}  // namespace runtime::engine::dialect
