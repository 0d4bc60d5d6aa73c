#include "bench/harness.h"

#include <malloc.h>
#include <sys/resource.h>
#include <time.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace {

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

double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<long>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

template <typename Value>
double MedianOf(const std::vector<std::vector<Sample>>& rounds, Value value) {
  std::vector<double> values;
  values.reserve(rounds.size());
  for (const auto& round : rounds) values.push_back(value(round));
  return Median(values);
}

}  // namespace

void Print(const Subject& subject, const std::vector<std::string>& sides,
           const std::vector<std::vector<Sample>>& rounds,
           std::size_t peak_bytes) {
  std::printf("{\"subject\":\"%s\",\"size\":%zu,\"peak\":%zu,\"sides\":[",
              subject.name.c_str(), subject.size, peak_bytes);
  for (std::size_t i = 0; i < sides.size(); ++i) {
    const double cpu = MedianOf(rounds, [i](auto& r) { return r[i].cpu; });
    const double wall = MedianOf(rounds, [i](auto& r) { return r[i].wall; });
    const double ratio =
        MedianOf(rounds, [i](auto& r) { return r[0].cpu / r[i].cpu; });
    const double wall_ratio =
        MedianOf(rounds, [i](auto& r) { return r[0].wall / r[i].wall; });
    std::printf(
        "%s{\"name\":\"%s\",\"cpu\":%.9f,\"wall\":%.9f,\"ratio\":%.4f,"
        "\"wall_ratio\":%.4f}",
        i ? "," : "", sides[i].c_str(), cpu, wall, ratio, wall_ratio);
  }
  std::puts("]}");
  std::fflush(stdout);
}

void Measure(const Subject& subject, const std::vector<Side>& sides) {
  std::vector<std::string> names;
  names.reserve(sides.size());
  for (const Side& side : sides) names.push_back(side.name);
  // The first round warms up and gives the peak.
  std::size_t peak_bytes = 0;
  for (const Side& side : sides) {
    side.prepare();
    const std::size_t peak = PeakOf(side.run);
    if (side.name == kPanel) peak_bytes = peak;
  }
  std::vector<std::vector<Sample>> rounds;
  for (int round = 0; round < subject.rounds; ++round) {
    std::vector<Sample> samples(sides.size());
    for (std::size_t turn = 0; turn < sides.size(); ++turn) {
      const std::size_t i = (turn + rounds.size()) % sides.size();
      sides[i].prepare();
      const Sample start = Now();
      sides[i].run();
      const Sample end = Now();
      samples[i] = {end.cpu - start.cpu, end.wall - start.wall};
    }
    rounds.push_back(samples);
  }
  Print(subject, names, rounds, peak_bytes);
}

void Check(bool success, const char* step) {
  if (success) return;
  std::perror(step);
  std::exit(EXIT_FAILURE);
}
