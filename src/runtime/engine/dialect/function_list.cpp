#include "runtime/engine/dialect/function_list.h"

#include <algorithm>
#include <array>

#include "runtime/engine/dialect/tokens.h"

namespace runtime::engine::dialect {

namespace {

constexpr std::array functions{
    AllowedFunction{"Abs", 1, 1, "q_abs", Kind::Number},
    AllowedFunction{"CDbl", 1, 1, "q_cdbl", Kind::Number},
    AllowedFunction{"CInt", 1, 1, "q_cint", Kind::Number},
    AllowedFunction{"CLng", 1, 1, "q_clng", Kind::Number},
    AllowedFunction{"CSng", 1, 1, "q_csng", Kind::Number},
    AllowedFunction{"CStr", 1, 1, "q_cstr", Kind::Text},
    AllowedFunction{"Fix", 1, 1, "q_fix", Kind::Number},
    AllowedFunction{"IIf", 3, 3, "", Kind::Unknown},
    AllowedFunction{"Int", 1, 1, "q_int", Kind::Number},
    AllowedFunction{"IsNull", 1, 1, "", Kind::Number},
    AllowedFunction{"LCase", 1, 1, "lower", Kind::Text},
    AllowedFunction{"Left", 2, 2, "q_left", Kind::Text},
    AllowedFunction{"Len", 1, 1, "q_len", Kind::Number},
    AllowedFunction{"Mid", 2, 3, "q_mid", Kind::Text},
    AllowedFunction{"Nz", 1, 2, "", Kind::Unknown},
    AllowedFunction{"Right", 2, 2, "q_right", Kind::Text},
    AllowedFunction{"Round", 1, 2, "q_round", Kind::Number},
    AllowedFunction{"Sgn", 1, 1, "q_sgn", Kind::Number},
    AllowedFunction{"Sqr", 1, 1, "q_sqr", Kind::Number},
    AllowedFunction{"Str", 1, 1, "q_str", Kind::Text},
    AllowedFunction{"Trim", 1, 1, "trim", Kind::Text},
    AllowedFunction{"UCase", 1, 1, "upper", Kind::Text},
    AllowedFunction{"Val", 1, 1, "q_val", Kind::Number},
};

}  // namespace

const AllowedFunction* find_function(std::string_view name) {
  const auto* const found = std::find_if(functions.begin(), functions.end(),
                                         [name](const auto& entry) { return same_word(entry.name, name); });
  return found == functions.end() ? nullptr : found;
}

}  // namespace runtime::engine::dialect
