#include "tons_to_trucks/commodity_file.h"

#include <utility>

#include "common/refusal.h"
#include "tons_to_trucks/commodities.h"

namespace model {

CommodityFile::CommodityFile(const std::string& name, int zones) : file_(name), zones_(zones) {
  if (file_.at_end()) throw Refusal(name, "the file is empty");
}

std::optional<Shipment> CommodityFile::next_from(int origin) {
  if (!waiting_ && !file_.at_end()) waiting_ = read();
  if (!waiting_ || waiting_->origin != origin) return std::nullopt;
  return std::exchange(waiting_, std::nullopt);
}

Shipment CommodityFile::read() {
  const auto values = read_numbers(file_, 4);
  const int origin = whole_number(file_, "zone", values[0], zones_);
  const int destination = whole_number(file_, "zone", values[1], zones_);
  const int commodity = whole_number(file_, "commodity", values[2], commodity_classes);
  if (origin < last_origin_) {
    refuse("origin " + std::to_string(origin) + " stands behind origin " + std::to_string(last_origin_));
  }
  last_origin_ = origin;
  return {origin, destination, commodity, values[3]};
}

}  // namespace model
