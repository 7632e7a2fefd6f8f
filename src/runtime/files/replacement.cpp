#include "runtime/files/replacement.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "runtime/fault.h"
#include "runtime/files/flush.h"
#include "runtime/files/path_names.h"

namespace runtime::files {

template <typename Step>
void Replacement::in_the_name_of_the_place(Step&& step) const {
  try {
    step();
  } catch (const Fault& fault) {
    throw Fault(fault.number, place_);
  }
}

Replacement::Replacement(Files& files, std::string place)
    : files_(files),
      place_(std::move(place)),
      beside_(place_ + std::string(unfinished_ending)),
      number_(files.free_number()) {
  in_the_name_of_the_place([this] {
    files_.expect_place_for_output(place_);
    const auto beside = exactly_named(beside_);
    if (std::filesystem::is_symlink(beside)) throw Fault(75);  // what it leads to is another's
    files_.open_for_output(number_, beside_);
  });
}

Replacement::~Replacement() {
  if (number_ == 0) return;
  ignoring_faults([this] { files_.Close(number_); });
  std::error_code error;
  std::filesystem::remove(exactly_named(beside_), error);
}

void Replacement::finish() {
  in_the_name_of_the_place([this] {
    files_.Close(number_);
    flush_to_disk(exactly_named(beside_));
  });
}

void Replacement::put_in_place() {
  in_the_name_of_the_place([this] { files_.Replace(beside_, place_); });
  number_ = 0;
}

}  // namespace runtime::files
