#include "database/text_table.h"

#include "database/catalogue.h"
#include "runtime/fault.h"
#include "runtime/files/numbers_in_use.h"
#include "runtime/text/numbers.h"
#include "runtime/text/print_line.h"

namespace database {

namespace {

using runtime::files::Files;

std::string column_line(int column, std::string_view name, std::string_view type) {
  return ("COL" + std::to_string(column) + "=").append(name).append(type);
}

// Where a line's second number begins, when nothing has filled the columns before it.
constexpr std::size_t zone_width = 14;

// The lines of one origin. Those of the next are the same but for their first columns, so they are made once.
class OriginLines {
 public:
  explicit OriginLines(std::int64_t zones) {
    for (std::int64_t destination = 1; destination <= zones; ++destination) {
      places_.push_back(lines_.size());
      lines_.append(zone_width, ' ');
      runtime::text::append_printed(lines_, destination);
      lines_ += "\r\n";
    }
  }

  const std::string& of(std::int64_t origin) {
    std::string head;
    runtime::text::append_printed(head, origin);
    head += ',';
    head.resize(zone_width, ' ');
    for (const std::size_t place : places_) head.copy(lines_.data() + place, zone_width);
    return lines_;
  }

 private:
  std::string lines_;
  std::vector<std::size_t> places_;
};

void write(std::ostream& stream, std::string_view bytes) {
  stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  runtime::text::expect_written(stream);
}

void append_lines(Files& files, std::string_view file, const std::vector<std::string>& lines) {
  const int number = files.free_number();
  const runtime::files::NumbersInUse numbers(files, number, number);
  files.open_for_append(number, file);
  for (const std::string& line : lines) runtime::text::print_line(files.out(number), {line});
  files.Close(number);
}

}  // namespace

std::string column_to_read(int column, std::string_view name) {
  return column_line(column, name, " DOUBLE");
}
std::string column_to_write(int column, std::string_view name) {
  return column_line(column, name, " Double Width 10");
}
std::string workers_column_to_write(int column, std::string_view name) {
  return column_line(column, name, "_emp   Double Width 10");
}

void write_pair_skeleton(std::ostream& stream, std::int64_t zones, const runtime::Progress& progress) {
  write(stream, "\r\n");
  OriginLines lines(zones);
  for (std::int64_t origin = 1; origin <= zones; ++origin) {
    write(stream, lines.of(origin));
    if (progress) progress(origin * zones, zones * zones);
  }
}

void write_zone_skeleton(std::ostream& stream, std::int64_t zones) {
  write(stream, "\r\n");
  for (std::int64_t zone = 1; zone <= zones; ++zone) runtime::text::print_line(stream, {zone});
}

void drop_if_there(runtime::engine::Database& database, const std::string& table) {
  constexpr int not_there = 3078;
  runtime::ignoring_fault(not_there, [&] { database.Execute("DROP TABLE " + table); });
}

runtime::engine::TableDef csvtable_definition(const runtime::engine::Database& database,
                                              const std::string& app_path) {
  auto definition = database.CreateTableDef(csvtable_table);
  definition.Connect = "text; database=" + app_path;
  definition.SourceTableName = trips_file;
  return definition;
}

void export_column(Files& files, runtime::engine::Database& database, const std::string& app_path,
                   const ColumnExport& column) {
  files.FileCopy(column.template_file, live_description);
  append_lines(files, live_description, column.columns);
  const auto definition = csvtable_definition(database, app_path);
  const int number = files.free_number();
  files.open_for_output(number, trips_file);
  files.Close(number);
  database.AppendTableDef(definition);
  database.Execute(column.insert);
  database.Execute("Drop TABLE csvtable");
  files.Replace(trips_file, column.target);
}

}  // namespace database
