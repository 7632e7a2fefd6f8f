#include "database/value_lines.h"

#include <cerrno>
#include <utility>

#include "runtime/text/numbers.h"
#include "runtime/text/print_line.h"

namespace database {

using runtime::engine::RecordView;
using runtime::text::append_joined;

namespace {
constexpr std::size_t piece = std::size_t{1} << 20;
constexpr std::size_t longest_line = 256;
}  // namespace

ValueLines::ValueLines(std::ostream& stream, std::string name, int position)
    : stream_(stream), name_(std::move(name)), position_(position) {
  gathered_.reserve(piece + longest_line);
}

void ValueLines::add(std::string_view pair, const RecordView& record) {
  gathered_ += pair;
  if (!record.is_null(position_)) append_joined(gathered_, record.number(position_));
  gathered_ += "\r\n";
  if (gathered_.size() >= piece) finish();
}

void ValueLines::finish() {
  errno = 0;
  stream_.write(gathered_.data(), static_cast<std::streamsize>(gathered_.size()));
  runtime::text::expect_written(stream_, name_);
  gathered_.clear();
}

void set_zone_pair(std::string& line, const RecordView& record) {
  line.clear();
  for (const int position : {0, 1}) {
    if (!record.is_null(position)) append_joined(line, record.whole(position));
    line += ' ';
  }
}

void write_value_lines(std::deque<ValueLines>& files, const runtime::engine::Recordset& rows) {
  std::string pair;
  rows.for_each([&](const RecordView& record) {
    set_zone_pair(pair, record);
    for (ValueLines& file : files) file.add(pair, record);
  });
  for (ValueLines& file : files) file.finish();
}

}  // namespace database
