// The rows of a form's design table: what stands on the form when it is loaded.
#pragma once

#include <span>

namespace runtime::forms {

enum class Kind {
  CommandButton,
  TextBox,
  MaskEdBox,
  Label,
  Frame,
  OptionButton,
  CheckBox,
  Line,
  Shape,
  Data,
  DBGrid,
  DriveListBox,
  DirListBox,
  ListBox,
  PictureBox,
  CommonDialog,
};

/// Where a control stands in its container, in twips.
struct Place {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

/// The index of a control that is no element of a control array.
inline constexpr int no_index = -1;

inline constexpr bool shown = true;
inline constexpr bool hidden = false;
inline constexpr bool enabled = true;
inline constexpr bool disabled = false;

/// A bound box names its data control and field; a data control names its table in `source`.
struct Binding {
  const char* data = nullptr;
  int data_index = no_index;
  const char* source = nullptr;
};

struct ControlDesign {
  const char* name;
  int index;
  Kind kind;
  const char* container;  // the frame or picture box that holds it, nullptr for the form itself
  const char* caption;    // of a text box its text, of a masked box its mask
  Place place;
  bool visible = shown;
  bool enabled = forms::enabled;
  Binding binding = {};
  const char* label = nullptr;  // what assistive tools call a box, which has no caption of its own
};

struct FormDesign {
  const char* name;
  const char* caption;
  int client_width;  // twips
  int client_height;
  bool appears_at_load;   // also when a mere reference loads it
  bool stores_at_unload;  // what its bound boxes hold goes to the tables when it is unloaded
  std::span<const ControlDesign> controls;
};

}  // namespace runtime::forms
