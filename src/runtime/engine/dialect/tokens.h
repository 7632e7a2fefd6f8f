// The words, numbers, texts and symbols of a statement or an expression.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace runtime::engine::dialect {

struct Token {
  enum class Kind { Word, BracketedName, Number, Text, Symbol, End };
  Kind kind = Kind::End;
  std::string text;       ///< Without brackets or quotes; a number as written.
  std::size_t begin = 0;  ///< Where it begins in the source.
};

/// The tokens of one source and the place reached in them.
class Tokens {
 public:
  /// `syntax_fault` is the number of every fault() of this source. Throws it for a text or a bracket without
  /// an end and for a character that begins no token.
  Tokens(std::string_view source, int syntax_fault);

  const Token& peek(std::size_t ahead = 0) const;
  Token next();
  std::size_t place() const { return peek().begin; }
  std::string_view source() const { return source_; }

  bool at_end() const { return peek().kind == Token::Kind::End; }
  /// Words match without regard to case.
  bool is_word(std::string_view word, std::size_t ahead = 0) const;
  bool is_symbol(std::string_view symbol, std::size_t ahead = 0) const;

  /// Steps over the word or symbol if it stands here.
  bool take_word(std::string_view word);
  bool take_symbol(std::string_view symbol);
  void need_word(std::string_view word);
  void need_symbol(std::string_view symbol);
  /// A name, bare or in brackets.
  std::string need_name();

  /// Throws the syntax fault with the source's text.
  [[noreturn]] void fault() const;

 private:
  void read(std::size_t& place);
  void read_until(std::size_t& place, char end, Token::Kind kind);
  void read_number(std::size_t& place);

  std::string_view source_;
  int syntax_fault_;
  std::vector<Token> tokens_;
  std::size_t here_ = 0;
};

/// Whether two words are the same but for the case of their letters.
bool same_word(std::string_view one, std::string_view other);

}  // namespace runtime::engine::dialect
