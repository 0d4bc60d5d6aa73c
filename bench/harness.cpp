#include "bench/harness.h"

#include <malloc.h>
#include <sys/resource.h>
#include <time.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace {

constexpr std::size_t kFewestRounds = 3;
constexpr std::size_t kMostRounds = 41;
constexpr double kEnoughSeconds = 1.0;  // of all rounds

struct Sample {
  double cpu = 0;
  double wall = 0;
};
// A sample of each side.
using Round = std::vector<Sample>;

double Seconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) +
         static_cast<double>(time.tv_usec) * 1e-6;
}

double ClockSeconds(clockid_t clock) {
  timespec time = {};
  clock_gettime(clock, &time);
  return static_cast<double>(time.tv_sec) +
         static_cast<double>(time.tv_nsec) * 1e-9;
}

Sample Now() {
  rusage children = {};
  getrusage(RUSAGE_CHILDREN, &children);
  return {ClockSeconds(CLOCK_PROCESS_CPUTIME_ID) + Seconds(children.ru_utime) +
              Seconds(children.ru_stime),
          ClockSeconds(CLOCK_MONOTONIC)};
}

std::size_t StatusBytes(const std::string& key) {
  std::ifstream status("/proc/self/status");
  std::string word;
  std::size_t kilobytes = 0;
  while (status >> word) {
    if (word == key && status >> kilobytes) break;
  }
  return kilobytes * 1024;
}

// The bytes that `run` held at most beyond what was there before.
std::size_t PeakOf(const std::function<void()>& run) {
  malloc_trim(0);
  std::ofstream("/proc/self/clear_refs") << 5;  // forget the peak so far
  const std::size_t before = StatusBytes("VmRSS:");
  run();
  const std::size_t peak = StatusBytes("VmHWM:");
  return peak > before ? peak - before : 0;
}

// The first round warms up and gives the peak.
std::size_t WarmUp(const std::vector<Side>& sides) {
  std::size_t panel_peak = 0;
  for (const Side& side : sides) {
    side.prepare();
    const std::size_t peak = PeakOf(side.run);
    if (side.name == kPanel) panel_peak = peak;
  }
  return panel_peak;
}

Sample Run(const Side& side) {
  side.prepare();
  const Sample start = Now();
  side.run();
  const Sample end = Now();
  return {end.cpu - start.cpu, end.wall - start.wall};
}

std::vector<Round> RunRounds(const std::vector<Side>& sides) {
  std::vector<Round> rounds;
  double spent = 0;
  while (rounds.size() < kFewestRounds ||
         (rounds.size() < kMostRounds && spent < kEnoughSeconds)) {
    Round round(sides.size());
    for (std::size_t turn = 0; turn < sides.size(); ++turn) {
      const std::size_t i = (turn + rounds.size()) % sides.size();
      round[i] = Run(sides[i]);
      spent += round[i].wall;
    }
    rounds.push_back(round);
  }
  return rounds;
}

template <typename Value>
double MedianOf(const std::vector<Round>& rounds, Value value) {
  std::vector<double> values;
  std::ranges::transform(rounds, std::back_inserter(values), value);
  const auto middle = values.begin() + static_cast<long>(values.size() / 2);
  std::ranges::nth_element(values, middle);
  return *middle;
}

}  // namespace

void Measure(const Subject& subject, const std::vector<Side>& sides) {
  const std::size_t peak_bytes = WarmUp(sides);
  const std::vector<Round> rounds = RunRounds(sides);
  std::printf(
      "{\"subject\":\"%s\",\"size\":%zu,\"peak\":%zu,\"wall\":%.9f,"
      "\"sides\":[",
      subject.name.c_str(), subject.size, peak_bytes,
      MedianOf(rounds, [](const Round& r) { return r[0].wall; }));
  for (std::size_t i = 0; i < sides.size(); ++i) {
    std::printf(
        "%s{\"name\":\"%s\",\"cpu\":%.9f,\"ratio\":%.4f}", i ? "," : "",
        sides[i].name.c_str(),
        MedianOf(rounds, [i](const Round& r) { return r[i].cpu; }),
        MedianOf(rounds, [i](const Round& r) { return r[0].cpu / r[i].cpu; }));
  }
  std::puts("]}");
  std::fflush(stdout);
}

std::function<void()> Times(std::size_t count, std::function<void()> run) {
  return [count, run = std::move(run)] {
    for (std::size_t i = 0; i < count; ++i) run();
  };
}

void Check(bool success, const char* step) {
  if (success) return;
  std::perror(step);
  std::exit(EXIT_FAILURE);
}
