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
  // In a round each side runs once, in an order that rotates.
  int rounds = 7;
};

// Runs the sides and prints a line of JSON: of each side the medians of its
// processor time (its own and that of processes it waited for) and of its
// wall time in seconds, and of the panel the peak memory in bytes above what
// was resident before. The ratios are medians of each round's own.
void Measure(const Subject& subject, const std::vector<Side>& sides);

// The same line for sides measured elsewhere: in `rounds`, the seconds of
// each side in the order of `sides`.
struct Sample {
  double cpu = 0;
  double wall = 0;
};
void Print(const Subject& subject, const std::vector<std::string>& sides,
           const std::vector<std::vector<Sample>>& rounds,
           std::size_t peak_bytes);

// Ends the program, saying which step failed.
void Check(bool success, const char* step);
