#include "runtime/engine/values_by_row.h"

#include <algorithm>
#include <span>

namespace runtime::engine {

namespace {

constexpr std::size_t rows_in_a_drawer = std::size_t{1} << 20;
constexpr std::size_t unwritten_in_all = std::size_t{1} << 20;
constexpr std::size_t least_unwritten = 64;

}  // namespace

ValuesByRow::ValuesByRow(const std::filesystem::path& directory, std::int64_t end)
    : file_(directory),
      drawers_(static_cast<std::size_t>(end) / rows_in_a_drawer + 1),
      most_unwritten_(std::clamp(unwritten_in_all / drawers_.size(), least_unwritten, rows_in_a_drawer)),
      values_(rows_in_a_drawer),
      is_there_(rows_in_a_drawer) {}

std::int64_t ValuesByRow::offset_of(std::size_t drawer, std::int64_t entry) {
  const auto before = static_cast<std::int64_t>(drawer * rows_in_a_drawer);
  return (before + entry) * static_cast<std::int64_t>(sizeof(Entry));
}

void ValuesByRow::put(RowOrder::RowNumber row, std::int32_t value) {
  const auto place = row / rows_in_a_drawer;
  auto& unwritten = drawers_[place].unwritten;
  if (unwritten.capacity() == 0) unwritten.reserve(most_unwritten_);
  unwritten.push_back({static_cast<std::uint32_t>(row % rows_in_a_drawer), value});
  if (unwritten.size() == most_unwritten_) write_out(place);
}

void ValuesByRow::write_out(std::size_t place) {
  auto& drawer = drawers_[place];
  file_.write(offset_of(place, drawer.written), std::as_bytes(std::span(drawer.unwritten)));
  drawer.written += static_cast<std::int64_t>(drawer.unwritten.size());
  drawer.unwritten.clear();
}

void ValuesByRow::open(std::size_t place) {
  constexpr std::int64_t entries_at_once = 1 << 16;
  opened_ = place;
  std::fill(is_there_.begin(), is_there_.end(), false);
  const auto take = [this](std::span<const Entry> entries) {
    for (const auto& entry : entries) {
      values_[entry.row] = entry.value;
      is_there_[entry.row] = true;
    }
  };
  const auto& drawer = drawers_[place];
  std::vector<Entry> entries;
  for (std::int64_t first = 0; first < drawer.written; first += entries_at_once) {
    entries.resize(static_cast<std::size_t>(std::min(entries_at_once, drawer.written - first)));
    file_.read(offset_of(place, first), std::as_writable_bytes(std::span(entries)));
    take(entries);
  }
  take(drawer.unwritten);
}

const std::int64_t* ValuesByRow::get(std::int64_t row) {
  const auto place = static_cast<std::size_t>(row) / rows_in_a_drawer;
  if (row < 0 || place >= drawers_.size()) return nullptr;
  if (place != opened_) open(place);
  const auto in_drawer = static_cast<std::size_t>(row) % rows_in_a_drawer;
  if (!is_there_[in_drawer]) return nullptr;
  value_ = values_[in_drawer];
  return &value_;
}

}  // namespace runtime::engine
