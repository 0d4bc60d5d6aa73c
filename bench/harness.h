// Measures the panel's work beside the least that the system itself needs for
// the same work, in one run.
#pragma once

#include <functional>
#include <string>
#include <vector>

// One way of doing a subject's work.
struct Side {
  std::string name;  // kPanel, kFloor, or whatever else would do the work
  std::function<void()> run;
  std::function<void()> prepare = [] {};  // before each run, not measured
};

inline constexpr char kPanel[] = "panel";
// A bare loop of the same system or toolkit calls.
inline constexpr char kFloor[] = "floor";

struct Subject {
  std::string name;
  std::size_t size;
};

// Runs the sides in rounds, in each of which every side runs once, and prints a
// line of JSON: of each side the median of its processor time in seconds, its
// own and that of processes it waited for, and the median over the rounds of
// the panel's time divided by the side's; of the panel also the median of its
// wall time, and the peak of its memory in bytes above what was resident
// before. The sides take turns at being first. The shorter a round, the more
// there are.
void Measure(const Subject& subject, const std::vector<Side>& sides);

// `run`, so many times.
[[nodiscard]] std::function<void()> Times(std::size_t count,
                                          std::function<void()> run);

// Ends the program, saying which step failed.
void Check(bool success, const char* step);
