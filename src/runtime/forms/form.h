// A form: loaded at the first reference to one of its controls, loaded and invisible if need be. Its
// controls are made anew at each load; the variables of the class derived from it outlive the unload.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/forms/control_set.h"

class QWidget;

namespace runtime::forms {

class Desktop;
class FormWindow;

/// The platform's numbers of a window's state.
enum class WindowState { normal = 0, minimized = 1, maximized = 2 };

/// One row of the event table: the handler gets the index of the element of a control array, or no_index.
struct EventRow {
  std::string control;  // empty for an event of the form itself
  Event event;
  std::function<void(int index)> handler;
};

class FormBase {
 public:
  FormBase(Desktop& desktop, const FormDesign& design);
  FormBase(const FormBase&) = delete;
  FormBase& operator=(const FormBase&) = delete;
  virtual ~FormBase();

  const char* name() const { return design_.name; }
  bool loaded() const { return controls_ != nullptr; }
  bool visible() const { return visible_; }
  WindowState window_state() const { return window_state_; }
  const std::string& caption() const { return caption_; }
  const FormDesign& design() const { return design_; }
  Desktop& desktop() const { return desktop_; }

  /// The explicit load: the form appears, also when it was loaded invisible, and in front of the others.
  void Load();
  void Show();
  /// What a form does when code sets it not visible: a form that is not loaded is loaded hidden.
  void hide();
  /// Stores what its bound boxes hold, unless its design says otherwise, then removes the form; a fault of
  /// the storing leaves it as it is.
  void Unload();
  /// Stores what the bound boxes hold.
  void store();
  /// The writes of the handler that has ended were kept, or taken back: then it shows what is stored.
  void writes_ended(bool kept);
  /// Removes the form and drops what its boxes hold.
  void unload_without_storing();
  void set_window_state(WindowState state);
  /// Paints the form at once.
  void Refresh();
  /// The width of its window, frame included, in twips; of an icon that of the window that it stands for.
  int width();
  void set_caption(const std::string& caption);
  /// The font of the form itself, in points; 0 as designed. Its controls have fonts of their own.
  double font_size() const { return font_size_; }
  void set_font_size(double points);

  /// The handlers of the form's controls, tied at each load.
  void set_events(std::vector<EventRow> rows) { events_ = std::move(rows); }
  const std::vector<EventRow>& events() const { return events_; }

  /// The inner widget that carries the form's name, or nullptr.
  QWidget* surface() const;

 protected:
  virtual std::unique_ptr<ControlSet> make_controls() const = 0;
  ControlSet& controls() const { return *controls_; }
  /// A reference to the form: loads it when it is not loaded.
  void reference();

 private:
  void build();
  void tie_events();
  void open_data_controls();
  void remove();
  void run_form_event(Event event);
  void apply_window_state();
  void activate_next_form();

  Desktop& desktop_;
  const FormDesign& design_;
  std::vector<EventRow> events_;
  std::unique_ptr<ControlSet> controls_;
  FormWindow* window_ = nullptr;
  std::string caption_;
  double font_size_ = 0;
  WindowState window_state_ = WindowState::normal;
  WindowState state_before_minimized_ = WindowState::normal;
  bool visible_ = false;
};

/// A form with its controls: `form->Command11` is a reference to a control and loads the form,
/// `form.PickCount` is one of its variables and does not.
template <typename Controls>
class Form : public FormBase {
 public:
  using FormBase::FormBase;

  Controls* operator->() {
    reference();
    return static_cast<Controls*>(&controls());
  }

 protected:
  std::unique_ptr<ControlSet> make_controls() const override { return std::make_unique<Controls>(); }
};

}  // namespace runtime::forms
