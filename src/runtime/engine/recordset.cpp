#include "runtime/engine/recordset.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "runtime/engine/connection.h"
#include "runtime/engine/dialect/expression.h"
#include "runtime/engine/dialect/quoting.h"
#include "runtime/engine/dialect/statement.h"
#include "runtime/engine/key_order.h"
#include "runtime/fault.h"

namespace runtime::engine {

namespace {

enum class Place { BeforeFirst, OnRow, PastLast };
enum class Pending { None, Change, New };

// From so many steps on it is a long walk: a read that asks for its own lock takes seven times as long.
constexpr int long_walk = 64;

dialect::Names names_of(const std::vector<Field>& fields) {
  dialect::Names names;
  for (const auto& field : fields)
    names.push_back({field.name, field.kind == FieldKind::Text  ? dialect::Kind::Text
                                 : field.kind == FieldKind::Any ? dialect::Kind::Unknown
                                                                : dialect::Kind::Number});
  return names;
}

}  // namespace

struct Recordset::State {
  std::shared_ptr<Connection> connection;
  dialect::Selection source;
  KeyOrder rows;

  Place place = Place::PastLast;
  bool is_empty = true;  // no row was found at all: both before the first and past the last
  Row current;
  int steps = 0;

  Pending pending = Pending::None;
  std::vector<std::optional<Value>> changes;

  void load() {
    auto fields = fields_of(*connection, source.table);
    const auto condition =
        source.condition.empty() ? "" : dialect::condition_to_sql(source.condition, names_of(fields));
    rows = KeyOrder(source.table, condition, std::move(fields));
    stand_on(rows.first(*connection), Place::PastLast);
    is_empty = place != Place::OnRow;
  }

  // `otherwise`: where the walk stands when there is no such row.
  void stand_on(std::optional<Row> row, Place otherwise) {
    pending = Pending::None;
    place = row ? Place::OnRow : otherwise;
    current = row ? std::move(*row) : Row{};
  }

  void go_to_end(std::optional<Row> row) {
    is_empty = !row;
    stand_on(std::move(row), Place::PastLast);
    if (is_empty) throw Fault(3021);
  }

  int position_of(std::string_view name) const {
    const auto& fields = rows.fields();
    const auto found = std::find_if(fields.begin(), fields.end(),
                                    [name](const Field& field) { return same_name(field.name, name); });
    if (found == fields.end()) throw Fault(3265, std::string(name));
    return static_cast<int>(found - fields.begin());
  }

  std::size_t checked(int position) const {
    if (position < 0 || static_cast<std::size_t>(position) >= rows.fields().size())
      throw Fault(3265, std::to_string(position));
    return static_cast<std::size_t>(position);
  }

  void begin_edit(Pending kind) {
    pending = kind;
    changes.assign(rows.fields().size(), std::nullopt);
  }

