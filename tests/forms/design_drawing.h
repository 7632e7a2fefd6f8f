// A form's design table as a text drawing, so that a failure reads like a diff.
#pragma once

#include <map>
#include <sstream>
#include <string>

#include "runtime/forms/design.h"

namespace testing_aids {

namespace rf = runtime::forms;

inline std::string with_index(const std::string& name, int index) {
  return index == rf::no_index ? name : name + "(" + std::to_string(index) + ")";
}

/// What of a row is drawn behind its name.
struct Drawn {
  bool container = false;
  bool place = false;
  bool state = false;
  bool binding = false;
};

/// Command3 "Save" in Frame1 5640 5160 735 375 hidden disabled Data1(0).Agfile
inline std::string drawn(const rf::ControlDesign& row, const Drawn& what) {
  std::ostringstream line;
  std::string caption = row.caption;
  for (auto at = caption.find('\n'); at != std::string::npos; at = caption.find('\n')) caption[at] = '/';
  line << with_index(row.name, row.index) << " \"" << caption << '"';
  if (what.container && row.container != nullptr) line << " in " << row.container;
  if (what.place) {
    line << ' ' << row.place.left << ' ' << row.place.top << ' ' << row.place.width << ' '
         << row.place.height;
  }
  if (what.state) line << (row.visible ? "" : " hidden") << (row.enabled ? "" : " disabled");
  if (what.binding && row.binding.data != nullptr) {
    line << ' ' << with_index(row.binding.data, row.binding.data_index);
    if (row.binding.source != nullptr) line << '.' << row.binding.source;
  } else if (what.binding && row.binding.source != nullptr) {
    line << " table " << row.binding.source;
  }
  line << '\n';
  return line.str();
}

/// The rows of the table in the order of the lines of `expected`; rows that it does not name come last, and
/// none is left out.
inline std::string drawn_like(const std::string& expected, const rf::FormDesign& design, const Drawn& what) {
  std::map<std::string, std::string> lines;
  for (const rf::ControlDesign& row : design.controls) {
    lines[with_index(row.name, row.index)] = drawn(row, what);
  }
  std::string drawing;
  std::istringstream wanted(expected);
  for (std::string line; std::getline(wanted, line);) {
    const auto row = lines.find(line.substr(0, line.find(' ')));
    if (row == lines.end()) continue;
    drawing += row->second;
    lines.erase(row);
  }
  for (const auto& [name, line] : lines) drawing += line;
  return drawing;
}

}  // namespace testing_aids
