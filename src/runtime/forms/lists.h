// List boxes, and the drive and directory lists of the directory chooser.
#pragma once

#include <string>
#include <vector>

#include "runtime/forms/control.h"

namespace runtime::forms {

class ListBox : public Control {
 public:
  using Control::Control;
  Kind kind() const override { return Kind::ListBox; }

  /// The entry at a position from 0; "" where there is none.
  std::string list(int position) const;
  /// Sets an entry; the position behind the last one adds an entry. Fault 9 further on.
  void set_list(int position, const std::string& entry);
  int count() const;

 protected:
  QWidget* make_widget(QWidget* parent) override;
};

/// The mounted volumes.
class DriveListBox : public Control {
 public:
  using Control::Control;
  Kind kind() const override { return Kind::DriveListBox; }

  /// The chosen volume's root; "" without any.
  std::string drive() const;
  /// Chooses the volume on which the path lies; fires Change when it is another one. Fault 76 when the path
  /// lies on none.
  void set_drive(const std::string& path);
  /// Whether the path lies on the chosen volume, and not on another one below that.
  bool is_drive_of(const std::string& path) const;

 protected:
  QWidget* make_widget(QWidget* parent) override;
  /// Starts at the volume of the current directory.
  void created(const ControlDesign& design) override;

 private:
  /// The place in the list of the volume on which the path lies, -1 when it lies on none.
  int place_of(const std::string& path) const;
};

/// The directories below a path, with the path's own line of ancestors above them. A double click or Enter
/// opens the highlighted one. Read anew whenever it comes to be seen, and by F5.
class DirListBox : public Control {
 public:
  using Control::Control;
  Kind kind() const override { return Kind::DirListBox; }

  const std::string& path() const { return path_; }
  /// Shows another directory and fires Change. Fault 76 for one that can't be read.
  void set_path(const std::string& path);
  /// The highlighted directory's path, or the list's own path when none is highlighted.
  std::string highlighted() const;

  void form_shown() override { read_anew(); }

 protected:
  QWidget* make_widget(QWidget* parent) override;
  void created(const ControlDesign& design) override;

 private:
  void fill();
  void read_anew();

  std::string path_;
  std::vector<std::string> rows_;
};

}  // namespace runtime::forms
