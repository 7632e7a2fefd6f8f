#include "common/verdict.h"

#include <exception>
#include <new>

#include "common/text_file.h"

namespace model {

namespace {

char harmless(char c) {
  if (c == '"') return '\'';
  if (c == ',' || (static_cast<unsigned char>(c) < ' ')) return ' ';
  return c;
}

std::string sentence_left_by(const std::function<void()>& work) {
  try {
    work();
    return {};
  } catch (const std::bad_alloc&) {
    return "there is not enough memory for a study of this size";
  } catch (const std::exception& reason) {
    return reason.what();
  }
}

}  // namespace

std::string verdict_text(const std::string& sentence) {
  if (sentence.empty()) return "0\r\n";
  std::string text = sentence;
  for (char& c : text) c = harmless(c);
  return "1, " + text + "\r\n";
}

int run_and_leave_verdict(const std::string& name, const std::function<void()>& work) {
  // A verdict of an earlier run must not speak for this one, should this one be killed midway.
  if (!write_file(name, "1, the program did not reach its end\r\n")) return 1;
  return write_file(name, verdict_text(sentence_left_by(work))) ? 0 : 1;
}

}  // namespace model
