// The foot of a grid: which row is the current one, of how many, and the way to another.
#pragma once

#include <QScrollBar>
#include <QWidget>
#include <cstdint>
#include <functional>

class QLabel;

namespace runtime::forms::grid {

class GridFoot : public QWidget {
 public:
  explicit GridFoot(QWidget* parent);

  std::function<void()> when_go_to;

  /// `row` counts from 0.
  void show_row(std::int64_t row, std::int64_t rows);

 private:
  QLabel* words_;
};

/// The scroll bar beside the foot, high enough for a line of text.
class FootScrollBar : public QScrollBar {
 public:
  explicit FootScrollBar(QWidget* parent) : QScrollBar(Qt::Horizontal, parent) {}
  QSize sizeHint() const override;
};

}  // namespace runtime::forms::grid
