// Gives a fuzz program the files named on the command line, and those in the
// directories named there, without libFuzzer. A name without file is no
// failure: not every program has inputs that once failed. After
// "--damage=STEP", each short file is also given in every shorter length, and
// with every STEP-th bit flipped.
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>

#include "fuzz/fuzz_target.h"

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kLongestToDamage = 256;

int replayed_count = 0;

void Give(const std::string& bytes) {
  // A copy of exactly this size, so that a read past its end is seen.
  const auto data = std::make_unique<std::uint8_t[]>(bytes.size());
  std::copy(bytes.begin(), bytes.end(), data.get());
  LLVMFuzzerTestOneInput(data.get(), bytes.size());
  ++replayed_count;
}

void Damage(std::string bytes, std::size_t step) {
  for (std::size_t size = 0; size < bytes.size(); ++size) {
    Give(bytes.substr(0, size));
  }
  for (std::size_t bit = 0; bit < bytes.size() * 8; bit += step) {
    const char former = bytes[bit / 8];
    bytes[bit / 8] = static_cast<char>(former ^ 1 << bit % 8);
    Give(bytes);
    bytes[bit / 8] = former;
  }
}

void Replay(const fs::path& path, std::size_t damage_step) {
  std::ifstream file(path, std::ios::binary);
  const std::string bytes = (std::ostringstream() << file.rdbuf()).str();
  Give(bytes);
  if (damage_step && bytes.size() <= kLongestToDamage) {
    Damage(bytes, damage_step);
  }
}

}  // namespace

int main(int argc, char** argv) {
  const std::string first = argc > 1 ? argv[1] : "";
  const std::size_t damage_step =
      first.starts_with("--damage=") ? std::stoul(first.substr(9)) : 0;
  // Thousands of complaints about what is damaged; a sanitizer's still come.
  if (damage_step) stderr = std::fopen("/dev/null", "w");
  for (int i = 1; i < argc; ++i) {
    if (fs::is_directory(argv[i])) {
      for (const auto& entry : fs::directory_iterator(argv[i])) {
        Replay(entry.path(), damage_step);
      }
    } else if (fs::exists(argv[i])) {
      Replay(argv[i], damage_step);
    }
  }
  std::printf("%d inputs replayed\n", replayed_count);
  return replayed_count > 0 ? 0 : 1;
}
