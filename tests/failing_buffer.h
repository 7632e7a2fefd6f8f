// A stream buffer that breaks at a chosen byte, for tests of writers and readers.
#pragma once

#include <cerrno>
#include <cstddef>
#include <stdexcept>
#include <streambuf>
#include <string>
#include <utility>

namespace testing_aids {

/// Takes `room` bytes into `taken` and refuses the next, as a full disk does. `error` is what errno then is.
class FailingBuffer : public std::streambuf {
 public:
  explicit FailingBuffer(std::size_t room, int error) : room_(room), error_(error) {}

  std::string taken;

 protected:
  int_type overflow(int_type byte) override {
    if (taken.size() == room_) {
      errno = error_;
      return traits_type::eof();
    }
    taken += traits_type::to_char_type(byte);
    return byte;
  }

 private:
  std::size_t room_;
  int error_;
};

/// Gives the first `readable` bytes of `text` and then throws, as a file on a pulled drive does.
class BreakingSource : public std::streambuf {
 public:
  BreakingSource(std::string text, std::size_t readable) : text_(std::move(text)) {
    text_.resize(readable);
    setg(text_.data(), text_.data(), text_.data() + text_.size());
  }

 protected:
  int_type underflow() override { throw std::runtime_error("the drive is gone"); }

 private:
  std::string text_;
};

}  // namespace testing_aids
