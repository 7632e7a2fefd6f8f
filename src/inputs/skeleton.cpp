#include "inputs/skeleton.h"

#include "database/text_table.h"
#include "inputs/grid_mode.h"
#include "runtime/files/numbers_in_use.h"
#include "runtime/forms/long_work.h"
#include "runtime/text/print_line.h"

namespace inputs {

using runtime::files::Files;

namespace {

constexpr int rows_file = 1;
constexpr int description_file = 2;

void write_zones(std::ostream& stream, std::int64_t zones, const runtime::Progress&) {
  database::write_zone_skeleton(stream, zones);
}

constexpr const char* pairs_words = "Writing the pairs of zones";

}  // namespace

const Skeleton skeleton_of_times{database::read_pairs_template, 3, "double", pairs_words,
                                 database::write_pair_skeleton};
const Skeleton skeleton_of_industries{database::read_pairs_template, 3, "DOUBLE", pairs_words,
                                      database::write_pair_skeleton};
const Skeleton skeleton_of_occupations{database::read_zones_template, 2, "DOUBLE", "Writing the zones",
                                       write_zones};

void copy_template(forms::Program& program, const Skeleton& skeleton) {
  program.desktop.files.FileCopy(skeleton.template_file, database::live_description);
}

void write_skeleton(forms::Program& program, const Skeleton& skeleton,
                    std::span<const std::string_view> columns, std::int16_t zones) {
  Files& files = program.desktop.files;
  const runtime::files::NumbersInUse numbers(files, rows_file, description_file);
  files.open_for_append(description_file, database::live_description);
  int number = skeleton.first_column;
  for (const std::string_view column : columns) {
    runtime::text::print_line(files.out(description_file), {database::column_to_read(number, column)});
    add_to_column_list(program, column, skeleton.listed_type);
    ++number;
  }
  files.open_for_output(rows_file, database::trips_file);
  {
    const runtime::forms::LongWork work(program.desktop, skeleton.words);
    skeleton.write_rows(files.out(rows_file), zones, program.desktop.workspace.progress);
  }
  files.Close(rows_file);
  files.Close(description_file);
}

}  // namespace inputs
