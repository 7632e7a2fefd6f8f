#include "runtime/engine/row_walk.h"

#include <algorithm>

#include "runtime/engine/connection.h"

namespace runtime::engine {

namespace {

// Rows between two tellings of the progress.
constexpr std::int64_t stride = 8192;

// The key stands before the fields.
class RowView final : public RecordView {
 public:
  RowView(const Statement& row, const std::vector<Field>& fields) : row_(row), fields_(fields) {}

  bool is_null(int position) const override { return row_.is_null(position + 1); }
  std::int64_t whole(int position) const override { return row_.whole(position + 1); }
  double number(int position) const override { return row_.number(position + 1); }
  Value value(int position) const override {
    return as_read(fields_[static_cast<std::size_t>(position)], row_.value(position + 1));
  }

 private:
  const Statement& row_;
  const std::vector<Field>& fields_;
};

}  // namespace

void walk_rows(Connection& connection, const std::string& query, const std::vector<Field>& fields,
               std::int64_t total, const std::function<void(const RecordView&)>& visit) {
  Statement row(connection, query);
  const RowView view(row, fields);
  for (std::int64_t done = 1; row.step(); ++done) {
    visit(view);
    if (done % stride == 0) connection.tell_progress(done, std::max(done, total));
  }
}

void walk_list(Connection& connection, const std::string& query, const std::vector<Field>& fields,
               const RowOrder& order, const std::function<void(const RecordView&)>& visit) {
  connection.begin_reading();
  Statement row(connection, query);
  const RowView view(row, fields);
  std::vector<RowOrder::RowNumber> numbers;
  for (std::int64_t done = 0; done < order.size(); connection.tell_progress(done, order.size())) {
    numbers.resize(static_cast<std::size_t>(std::min(stride, order.size() - done)));
    order.read(done, numbers);
    done += static_cast<std::int64_t>(numbers.size());
    for (const auto number : numbers) {
      row.again().bind(1, order.first_key() + number);
      if (row.step()) visit(view);
    }
  }
  row.again();
  connection.end_reading();
}

}  // namespace runtime::engine
