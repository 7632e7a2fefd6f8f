#include "inputs/form2.h"

#include "runtime/forms/form_size.h"

namespace inputs::form2 {

void Form_Load(Program& program) {
  program.form2.set_window_state(runtime::forms::WindowState::maximized);
}

void Frame1_DragDrop(Program& program) {
  constexpr int margin = 100;
  auto& frame = program.form2->Frame1;
  frame.set_height(runtime::forms::height_of(program.form2) - margin);
  frame.set_width(runtime::forms::width_of(program.form2) - margin);
}

}  // namespace inputs::form2
