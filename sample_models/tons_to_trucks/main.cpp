// Makes files of daily truck trips of a file of annual tons.
#include "common/verdict.h"
#include "tons_to_trucks/convert.h"

int main() {
  return model::run_and_leave_verdict("Err.txt", model::convert);
}
