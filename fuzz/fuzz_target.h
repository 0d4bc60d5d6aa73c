// What every fuzz program has in common.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

// Called with bytes of the fuzzer's choice, or of a file that once made
// trouble. Always 0; what must not be ends in Require.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data,
                                      std::size_t size);

// Stops the program, so that the fuzzer keeps the input, unless `holds`.
inline void Require(bool holds, const char* claim) {
  if (holds) return;
  std::printf("Does not hold: %s\n", claim);
  std::fflush(stdout);
  std::abort();
}
