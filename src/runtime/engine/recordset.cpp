#include "runtime/engine/recordset.h"

#include <utility>

#include "runtime/engine/connection.h"
#include "runtime/engine/recordset_state.h"
#include "runtime/fault.h"

namespace runtime::engine {

namespace {

// From so many steps on it is a long walk: a read that asks for its own lock takes seven times as long.
constexpr int long_walk = 64;

}  // namespace

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
  return state().is_empty || state().place == State::Place::PastLast;
}
bool Recordset::bof() const {
  return state().is_empty || state().place == State::Place::BeforeFirst;
}

void Recordset::MoveFirst() {
  state().go_to_end(state().first_row());
}
void Recordset::MoveLast() {
  state().go_to_end(state().last_row());
}

void Recordset::MoveNext() {
  if (eof()) throw Fault(3021);
  auto& s = state();
  if (++s.steps % long_walk == 0) s.connection->begin_reading();
  s.stand_on(s.row_after(), State::Place::PastLast);
  if (s.place == State::Place::PastLast) s.connection->end_reading();
}

void Recordset::MovePrevious() {
  if (bof()) throw Fault(3021);
  state().stand_on(state().row_before(), State::Place::BeforeFirst);
}

std::int64_t Recordset::RecordCount() {
  return state().size();
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
  if (s.pending != State::Pending::None && s.changes[place]) return *s.changes[place];
  if (s.pending == State::Pending::New) return {};
  if (s.place != State::Place::OnRow) throw Fault(3021);
  return s.current.values[place];
}

void Recordset::AddNew() {
  state().begin_edit(State::Pending::New);
}

void Recordset::Edit() {
  if (state().place != State::Place::OnRow) throw Fault(3021);
  state().begin_edit(State::Pending::Change);
}

void Recordset::set(std::string_view name, const Value& value) {
  set(state().position_of(name), value);
}

void Recordset::set(int position, const Value& value) {
  auto& s = state();
  const auto place = s.checked(position);
  if (s.pending == State::Pending::None) throw Fault(3020);
  s.changes[place] = converted(s.rows.fields()[place], value);
}

void Recordset::Update() {
  auto& s = state();
  if (s.pending == State::Pending::None) throw Fault(3020);
  std::int64_t key = s.current.key;
  // Stored or not, it is under way no longer.
  if (std::exchange(s.pending, State::Pending::None) == State::Pending::Change) {
    s.connection->before_update();
    s.change();
  } else {
    s.connection->before_write();
    s.insert();
    if (s.is_empty) key = s.connection->last_key();
  }
  const bool shows_a_row = s.place == State::Place::OnRow || s.is_empty;
  s.is_empty = false;
  if (shows_a_row) s.stand_on(s.rows.at(*s.connection, key), State::Place::PastLast);
}

void Recordset::CancelUpdate() {
  if (state().pending == State::Pending::None) throw Fault(3020);
  state().pending = State::Pending::None;
}

void Recordset::ReadAgain() {
  auto& s = state();
  if (s.place == State::Place::OnRow)
    s.stand_on(s.rows.at(*s.connection, s.current.key), State::Place::PastLast);
}

FieldKind Recordset::field_kind(int position) const {
  return state().rows.fields()[state().checked(position)].kind;
}

void Recordset::Requery() {
  state().load();
}

void Recordset::Close() {
  state();
  state_.reset();
}

}  // namespace runtime::engine
