#include "runtime/forms/lists.h"

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QStorageInfo>
#include <algorithm>

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

/// A list that tells when the focus leaves it for another control, and not when another window comes up, and
/// when an entry is opened: by two clicks on every desktop, also on one that opens files by a single one.
class DirectoryList : public QListWidget {
 public:
  explicit DirectoryList(QWidget* parent) : QListWidget(parent) {}

  std::function<void()> when_lost;
  std::function<void()> when_opened;
  /// What is below the directories may have changed since the list was read.
  std::function<void()> read_anew;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
      when_opened();
    } else if (event->matches(QKeySequence::Refresh)) {
      read_anew();
    } else {
      QListWidget::keyPressEvent(event);
    }
  }
  void mouseDoubleClickEvent(QMouseEvent* event) override {
    QListWidget::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && itemAt(event->pos()) != nullptr) when_opened();
  }
  void focusOutEvent(QFocusEvent* event) override {
    QListWidget::focusOutEvent(event);
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason)
      when_lost();
  }
  void showEvent(QShowEvent* event) override {
    QListWidget::showEvent(event);
    read_anew();
  }
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
    // A single file can be a volume, too, where programs run walled off from each other.
    if (!volume.isValid() || !volume.isReady() || !QFileInfo(volume.rootPath()).isDir()) continue;
    combo->addItem(QDir::toNativeSeparators(volume.rootPath()));
  }
  QObject::connect(combo, &QComboBox::currentIndexChanged, combo,
                   [this] { fire_from_person(Event::Change); });
  return combo;
}

std::string DriveListBox::drive() const {
  return combo_of(*this).currentText().toStdString();
}

void DriveListBox::created(const ControlDesign&) {
  const QSignalBlocker blocker(&combo_of(*this));
  combo_of(*this).setCurrentIndex(place_of(QDir::currentPath().toStdString()));
}

int DriveListBox::place_of(const std::string& path) const {
  const QString wanted = QDir::fromNativeSeparators(qt(path)) + u'/';
  const QComboBox& combo = combo_of(*this);
  int place = -1;
  qsizetype longest = 0;
  for (int i = 0; i < combo.count(); ++i) {
    QString root = QDir::fromNativeSeparators(combo.itemText(i));
    if (!root.endsWith(u'/')) root += u'/';
    if (root.size() <= longest || !wanted.startsWith(root)) continue;
    place = i;
    longest = root.size();
  }
  return place;
}

void DriveListBox::set_drive(const std::string& path) {
  const int place = place_of(path);
  if (place < 0) throw Fault(76, path);
  QComboBox& combo = combo_of(*this);
  if (place == combo.currentIndex()) return;
  {
    const QSignalBlocker blocker(&combo);
    combo.setCurrentIndex(place);
  }
  fire(Event::Change);
}

bool DriveListBox::is_drive_of(const std::string& path) const {
  return place_of(path) == combo_of(*this).currentIndex();
}

QWidget* DirListBox::make_widget(QWidget* parent) {
  auto* list = new DirectoryList(parent);
  list->when_lost = [this] { fire_from_person(Event::LostFocus); };
  list->when_opened = [this] { desktop_event([this] { set_path(highlighted()); }); };
  list->read_anew = [this] { read_anew(); };
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

/// The highlight stays on its directory as long as that is there.
void DirListBox::read_anew() {
  const std::string before = highlighted();
  fill();
  const auto row = std::find(rows_.begin(), rows_.end(), before);
  if (row != rows_.end()) list_of(*this).setCurrentRow(static_cast<int>(row - rows_.begin()));
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
