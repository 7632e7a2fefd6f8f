#include "inputs/chosen.h"

#include "database/catalogue.h"
#include "runtime/text/numbers.h"

namespace inputs {

std::string description_of(const runtime::engine::Recordset& chosen) {
  return runtime::text::joined(chosen.field(database::industries::description));
}

}  // namespace inputs
