// Gives a fuzz program the files named on the command line, and those in the
// directories named there, without libFuzzer. A name without file is no
// failure: not every program has inputs that once failed.
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>

#include "fuzz/fuzz_target.h"

namespace fs = std::filesystem;

namespace {

int replayed_count = 0;

void Replay(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  const std::string bytes = (std::ostringstream() << file.rdbuf()).str();
  // A copy of exactly this size, so that a read past its end is seen.
  const auto data = std::make_unique<std::uint8_t[]>(bytes.size());
  std::copy(bytes.begin(), bytes.end(), data.get());
  LLVMFuzzerTestOneInput(data.get(), bytes.size());
  ++replayed_count;
}

}  // namespace

int main(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    if (fs::is_directory(argv[i])) {
      for (const auto& entry : fs::directory_iterator(argv[i])) {
        Replay(entry.path());
      }
    } else if (fs::exists(argv[i])) {
      Replay(argv[i]);
    }
  }
  std::printf("%d inputs replayed\n", replayed_count);
  return replayed_count > 0 ? 0 : 1;
}
