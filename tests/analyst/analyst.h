// An analyst at the screen: finds controls by their object names, clicks and types as a person does, and
// answers the modal boxes in their real form. Used by the tests and by the demonstration.
#pragma once

#include <QObject>
#include <QString>
#include <deque>
#include <functional>
#include <string>
#include <vector>

class QDialog;
class QWidget;

namespace analyst {

/// A modal box as it was met.
struct Box {
  std::string name;  // "MsgBox", "RuntimeError", "InputBox", "cdbox1"
  std::string text;  // of a file dialog its proposed file name
  std::string title;
  int icon = 0;                      // QMessageBox::Icon
  std::vector<std::string> buttons;  // captions, without mnemonics
  std::string directory;             // of a file dialog: where it opened
  std::string filter;                // of a file dialog: its first filter
};

class Analyst : public QObject {
 public:
  /// `main_window` is the root of everything that is looked for.
  explicit Analyst(QWidget& main_window);
  ~Analyst() override;
  Analyst(const Analyst&) = delete;
  Analyst& operator=(const Analyst&) = delete;

  // What the analyst will do when the next boxes come up, in this order.
  void will_press(const std::string& button);
  /// Into a box that asks for a line of text.
  void will_enter(const std::string& text);
  void will_choose_file(const std::string& path);
  void will_cancel_file();
  /// Anything else; it must leave the box closed, or answered by an event that is under way.
  void will_do(const std::function<void(QDialog&)>& answer);
  /// Called when the next box stands on the screen, before it is answered.
  std::function<void(const Box&)> when_box_shows;

  /// Called when the menu that holds a chosen item is open, before the item is clicked.
  std::function<void()> when_menu_opens;

  /// Clicks through the menu to the item of that object name. Complains when the way is barred.
  void choose(const std::string& item);
  /// Clicks a button, option or check box, which must be to be seen and enabled.
  void click(const std::string& control);
  /// Types into a box.
  void type(const std::string& control, const std::string& text);

  /// The widget of that object name, nullptr when there is none. Forms share names, as "Command3", so one
  /// that is to be seen comes before one on a hidden form.
  QWidget* find(const std::string& name) const;
  bool sees(const std::string& name) const;
  bool can_use(const std::string& name) const;
  bool item_enabled(const std::string& item) const;
  std::string text_of(const std::string& name) const;

  const std::vector<Box>& boxes() const { return boxes_; }
  std::vector<std::string> texts() const;
  /// The last box that came up, one without a word when there was none.
  Box last_box() const { return boxes_.empty() ? Box{} : boxes_.back(); }
  /// What went otherwise than planned: a box that nobody expected, a control that could not be clicked,
  /// an answer that was never asked for.
  std::vector<std::string> complaints() const;
  void forget_boxes() { boxes_.clear(); }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  using Answer = std::function<void(QDialog&)>;

  void meet(QDialog& dialog);
  void complain(const std::string& words) { complaints_.push_back(words); }

  QWidget& main_window_;
  std::deque<Answer> answers_;
  std::vector<Box> boxes_;
  std::vector<std::string> complaints_;
  QObject* met_last_ = nullptr;
};

}  // namespace analyst
