// What the runs of the two markets have in common, and the table of what differs between them.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "forms/program.h"
#include "runtime/engine/database.h"

namespace analysis {

using forms::Program;

/// One market's row: everything in which the two runs differ by a word.
struct Market {
  const char* directory;        // of the model, below the application directory
  const char* no_picks;         // told when nothing was picked
  const char* row_query;        // the parameters of a pick; its code and a blank follow
  const char* picked_file;      // stem of the copy of a picked file
  const char* summary_heading;  // no line end follows
  const char* before_label;     // stands before each name of the summary
  const char* verdict_file;
  const char* refused;  // stands before the program's own error text
  std::span<const char* const> clean_up;
};

/// The path of a model file; `name` brings its own leading "/".
std::string path_of(const Program& program, const Market& market, const std::string& name);

/// "DB", "FILE" or "NONE", as the options say; nothing when none is selected.
std::optional<std::string> reliability_mode(Program& program);

/// Moves to the record of the paths, which stores what the page holds, and copies the three files.
void copy_time_files(Program& program, const Market& market);

/// The parameters of a pick, on their first row. Fault 3021 when there is none.
runtime::engine::Recordset parameters_of(runtime::engine::Database& database, const Market& market,
                                         const std::string& code);

/// What the run asks about, without the question. Lines end in a lone carriage return.
std::string summary(Program& program, const Market& market, std::int16_t zones, std::int16_t districts);

/// Deletes the run's files from the model's directory; what cannot be deleted is passed over.
void clean_up(Program& program, const Market& market);

}  // namespace analysis
