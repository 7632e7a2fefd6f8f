#include "inputs/grid_mode.h"

#include "runtime/text/numbers.h"

namespace inputs {

namespace {
constexpr int column_list_box = 0;
constexpr int mode_word_box = 2;
}  // namespace

std::string mode_word(forms::Program& program) {
  return program.form2->Text1(mode_word_box).text();
}

void set_mode_word(forms::Program& program, std::string_view word) {
  program.form2->Text1(mode_word_box).set_text(std::string(word));
}

std::string column_list(forms::Program& program) {
  return program.form2->Text1(column_list_box).text();
}

void set_column_list(forms::Program& program, const std::string& columns) {
  program.form2->Text1(column_list_box).set_text(columns);
}

void add_to_column_list(forms::Program& program, std::string_view name, std::string_view type) {
  std::string columns = column_list(program);
  columns.append(",").append(name).append(" ").append(type);
  set_column_list(program, columns);
}

std::int16_t zone_count(forms::Program& program) {
  return runtime::text::whole_16(runtime::text::val(program.form2->MaskEdBox1.text()));
}

}  // namespace inputs
