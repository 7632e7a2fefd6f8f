#include "runtime/engine/dialect/tokens.h"

#include <algorithm>
#include <array>

#include "runtime/fault.h"

namespace runtime::engine::dialect {

namespace {

// Not the library's classification: that one follows the locale.
bool is_digit(char c) {
  return c >= '0' && c <= '9';
}
char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}
bool begins_word(char c) {
  return (lower(c) >= 'a' && lower(c) <= 'z') || c == '_' || (c & 0x80) != 0;
}
bool is_blank(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

// The longer ones first.
constexpr std::array<std::string_view, 19> symbols{"<>", "<=", ">=", "=", "<", ">", "+", "-", "*", "/",
                                                   "\\", "^",  "&",  "(", ")", ",", ".", ";", "!"};

// Words that hold an expression together and so name no column unless they stand in brackets.
constexpr std::array<std::string_view, 13> reserved{"and", "or",   "not",  "mod",   "between", "in", "like",
                                                    "is",  "null", "from", "where", "select",  "set"};

bool is_reserved(std::string_view word) {
  return std::any_of(reserved.begin(), reserved.end(),
                     [word](std::string_view other) { return same_word(word, other); });
}

}  // namespace

bool same_word(std::string_view one, std::string_view other) {
  return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                    [](char a, char b) { return lower(a) == lower(b); });
}

Tokens::Tokens(std::string_view source, int syntax_fault) : source_(source), syntax_fault_(syntax_fault) {
  std::size_t place = 0;
  while (true) {
    while (place < source_.size() && is_blank(source_[place])) ++place;
    if (place == source_.size()) break;
    read(place);
  }
  tokens_.push_back({Token::Kind::End, "", source_.size()});
}

void Tokens::read(std::size_t& place) {
  const std::size_t begin = place;
  const char c = source_[place];
  if (c == '"' || c == '\'') return read_until(place, c, Token::Kind::Text);
  if (c == '[') return read_until(place, ']', Token::Kind::BracketedName);
  if (is_digit(c) || (c == '.' && place + 1 < source_.size() && is_digit(source_[place + 1])))
    return read_number(place);
  if (begins_word(c)) {
    while (place < source_.size() && (begins_word(source_[place]) || is_digit(source_[place]))) ++place;
    tokens_.push_back({Token::Kind::Word, std::string(source_.substr(begin, place - begin)), begin});
    return;
  }
  for (const auto symbol : symbols) {
    if (source_.substr(place, symbol.size()) != symbol) continue;
    tokens_.push_back({Token::Kind::Symbol, std::string(symbol), begin});
    place += symbol.size();
    return;
  }
  fault();
}

// A doubled end stands for itself.
void Tokens::read_until(std::size_t& place, char end, Token::Kind kind) {
  const std::size_t begin = place++;
  std::string text;
  while (place < source_.size()) {
    if (source_[place] == end) {
      const bool doubled = place + 1 < source_.size() && source_[place + 1] == end;
      if (!doubled) break;
      ++place;
    }
    text += source_[place++];
  }
  if (place >= source_.size()) fault();
  ++place;
  tokens_.push_back({kind, std::move(text), begin});
}

void Tokens::read_number(std::size_t& place) {
  const std::size_t begin = place;
  const auto step_over_digits = [this, &place] {
    while (place < source_.size() && is_digit(source_[place])) ++place;
  };
  step_over_digits();
  if (place < source_.size() && source_[place] == '.') {
    ++place;
    step_over_digits();
  }
  if (place < source_.size() && lower(source_[place]) == 'e') {
    std::size_t exponent = place + 1;
    if (exponent < source_.size() && (source_[exponent] == '+' || source_[exponent] == '-')) ++exponent;
    if (exponent < source_.size() && is_digit(source_[exponent])) {
      place = exponent;
      step_over_digits();
    }
  }
  tokens_.push_back({Token::Kind::Number, std::string(source_.substr(begin, place - begin)), begin});
}

const Token& Tokens::peek(std::size_t ahead) const {
  return tokens_[std::min(here_ + ahead, tokens_.size() - 1)];
}

Token Tokens::next() {
  Token token = peek();
  if (here_ + 1 < tokens_.size()) ++here_;
  return token;
}

bool Tokens::is_word(std::string_view word, std::size_t ahead) const {
  return peek(ahead).kind == Token::Kind::Word && same_word(peek(ahead).text, word);
}

bool Tokens::is_symbol(std::string_view symbol, std::size_t ahead) const {
  return peek(ahead).kind == Token::Kind::Symbol && peek(ahead).text == symbol;
}

bool Tokens::take_word(std::string_view word) {
  const bool is_here = is_word(word);
  if (is_here) next();
  return is_here;
}

bool Tokens::take_symbol(std::string_view symbol) {
  const bool is_here = is_symbol(symbol);
  if (is_here) next();
  return is_here;
}

void Tokens::need_word(std::string_view word) {
  if (!take_word(word)) fault();
}

void Tokens::need_symbol(std::string_view symbol) {
  if (!take_symbol(symbol)) fault();
}

std::string Tokens::need_name() {
  const bool is_name = peek().kind == Token::Kind::BracketedName ||
                       (peek().kind == Token::Kind::Word && !is_reserved(peek().text));
  if (!is_name || peek().text.empty()) fault();
  return next().text;
}

void Tokens::fault() const {
  throw Fault(syntax_fault_, std::string(source_));
}

}  // namespace runtime::engine::dialect
