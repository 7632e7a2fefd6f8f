// Cells as texts: what a cell shows, what a copy of it holds, and what a typed text means for its column.
#pragma once

#include <string>

#include "runtime/engine/recordset.h"
#include "runtime/fault.h"
#include "runtime/value.h"

namespace runtime::forms::grid {

/// A text that its column can't take. As a fault it is 3421; `words` tell a person what is wrong.
class Refusal : public Fault {
 public:
  explicit Refusal(const std::string& plain_words) : Fault(3421, plain_words), words(plain_words) {}
  std::string words;
};

/// A value as the cell shows it; Null is empty.
std::string shown_text(const Value& value);

/// A value with all its digits, so that it reads back the same.
std::string full_text(const Value& value);

/// What a typed text means in a column; an empty one is Null. Throws Refusal.
Value typed_value(const std::string& text, engine::FieldKind kind, const std::string& column);

}  // namespace runtime::forms::grid
