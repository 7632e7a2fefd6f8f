#include "runtime/forms/grid/go_to_box.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <charconv>

#include "runtime/forms/twips.h"

namespace runtime::forms::grid {

namespace {

QLineEdit* number_line(QDialog& box, const QString& name) {
  auto* line = new QLineEdit(&box);
  line->setObjectName(name);
  line->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("\\d{0,15}")), line));
  return line;
}

std::optional<std::int64_t> number_in(const QLineEdit& line) {
  const std::string digits = line.text().toStdString();
  if (digits.empty()) return std::nullopt;
  std::int64_t number = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), number);
  return number;
}

}  // namespace

std::optional<RowWish> ask_for_row(QWidget* parent, const std::vector<std::string>& key_names) {
  QDialog box(parent);
  box.setObjectName(QStringLiteral("GoTo"));
  box.setWindowTitle(QStringLiteral("Go to a row"));
  auto* layout = new QFormLayout(&box);
  std::vector<QLineEdit*> keys;
  for (const std::string& name : key_names) {
    keys.push_back(number_line(box, QStringLiteral("GoToKey(%1)").arg(keys.size())));
    layout->addRow(qt(name), keys.back());
  }
  auto* row = number_line(box, QStringLiteral("GoToRow"));
  layout->addRow(key_names.empty() ? QStringLiteral("Row number") : QStringLiteral("or row number"), row);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &box);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &box, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &box, &QDialog::reject);
  layout->addRow(buttons);
  if (box.exec() != QDialog::Accepted) return std::nullopt;

  RowWish wish;
  for (const QLineEdit* line : keys) {
    if (const auto key = number_in(*line)) wish.keys.push_back(*key);
  }
  if (wish.keys.size() < keys.size()) wish.keys.clear();
  wish.number = number_in(*row);
  if (wish.keys.empty() && !wish.number) return std::nullopt;
  return wish;
}

}  // namespace runtime::forms::grid
