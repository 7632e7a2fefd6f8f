#include "runtime/forms/data_grid.h"

#include "runtime/forms/desktop.h"
#include "runtime/forms/grid/cell_text.h"
#include "runtime/forms/grid/find_row.h"
#include "runtime/forms/grid/go_to_box.h"
#include "runtime/forms/grid/grid_view.h"
#include "runtime/forms/twips.h"

namespace runtime::forms {

namespace {

using grid::GridView;
using grid::Refusal;
using grid::Sheet;

// What stands beside the rows is placed by their tops, and its words begin so much below its own.
constexpr int row_top_origin = 85;

std::string plain_words(const Refusal& refusal, const Sheet& sheet) {
  if (!sheet.editing()) return refusal.words;
  return refusal.words + "\n\nCorrect it, or press Escape to have the former value back.";
}

std::string no_such_row(const std::vector<std::string>& key_names, const std::vector<std::int64_t>& keys,
                        const grid::Found& found, std::int64_t rows) {
  std::string words = "There is no row with";
  for (std::size_t i = 0; i < keys.size(); ++i) {
    words += (i == 0 ? " " : ", ") + key_names[i] + " " + std::to_string(keys[i]);
  }
  if (found.looked_at == rows) return words + ".";
  return words + " among the first " + std::to_string(found.looked_at) +
         ". The rows stand in an order in which a search of all of them would take too long.";
}

}  // namespace

QWidget* DBGrid::make_widget(QWidget* parent) {
  view_ = new GridView(parent);
  view_->setAutoFillBackground(true);  // its foot as well: it may lie over other controls
  view_->host.run = [this](const std::function<void()>& action) { run(action); };
  view_->host.hears = [this] { return desktop().hears_a_person(); };
  view_->host.workspace = &desktop().workspace;
  view_->host.mouse_up = [this](int button) { fire_from_person(Event::MouseUp, button); };
  view_->host.clicked = [this](int column) { fire_from_person(Event::Click, column); };
  view_->host.head_clicked = [this](int column) { fire_from_person(Event::HeadClick, column); };
  view_->host.go_to = [this] { run([this] { ask_for_row(); }); };
  return view_;
}

DBGrid::~DBGrid() {
  // The widget lives on until the handler that unloads the form has ended.
  if (view_) view_->cut_loose();
}

void DBGrid::run(const std::function<void()>& action) {
  desktop_event([&] {
    try {
      action();
    } catch (const Refusal& refusal) {
      view_->sync();
      desktop().MsgBox(plain_words(refusal, sheet()), exclamation);
    }
  });
}

void DBGrid::bind(engine::Recordset& records) {
  sheet().attach(records);
}

Sheet& DBGrid::sheet() const {
  return view_->sheet;
}

int DBGrid::current_column() const {
  return sheet().current().column;
}

void DBGrid::set_current_column(int column) {
  if (column < 0 || column >= sheet().columns()) throw Fault(9);
  view_->move_to({sheet().current().row, column});
}

std::int64_t DBGrid::current_row() const {
  return sheet().current().row;
}

void DBGrid::set_current_row(std::int64_t row) {
  if (sheet().rows() == 0) return;
  if (row < 0 || row >= sheet().rows()) throw Fault(6148, std::to_string(row));
  view_->move_to({row, sheet().current().column});
}

Value DBGrid::column_value(int column) const {
  return sheet().value_with_edit(column);
}

void DBGrid::set_column_visible(int column, bool visible) {
  if (column < 0 || column >= sheet().columns()) throw Fault(9);
  view_->set_column_visible(column, visible);
}

void DBGrid::set_row_selectors(bool on) {
  view_->set_row_selectors(on);
}

bool DBGrid::current_cell_modified() const {
  return sheet().modified();
}

void DBGrid::set_current_cell_modified(bool modified) {
  sheet().set_modified(modified);
  view_->sync();
}

bool DBGrid::edit_active() const {
  return sheet().editing();
}

void DBGrid::set_edit_active(bool active) {
  if (active) {
    sheet().open_edit();
  } else {
    sheet().keep_edit();
  }
  view_->sync();
}

int DBGrid::row_top(int row) const {
  return twips(view_->row_top(0)) + row * row_height() - row_top_origin;
}

int DBGrid::row_height() const {
  return view_->row_height();
}

void DBGrid::set_row_height(int twips) {
  view_->set_row_height(twips);
}

void DBGrid::Refresh() {
  sheet().read_anew();
  view_->sync();
}

void DBGrid::post() {
  sheet().post();
  view_->sync();
}

void DBGrid::drop_edit() {
  sheet().drop_edit();
  view_->sync();
}

void DBGrid::writes_ended(bool kept) {
  sheet().writes_ended(kept);
  if (!kept) view_->sync();
}

void DBGrid::drop_refused_text() {
  if (!sheet().refusal()) return;
  sheet().step_back();
  view_->sync();
}

void DBGrid::about_to_hide() {
  const auto refusal = sheet().refusal();
  if (!refusal) return;
  drop_refused_text();
  desktop().MsgBox(refusal->words, exclamation);
}

void DBGrid::records_changed() {
  sheet().records_changed();
  view_->records_changed();
}

void DBGrid::records_touched() {
  // What the code does with them is not done yet.
  QMetaObject::invokeMethod(
      view_, [view = view_.data()] { view->follow_records(); }, Qt::QueuedConnection);
}

void DBGrid::ask_for_row() {
  std::vector<std::string> key_names;
  const int keys = grid::key_columns(sheet());
  for (int column = 0; column < keys; ++column) key_names.push_back(sheet().heading(column));
  // What is being edited has no part in it: these words must not call it wrong.
  const auto tell = [this](const std::string& words) { desktop().MsgBox(words, exclamation); };
  const auto wish = grid::ask_for_row(desktop().main_window, key_names, tell);
  if (!wish) return;
  if (wish->keys.empty()) {
    if (*wish->number < 1 || *wish->number > sheet().rows()) {
      return tell("There is no row " + std::to_string(*wish->number) + ". The last row is " +
                  std::to_string(sheet().rows()) + ".");
    }
    return view_->move_to_middle(*wish->number - 1);
  }
  const grid::Found found = grid::find_row(sheet(), wish->keys);
  if (found.row) return view_->move_to_middle(*found.row);
  tell(no_such_row(key_names, wish->keys, found, sheet().rows()));
}

}  // namespace runtime::forms
