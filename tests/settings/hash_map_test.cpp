#include "settings/hash_map.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

#include "settings/simple_string.h"

namespace {

using SASM::SimpleString;
using IntMap = SASM::HashMap<SimpleString, int, SASM::hashSS>;
using Row = std::pair<std::string, int>;

unsigned int BucketOf(const std::string& key) {
  int sum = 0;
  for (const char byte : key) sum += static_cast<signed char>(byte);
  return static_cast<unsigned int>(sum) % 16;
}

// The dictionary order from a sorted map: by bucket, then newest first.
using Model = std::map<std::pair<unsigned int, int>, Row>;

std::vector<Row> Walk(const IntMap& map) {
  std::vector<Row> all;
  const IntMap::Node* before = nullptr;
  for (auto at = map.begin();; ++at) {
    EXPECT_EQ(at->prev, before);
    if (at == map.end()) return all;
    all.emplace_back(at->key.c_str(), at->value);
    before = &*at;
  }
}

TEST(HashMap, AgreesWithAModelOverRandomOperations) {
  const unsigned int seed = std::random_device()();
  SCOPED_TRACE("seed " + std::to_string(seed));
  std::mt19937 random(seed);
  constexpr const char* kLetters[] = {"a", "b", "\xC3", " ", "q", "r"};
  IntMap map;
  Model model;
  for (int step = 0; step < 20000; ++step) {
    // Enough keys for maps with the index and maps without it.
    SimpleString key;
    for (auto n = random() % 5; n > 0; --n) {
      ASSERT_TRUE(key.AppendString(kLetters[random() % 6]));
    }
    const std::string text = key.c_str();
    const auto found = map.find(key);
    const auto expected = std::ranges::find_if(
        model, [&](const auto& node) { return node.second.first == text; });
    const bool is_new = expected == model.end();
    ASSERT_EQ(found == map.end(), is_new) << text;
    const auto action = random() % 1000;
    if (action == 0) {
      EXPECT_TRUE(map.clear());
      model.clear();
    } else if (action < 700) {
      const auto stored = map.insert(key, step);
      ASSERT_TRUE(is_new || stored == found) << "the node stays";
      const auto place =
          is_new ? std::pair(BucketOf(text), -step) : expected->first;
      model[place] = {text, step};
    } else if (!is_new) {
      map.erase(found);
      model.erase(expected);
    }
    ASSERT_TRUE(std::ranges::equal(Walk(map), model, {}, {},
                                   &Model::value_type::second))
        << "step " << step;
  }
}

}  // namespace
