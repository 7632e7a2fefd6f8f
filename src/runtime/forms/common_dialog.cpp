#include "runtime/forms/common_dialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QScreen>
#include <QSettings>

#include "runtime/fault.h"
#include "runtime/files/path_names.h"
#include "runtime/forms/boxes.h"
#include "runtime/forms/desktop.h"
#include "runtime/forms/twips.h"

namespace runtime::forms {

namespace {

constexpr const char* expected_extension = ".txt";
constexpr int dialog_width = 10200;  // twips
constexpr int dialog_height = 6300;

/// "a|*.txt|b|*.*" as the dialog's list. "*.*" means every file, also one without a dot.
QStringList name_filters(const std::string& filter) {
  const QStringList parts = qt(filter).split(u'|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const QString pattern = parts[i + 1] == QLatin1String("*.*") ? QStringLiteral("*") : parts[i + 1];
    filters << parts[i] + QLatin1String(" (") + pattern + u')';
  }
  return filters;
}

/// Qt's dialog, but a typed name with a wildcard is no file: it says which names are to be listed.
class FileDialog : public QFileDialog {
 public:
  using QFileDialog::QFileDialog;

 protected:
  void accept() override {
    auto* box = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    const std::string typed = box->text().toStdString();
    const std::string name(files::file_name_of(typed).value_or(typed));
    if (name.find_first_of("*?") == std::string::npos) return QFileDialog::accept();
    const QDir place = place_of(typed);
    if (!place.exists()) return tell_of_no_directory(place);
    setDirectory(place);
    findChild<QFileSystemModel*>()->setNameFilters({qt(name)});
    box->setText(qt(name));
    box->selectAll();
  }

 private:
  QDir place_of(const std::string& typed) const {
    const auto written = files::directory_of(typed);
    if (!written) return directory();
    return QDir(directory().absoluteFilePath(qt(files::text_of(files::native(*written)))));
  }

  void tell_of_no_directory(const QDir& place) {
    const QString path = QDir::toNativeSeparators(QDir::cleanPath(place.path()));
    show_message(this, "There is no directory " + path.toStdString() + ".", exclamation,
                 windowTitle().toStdString());
  }
};

/// The directory that the dialog opens in: its own, or that of a file name that holds one.
QString start_directory(const std::string& init_dir, const std::string& file_name) {
  const std::string directory =
      init_dir.empty() ? std::string(files::directory_of(file_name).value_or("")) : init_dir;
  if (directory.empty()) return QDir::currentPath();
  const QFileInfo found(qt(files::text_of(files::resolve(directory))));
  return found.isDir() ? found.absoluteFilePath() : QDir::currentPath();
}

}  // namespace

QWidget* CommonDialog::make_widget(QWidget* parent) {
  // The dialog has no face on the form; a hidden widget keeps its place among the controls.
  return new QWidget(parent);
}

void CommonDialog::ShowOpen() {
  show(QStringLiteral("&Open"));
}
void CommonDialog::ShowSave() {
  show(QStringLiteral("&Save"));
}

void CommonDialog::show(const QString& button) {
  // The dialog keeps its settings below the application directory: nothing outside it is written.
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, qt(desktop().app_path));
  FileDialog dialog(desktop().main_window);
  dialog.setObjectName(QStringLiteral("cdbox1"));
  dialog.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::DontConfirmOverwrite |
                    QFileDialog::HideNameFilterDetails);
  dialog.setWindowTitle(qt(dialog_title));
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setLabelText(QFileDialog::Accept, button);
  dialog.setViewMode(QFileDialog::List);  // what is picked is a name; sizes and dates only narrow it
  dialog.resize(
      pixels({0, 0, dialog_width, dialog_height}).size().boundedTo(dialog.screen()->availableSize() * 0.9));
  dialog.setNameFilters(name_filters(filter));
  dialog.setDirectory(start_directory(init_dir, file_name));
  dialog.selectFile(qt(std::string(files::file_name_of(file_name).value_or(file_name))));
  if (dialog.exec() != QDialog::Accepted) {
    if (cancel_error) throw Fault(cancel_fault);
    return;
  }
  const QString chosen = QDir::toNativeSeparators(QDir::cleanPath(dialog.selectedFiles().value(0)));
  file_name = chosen.toStdString();
  flags = chosen.endsWith(QLatin1String(expected_extension), Qt::CaseInsensitive) ? no_change_directory
                                                                                  : extension_different;
}

}  // namespace runtime::forms
