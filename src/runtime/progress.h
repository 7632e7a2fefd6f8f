// How far long work is.
#pragma once

#include <cstdint>
#include <functional>

namespace runtime {

/// Called now and then from inside long work: how much of `total` is done. May paint, may not touch what is
/// being worked on. May be empty.
using Progress = std::function<void(std::int64_t done, std::int64_t total)>;

}  // namespace runtime
