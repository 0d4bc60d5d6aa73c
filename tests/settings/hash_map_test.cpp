#include "settings/hash_map.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {

using SASM::SimpleString;
using IntMap = SASM::HashMap<SimpleString, int, SASM::hashSS>;
using Entries = std::vector<std::pair<std::string, int>>;

unsigned int BucketOf(const std::string& key) {
  int sum = 0;
  for (const char byte : key) sum += static_cast<signed char>(byte);
  return static_cast<unsigned int>(sum) % 16;
}

// The same order by other means.
struct Model {
  int* Find(const std::string& key) {
    const auto at =
        std::ranges::find(entries, key, &Entries::value_type::first);
    return at == entries.end() ? nullptr : &at->second;
  }
  void Insert(const std::string& key, int value) {
    if (int* present = Find(key)) {
      *present = value;
      return;
    }
    const auto first_of_bucket = std::ranges::find_if(
        entries, [bucket = BucketOf(key)](const auto& entry) {
          return BucketOf(entry.first) >= bucket;
        });
    entries.emplace(first_of_bucket, key, value);
  }
  void Erase(const std::string& key) {
    std::erase_if(entries, [&](const auto& e) { return e.first == key; });
  }
  Entries entries;
};

Entries Walk(const IntMap& map) {
  Entries all;
  const IntMap::Node* before = nullptr;
  for (auto at = map.begin();; ++at) {
    EXPECT_EQ(at->prev, before);
    if (at == map.end()) return all;
    all.emplace_back(at->key.c_str(), at->value);
    before = &*at;
  }
}

// Up to sizes that are searched by the tree.
TEST(HashMap, AgreesWithAModelOverRandomOperations) {
  const unsigned int seed = std::random_device()();
  SCOPED_TRACE("seed " + std::to_string(seed));
  std::mt19937 random(seed);
  const auto below = [&](unsigned int n) {
    return static_cast<unsigned int>(random() % n);
  };
  IntMap map;
  Model model;
  for (int step = 0; step < 20000; ++step) {
    // So many keys that the map is now above the size of a tree, now below.
    std::string key;
    for (unsigned int i = below(5); i > 0; --i) key += "ab\xC3 qr"[below(6)];
    const auto found = map.find(key.c_str());
    const int* expected = model.Find(key);
    ASSERT_EQ(found == map.end(), expected == nullptr) << key;
    const unsigned int action = below(1000);
    if (action == 0) {
      EXPECT_TRUE(map.clear());
      model.entries.clear();
    } else if (action < 700) {
      const auto stored = map.insert(key.c_str(), step);
      ASSERT_TRUE(!expected || stored == found) << "the node stays";
      model.Insert(key, step);
    } else if (expected) {
      map.erase(found);
      model.Erase(key);
    }
    ASSERT_EQ(Walk(map), model.entries) << "step " << step;
  }
}

}  // namespace
