// What every control of a form has: a name, a place in twips, visibility, and the handlers of its events.
#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <map>
#include <optional>
#include <string>

#include "runtime/forms/design.h"

namespace runtime::forms {

class ControlSet;
class Desktop;

/// HeadClick hands over the column, from 0, and MouseUp the button (1 left, 2 right, 4 middle) in the place
/// of the index of a control array.
enum class Event { Load, Resize, Click, Change, LostFocus, HeadClick, MouseUp };

class Control {
 public:
  Control(ControlSet& owner, const char* name, int index = no_index);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  /// Makes the widget as designed inside `parent`.
  void create(const ControlDesign& design, QWidget* parent, Desktop& desktop);

  virtual Kind kind() const = 0;
  const std::string& name() const { return name_; }
  int index() const { return index_; }
  /// "Command11", or "Command10(3)" for an element of a control array.
  std::string full_name() const;
  QWidget* widget() const { return widget_; }

  const Place& place() const { return place_; }
  int left() const { return place_.left; }
  int top() const { return place_.top; }
  int width() const { return place_.width; }
  int height() const { return place_.height; }
  void set_left(int twips);
  void set_top(int twips);
  void set_width(int twips);
  void set_height(int twips);
  void set_place(const Place& place);

  bool visible() const { return visible_; }
  void set_visible(bool visible);
  bool is_enabled() const { return enabled_; }
  void set_enabled(bool enabled);
  const std::string& caption() const { return caption_; }
  void set_caption(const std::string& caption);
  /// The size asked for, in points. Nothing is drawn smaller than the smallest legible size.
  double font_size() const { return font_size_; }
  void set_font_size(double points);
  void set_tab_stop(bool tab_stop);
  /// What assistive tools call it.
  void set_label(const std::string& label);

  /// Sets the handler of an event; a control without one passes the event over.
  /// It gets what the event hands over, and the control's index where that is nothing.
  void on(Event event, std::function<void(int)> handler) { handlers_[event] = std::move(handler); }
  void forget_handlers() { handlers_.clear(); }
  /// Its form is shown, or brought to the front.
  virtual void form_shown() {}

 protected:
  virtual QWidget* make_widget(QWidget* parent) = 0;
  /// Puts the caption on the widget.
  virtual void show_caption(const std::string&) {}
  /// What a kind has to do once its widget stands in its place.
  virtual void created(const ControlDesign&) {}
  /// What a kind has to do whenever its widget was put in its place.
  virtual void placed() {}
  /// What a kind has to do before its widget goes from the screen by the program's will.
  virtual void about_to_hide() {}
  /// Labels and drawn shapes lie under everything that can be used.
  virtual bool lies_under() const { return false; }

  /// The event as set off by code: the handler's fault passes to the caller.
  void fire(Event event);
  /// The event as set off by a person: it goes through the desktop's edge, which reports a fault.
  /// `detail` is what the event hands over in the place of an index.
  void fire_from_person(Event event, std::optional<int> detail = std::nullopt);
  /// Runs what the control itself does on a person's behalf, through the same edge.
  void desktop_event(const std::function<void()>& action);
  Desktop& desktop() const { return *desktop_; }
  ControlSet& owner() const { return owner_; }

 private:
  ControlSet& owner_;
  std::string name_;
  int index_;
  Desktop* desktop_ = nullptr;
  QPointer<QWidget> widget_;
  Place place_;
  bool visible_ = true;
  bool enabled_ = true;
  std::string caption_;
  double font_size_ = 0;
  std::map<Event, std::function<void(int)>> handlers_;
};

}  // namespace runtime::forms
