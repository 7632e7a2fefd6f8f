#include "runtime/engine/dialect/like.h"

#include <cstddef>

namespace runtime::engine::dialect {

namespace {

char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// How many bytes the character at the front takes in UTF-8.
std::size_t character_size(std::string_view text) {
  std::size_t size = 1;
  while (size < text.size() && (static_cast<unsigned char>(text[size]) & 0xc0) == 0x80) ++size;
  return size;
}

// `list` is what stands between the brackets.
bool in_list(char c, std::string_view list) {
  const bool negated = !list.empty() && list.front() == '!';
  if (negated) list.remove_prefix(1);
  bool found = false;
  for (std::size_t i = 0; i < list.size(); ++i) {
    const bool is_range = i + 2 < list.size() && list[i + 1] == '-';
    const char last = is_range ? list[i + 2] : list[i];
    found = found || (lower(list[i]) <= lower(c) && lower(c) <= lower(last));
    if (is_range) i += 2;
  }
  return found != negated;
}

// Takes one element off the pattern and the character that it matches off the text.
bool take_one(std::string_view& text, std::string_view& pattern) {
  const char element = pattern.front();
  std::size_t element_size = 1;
  std::size_t size = 1;
  bool matches = false;
  if (element == '?') {
    matches = true;
    size = character_size(text);
  } else if (element == '#') {
    matches = text.front() >= '0' && text.front() <= '9';
  } else if (element == '[') {
    const auto end = pattern.find(']', 1);
    if (end == std::string_view::npos) return false;
    matches = in_list(text.front(), pattern.substr(1, end - 1));
    element_size = end + 1;
    size = character_size(text);
  } else {
    matches = lower(element) == lower(text.front());
  }
  if (!matches) return false;
  pattern.remove_prefix(element_size);
  text.remove_prefix(size);
  return true;
}

}  // namespace

// Goes back to the last star only, so that the time stays within the product of the two lengths.
bool is_like(std::string_view text, std::string_view pattern) {
  std::string_view star_pattern;
  std::string_view star_text;
  bool has_star = false;
  while (!text.empty()) {
    if (!pattern.empty() && pattern.front() == '*') {
      pattern.remove_prefix(1);
      star_pattern = pattern;
      star_text = text;
      has_star = true;
    } else if (pattern.empty() || !take_one(text, pattern)) {
      if (!has_star) return false;
      star_text.remove_prefix(character_size(star_text));
      text = star_text;
      pattern = star_pattern;
    }
  }
  return pattern.find_first_not_of('*') == std::string_view::npos;
}

}  // namespace runtime::engine::dialect
