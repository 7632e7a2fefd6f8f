#include <array>

#include "commuter/run.h"

namespace commuter {

namespace {

/// The first holds a literal ampersand, so that a file "var.txt" outlives the run; two find nothing that a
/// pattern before them has left.
constexpr std::array clean_up_patterns{
    "/var&*.*",      "/sig*.*",      "/wage*.*",     "/cost*.*",    "/costAL*.*", "/popemp*.*",
    "/base_time*.*", "/imp_time*.*", "/district*.*", "/dist*.*",    "/rel*.*",    "/imp_var*.*",
    "/base_var*.*",  "/ccpar*.*",    "/outpar*.*",   "/costpar*.*",
};

}  // namespace

const analysis::Market market{
    .directory = "commuter",
    .no_picks = "Must have at least one occupation input file!",
    .row_query = "select * from Commuter where index =",
    .picked_file = "popemp",
    .summary_heading = "The occupations are",
    .before_label = " ",
    .verdict_file = "err.txt",
    .refused = "error occured in program execution! ",
    .clean_up = clean_up_patterns,
};

}  // namespace commuter
