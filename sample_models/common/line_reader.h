// Strict reading of a model's text files, line by line.
#pragma once

#include <array>
#include <cstddef>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace model {

/// Reads a text file whose every line ends in CR LF. Whatever is not as it must be is a Refusal that names
/// the file and the line. Memory does not grow with the file: a line may have 32,000 characters at most.
class LineReader {
 public:
  /// Refuses a file that is missing or cannot be read.
  explicit LineReader(std::string name);

  /// The next line without its CR LF; valid until the next call. Refuses when there is none.
  std::string_view next();

  /// Whether nothing follows the last line that was read.
  bool at_end() { return waiting().empty() && !fill(); }

  /// Refuses when anything follows the last line that was read.
  void expect_end();

  /// Refuses the line that was read last.
  [[noreturn]] void refuse(const std::string& reason) const;

 private:
  /// What is read from the file and not yet handed out.
  std::string_view waiting() const;
  /// Adds to what is waiting; false at the end of the file.
  bool fill();

  std::string name_;
  std::ifstream file_;
  std::vector<char> buffer_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  std::size_t line_ = 0;
};

/// `text` between apostrophes for a refusal, without its control characters and cut where it is too long to
/// read.
std::string quoted(std::string_view text);

/// The next line as exactly `count` numbers between blanks, each 0 or greater.
std::vector<double> read_numbers(LineReader& file, std::size_t count);

/// `number`, which stands in the line that was read last, as a whole number from 1 to `highest`; a refusal
/// calls it `name`.
int whole_number(const LineReader& file, const std::string& name, double number, int highest);

/// The next line as three fields of 10 columns each; valid until the next line is read.
std::array<std::string_view, 3> read_fields(LineReader& file);

/// The whole number that names a zone in a field of the line that was read last.
int zone_of(const LineReader& file, std::string_view field);

/// The number in a field of the line that was read last, 0 or greater; an empty field is 0.
double number_of(const LineReader& file, std::string_view field);

/// The next line as one whole number from `lowest` to `highest`.
int read_whole(LineReader& file, int lowest, int highest);

}  // namespace model
