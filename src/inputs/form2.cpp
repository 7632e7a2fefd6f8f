#include "inputs/form2.h"

namespace inputs::form2 {

void Form_Load(forms::Program& program) {
  program.form2.set_window_state(runtime::forms::WindowState::maximized);
}

}  // namespace inputs::form2
