// The four editors that the menu makes of Form1. The form's caption is all that tells its buttons which one
// they serve.
#pragma once

#include "forms/program.h"

namespace parameters {

inline constexpr const char* commercial_caption = "Edit Commercial Parameters";
inline constexpr const char* commuter_caption = "Revise Commuter Parameters";
inline constexpr const char* mode_share_caption = "Revise Commuter Mode Split";
inline constexpr const char* reliability_caption = "Revise Speeds and % Highway for Reliability Analysis";

namespace mdiform1 {

/// Each shows its editor. A form that was left loaded keeps its layout, and the editor is built on top of it.
/// Faults: 3024 and others of opening the database.
void Commerparam_Click(forms::Program& program);
void commute_param_sw_Click(forms::Program& program);
/// The only one that switches the menus off.
void Commute_param_ms_Click(forms::Program& program);
void mnu_rel_Click(forms::Program& program);

}  // namespace mdiform1

}  // namespace parameters
