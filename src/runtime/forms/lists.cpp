#include "runtime/forms/lists.h"

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QFocusEvent>
#include <QListWidget>
#include <QSignalBlocker>
#include <QStorageInfo>

#include "runtime/fault.h"
#include "runtime/forms/twips.h"

namespace runtime::forms {

namespace {

QListWidget& list_of(const Control& control) {
  return *static_cast<QListWidget*>(control.widget());
}
QComboBox& combo_of(const Control& control) {
  return *static_cast<QComboBox*>(control.widget());
}

/// A list that tells when the focus leaves it for another control, and not when another window comes up.
class FocusList : public QListWidget {
 public:
  FocusList(QWidget* parent, std::function<void()> lost) : QListWidget(parent), lost_(std::move(lost)) {}

 protected:
  void focusOutEvent(QFocusEvent* event) override {
    QListWidget::focusOutEvent(event);
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason) lost_();
  }

 private:
  std::function<void()> lost_;
};

QStringList ancestors(const QString& path) {
  QStringList line{path};
  for (QDir directory(path); directory.cdUp();) line.prepend(directory.absolutePath());
  return line;
}

}  // namespace

QWidget* ListBox::make_widget(QWidget* parent) {
  return new QListWidget(parent);
}

int ListBox::count() const {
  return list_of(*this).count();
}

std::string ListBox::list(int position) const {
  const QListWidgetItem* item = list_of(*this).item(position);
  return item == nullptr ? std::string() : item->text().toStdString();
}

void ListBox::set_list(int position, const std::string& entry) {
  if (position < 0 || position > count()) throw Fault(9);
  if (position == count()) {
    list_of(*this).addItem(qt(entry));
  } else {
    list_of(*this).item(position)->setText(qt(entry));
  }
}

QWidget* DriveListBox::make_widget(QWidget* parent) {
  auto* combo = new QComboBox(parent);
  for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
    if (volume.isValid() && volume.isReady()) combo->addItem(QDir::toNativeSeparators(volume.rootPath()));
  }
  QObject::connect(combo, &QComboBox::activated, combo, [this] { fire_from_person(Event::Change); });
  return combo;
}

std::string DriveListBox::drive() const {
  return combo_of(*this).currentText().toStdString();
}

void DriveListBox::set_drive(const std::string& path) {
  const QString root = QDir::toNativeSeparators(QStorageInfo(qt(path)).rootPath());
  const int place = combo_of(*this).findText(root);
  if (place < 0) throw Fault(76, path);
  if (place == combo_of(*this).currentIndex()) return;
  combo_of(*this).setCurrentIndex(place);
  fire(Event::Change);
}

QWidget* DirListBox::make_widget(QWidget* parent) {
  auto* list = new FocusList(parent, [this] { fire_from_person(Event::LostFocus); });
  QObject::connect(list, &QListWidget::itemActivated, list, [this] {
    const std::string chosen = highlighted();
    desktop_event([this, chosen] { set_path(chosen); });
  });
  return list;
}

void DirListBox::created(const ControlDesign&) {
  path_ = QDir::toNativeSeparators(QDir::currentPath()).toStdString();
  fill();
}

void DirListBox::set_path(const std::string& path) {
  const QFileInfo directory(qt(path));
  if (!directory.isDir() || !directory.isReadable()) throw Fault(76, path);
  const std::string absolute =
      QDir::toNativeSeparators(QDir::cleanPath(directory.absoluteFilePath())).toStdString();
  if (absolute == path_) return;
  path_ = absolute;
  fill();
  fire(Event::Change);
}

std::string DirListBox::highlighted() const {
  const int row = list_of(*this).currentRow();
  return row < 0 ? path_ : rows_[static_cast<std::size_t>(row)];
}

void DirListBox::fill() {
  QListWidget& list = list_of(*this);
  const QSignalBlocker blocker(&list);
  list.clear();
  rows_.clear();
  const QDir directory(qt(path_));
  int depth = 0;
  const auto add = [&](const QString& name, const QString& full) {
    list.addItem(QString(2 * depth, u' ') + QDir::toNativeSeparators(name));
    rows_.push_back(QDir::toNativeSeparators(full).toStdString());
  };
  for (const QString& ancestor : ancestors(directory.absolutePath())) {
    const QString name = QFileInfo(ancestor).fileName();
    add(name.isEmpty() ? ancestor : name, ancestor);
    ++depth;
  }
  list.setCurrentRow(depth - 1);
  const auto below =
      directory.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
  for (const QFileInfo& entry : below) add(entry.fileName(), entry.absoluteFilePath());
}

}  // namespace runtime::forms
