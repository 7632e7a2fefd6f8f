#include <array>

#include "commercial/run.h"

namespace commercial {

namespace {

/// The first holds a literal ampersand, so that a file "var.txt" outlives the run.
constexpr std::array clean_up_patterns{
    "/var&*.*",   "/sig*.*",      "/trktrp*.*", "/cost*.*",     "/base_time*.*", "/imp_time*.*",
    "/outpar*.*", "/district*.*", "/dist*.*",   "/imp_var.txt", "/base_var.txt",
};

}  // namespace

const analysis::Market market{
    .directory = "truck",
    .no_picks = "Must have at least one industry input file!",
    .row_query = "select * from Commercial where industry_number =",
    .picked_file = "trktrp",
    .summary_heading = "The industries are",
    .before_label = "",
    .verdict_file = "Err.txt",
    .refused = "error occured in program execution!",
    .clean_up = clean_up_patterns,
};

}  // namespace commercial