  void insert() const;
  void change() const;
};

void Recordset::State::insert() const {
  std::string columns;
  std::string parameters;
  for (std::size_t i = 0; i < changes.size(); ++i) {
    if (!changes[i]) continue;
    columns += (columns.empty() ? "" : ", ") + dialect::quoted_name(rows.fields()[i].name);
    parameters += (parameters.empty() ? "?" : ", ?") + std::to_string(i + 1);
  }
  const auto into = "INSERT INTO " + dialect::quoted_name(source.table);
  Statement statement(*connection, columns.empty() ? into + " DEFAULT VALUES"
                                                   : into + " (" + columns + ") VALUES (" + parameters + ")");
  for (std::size_t i = 0; i < changes.size(); ++i)
    if (changes[i]) statement.bind(static_cast<int>(i + 1), *changes[i]);
  statement.step();
}

void Recordset::State::change() const {
  std::string assignments;
  for (std::size_t i = 0; i < changes.size(); ++i) {
    if (!changes[i]) continue;
    assignments += (assignments.empty() ? "" : ", ") + dialect::quoted_name(rows.fields()[i].name) + " = ?" +
                   std::to_string(i + 2);
  }
  if (assignments.empty()) return;
  Statement statement(*connection, "UPDATE " + dialect::quoted_name(source.table) + " SET " + assignments +
                                       " WHERE rowid = ?1");
  statement.bind(1, current.key);
  for (std::size_t i = 0; i < changes.size(); ++i)
    if (changes[i]) statement.bind(static_cast<int>(i + 2), *changes[i]);
  statement.step();
  if (connection->rows_changed() == 0) throw Fault(3021);
}

Recordset::Recordset() = default;
Recordset::~Recordset() = default;
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;
Recordset::Recordset(std::unique_ptr<State> state) : state_(std::move(state)) {}

Recordset Recordset::open(const std::shared_ptr<Connection>& connection, std::string_view source) {
  auto state = std::make_unique<State>();
  state->connection = connection;
  state->source = dialect::parse_selection(source);
  state->load();
  return Recordset(std::move(state));
}

Recordset::State& Recordset::state() const {
  if (!state_) throw Fault(91);
  return *state_;
}

bool Recordset::eof() const {
  return state().is_empty || state().place == Place::PastLast;
}
bool Recordset::bof() const {
  return state().is_empty || state().place == Place::BeforeFirst;
}

void Recordset::MoveFirst() {
  state().go_to_end(state().rows.first(*state().connection));
}
void Recordset::MoveLast() {
  state().go_to_end(state().rows.last(*state().connection));
}

void Recordset::MoveNext() {
  if (eof()) throw Fault(3021);
  auto& s = state();
  if (++s.steps % long_walk == 0) s.connection->begin_reading();
  const bool from_start = s.place == Place::BeforeFirst;
  s.stand_on(from_start ? s.rows.first(*s.connection) : s.rows.after(*s.connection, s.current.key),
             Place::PastLast);
  if (s.place == Place::PastLast) s.connection->end_reading();
}

void Recordset::MovePrevious() {
  if (bof()) throw Fault(3021);
  auto& s = state();
  const bool from_end = s.place == Place::PastLast;
  s.stand_on(from_end ? s.rows.last(*s.connection) : s.rows.before(*s.connection, s.current.key),
             Place::BeforeFirst);
}

std::int64_t Recordset::RecordCount() {
  return state().rows.count(*state().connection);
}

int Recordset::field_count() const {
  return static_cast<int>(state().rows.fields().size());
}

const std::string& Recordset::field_name(int position) const {
  return state().rows.fields()[state().checked(position)].name;
}

Value Recordset::field(std::string_view name) const {
  return field(state().position_of(name));
}

Value Recordset::field(int position) const {
  const auto& s = state();
  const auto place = s.checked(position);
  if (s.pending != Pending::None && s.changes[place]) return *s.changes[place];
  if (s.pending == Pending::New) return {};
  if (s.place != Place::OnRow) throw Fault(3021);
  return s.current.values[place];
}

void Recordset::AddNew() {
  state().begin_edit(Pending::New);
}

void Recordset::Edit() {
  if (state().place != Place::OnRow) throw Fault(3021);
  state().begin_edit(Pending::Change);
}

void Recordset::set(std::string_view name, const Value& value) {
  set(state().position_of(name), value);
}

void Recordset::set(int position, const Value& value) {
  auto& s = state();
  const auto place = s.checked(position);
  if (s.pending == Pending::None) throw Fault(3020);
  s.changes[place] = converted(s.rows.fields()[place], value);
}

void Recordset::Update() {
  auto& s = state();
  if (s.pending == Pending::None) throw Fault(3020);
  s.connection->before_write();
  std::int64_t key = s.current.key;
  if (s.pending == Pending::Change) {
    s.change();
  } else {
    s.insert();
    if (s.is_empty) key = s.connection->last_key();
  }
  const bool shows_a_row = s.place == Place::OnRow || s.is_empty;
  s.is_empty = false;
  s.pending = Pending::None;
  if (shows_a_row) s.stand_on(s.rows.at(*s.connection, key), Place::PastLast);
}

void Recordset::CancelUpdate() {
  if (state().pending == Pending::None) throw Fault(3020);
  state().pending = Pending::None;
}

void Recordset::Requery() {
  state().load();
}

void Recordset::Close() {
  state();
  state_.reset();
}

}  // namespace runtime::engine
