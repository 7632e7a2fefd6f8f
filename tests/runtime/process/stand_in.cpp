// A stand-in for the programs that the front end starts. They get no arguments, so what it does is told by
// "stand_in.txt" in its current directory, one step a line:
//
//   write NAME TEXT    makes a file; "\n", "\r" and "\\" stand for line feed, carriage return and backslash
//   append NAME TEXT   adds to a file
//   directory NAME     makes a file that holds the current directory
//   copy A B           copies a file; B may be "stand_in.txt", which is then what the next program does
//   sleep MS           waits
//   child MS           leaves a process behind that lives for so long, its id in "child.txt"
//   crash              ends by a signal
//   exit N             ends with an exit code
//
// Without the file, or behind its last line, it ends with 0; an unknown step ends with 99.
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <thread>

#ifndef _WIN32
#include <unistd.h>
#endif

namespace {

std::string unescaped(const std::string& text) {
  std::string plain;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] != '\\' || at + 1 == text.size()) {
      plain += text[at];
      continue;
    }
    const char code = text[++at];
    plain += code == 'n' ? '\n' : code == 'r' ? '\r' : code;
  }
  return plain;
}

void put(const std::string& name, const std::string& text, std::ios::openmode mode) {
  std::ofstream(name, std::ios::binary | mode) << text;
}

void sleep_for(const std::string& milliseconds) {
  std::this_thread::sleep_for(std::chrono::milliseconds(std::stoi(milliseconds)));
}

void leave_a_child(const std::string& milliseconds) {
#ifndef _WIN32
  const pid_t child = fork();
  if (child != 0) return put("child.txt", std::to_string(child), std::ios::trunc);
  sleep_for(milliseconds);
  std::_Exit(0);
#endif
}

void copy(const std::string& from, const std::string& to) {
  std::filesystem::copy_file(from, to, std::filesystem::copy_options::overwrite_existing);
}

void run(const std::string& line) {
  std::istringstream words(line);
  std::string step;
  std::string first;
  words >> step >> first;
  words.get();
  const std::string rest(std::istreambuf_iterator<char>(words), {});
  if (step == "write") return put(first, unescaped(rest), std::ios::trunc);
  if (step == "append") return put(first, unescaped(rest), std::ios::app);
  if (step == "directory") return put(first, std::filesystem::current_path().string(), std::ios::trunc);
  if (step == "copy") return copy(first, rest);
  if (step == "sleep") return sleep_for(first);
  if (step == "child") return leave_a_child(first);
  if (step == "crash") std::abort();
  std::exit(step == "exit" ? std::stoi(first) : 99);
}

}  // namespace

int main() {
  std::ifstream file("stand_in.txt");
  std::stringstream steps;  // read whole, since a step may write the next program's
  steps << file.rdbuf();
  for (std::string line; std::getline(steps, line);) {
    if (!line.empty()) run(line);
  }
}
