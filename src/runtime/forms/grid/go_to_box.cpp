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

class GoToBox : public QDialog {
 public:
  GoToBox(QWidget* parent, const std::vector<std::string>& key_names,
          const std::function<void(const std::string&)>& tell)
      : QDialog(parent), key_names_(key_names), tell_(tell) {
    setObjectName(QStringLiteral("GoTo"));
    setWindowTitle(QStringLiteral("Go to a row"));
    auto* layout = new QFormLayout(this);
    for (const std::string& name : key_names) {
      keys_.push_back(number_line(*this, QStringLiteral("GoToKey(%1)").arg(keys_.size())));
      layout->addRow(qt(name), keys_.back());
    }
    row_ = number_line(*this, QStringLiteral("GoToRow"));
    layout->addRow(key_names.empty() ? QStringLiteral("Row number") : QStringLiteral("or row number"), row_);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addRow(buttons);
  }

  RowWish wish() const {
    RowWish wish{number_in(*row_), {}};
    for (const QLineEdit* line : keys_) {
      if (const auto key = number_in(*line)) wish.keys.push_back(*key);
    }
    return wish;
  }

 protected:
  void accept() override {
    const RowWish entered = wish();
    if (entered.number || entered.keys.empty() || entered.keys.size() == keys_.size()) {
      return QDialog::accept();
    }
    for (std::size_t i = 0; i < keys_.size(); ++i) {
      if (number_in(*keys_[i])) continue;
      tell_("Enter a number for " + key_names_[i] + ", too, or a row number.");
      return keys_[i]->setFocus();
    }
  }

 private:
  const std::vector<std::string>& key_names_;
  const std::function<void(const std::string&)>& tell_;
  std::vector<QLineEdit*> keys_;
  QLineEdit* row_;
};

}  // namespace

std::optional<RowWish> ask_for_row(QWidget* parent, const std::vector<std::string>& key_names,
                                   const std::function<void(const std::string&)>& tell) {
  GoToBox box(parent, key_names, tell);
  if (box.exec() != QDialog::Accepted) return std::nullopt;
  RowWish wish = box.wish();
  if (wish.keys.size() < key_names.size()) wish.keys.clear();
  if (wish.keys.empty() && !wish.number) return std::nullopt;
  return wish;
}

}  // namespace runtime::forms::grid
