// Times a piece of work over several runs and prints a figure beside its peer's from the same run.
#pragma once

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

namespace bench {

/// Milliseconds that `work` took. What earlier work has left for the disk is written before: else whoever is
/// the first to wait for the disk pays for it.
inline double timed(const std::function<void()>& work) {
  sync();
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

inline double median(std::vector<double> times) {
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

/// Medians of two works that take turns, so that a drift of the machine's speed meets both.
struct Pair {
  double ours;
  double peers;
};

inline Pair in_turns(int runs, const std::function<double()>& ours, const std::function<double()>& peers) {
  std::vector<double> our_times;
  std::vector<double> peer_times;
  for (int run = 0; run < runs; ++run) {
    our_times.push_back(ours());
    peer_times.push_back(peers());
  }
  return {median(our_times), median(peer_times)};
}

inline void print_row(const std::string& work, const std::string& peer, const Pair& figures,
                      const std::string& note = {}) {
  std::printf("%-44s %9.2f ms   %-34s %9.2f ms   ratio %5.2f  %s\n", work.c_str(), figures.ours, peer.c_str(),
              figures.peers, figures.ours / figures.peers, note.c_str());
  std::fflush(stdout);
}

}  // namespace bench
