// Computes what commuting costs, in the base case or in the improvement case.
#include "common/verdict.h"
#include "commuter_cost/run_case.h"

int main() {
  return model::run_and_leave_verdict("err.txt", model::run_case);
}
