// The analyst's file of annual tons.
#pragma once

#include <optional>
#include <string>

#include "common/line_reader.h"

namespace model {

/// What is carried between two zones.
struct Shipment {
  int origin = 0;
  int destination = 0;
  int commodity = 0;  ///< class
  double tons = 0;    ///< a year
};

/// Reads a file of lines "origin destination commodity tons", ordered by origin. Within an origin they may
/// stand in any order, and several of one pair and class add up; what is not carried may be left out. A line
/// is held at a time, so that the file may be of any length.
class CommodityFile {
 public:
  CommodityFile(const std::string& name, int zones);

  /// The next shipment from `origin`; empty when there is none any more. Origins are asked for in ascending
  /// order, each until it is empty.
  std::optional<Shipment> next_from(int origin);

  /// Refuses the shipment that was handed out last.
  [[noreturn]] void refuse(const std::string& reason) const { file_.refuse(reason); }

 private:
  Shipment read();

  LineReader file_;
  int zones_;
  int last_origin_ = 0;
  /// Read, but not yet asked for.
  std::optional<Shipment> waiting_;
};

}  // namespace model
