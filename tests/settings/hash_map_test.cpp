#include "settings/hash_map.h"

#include <gtest/gtest.h>

#include <deque>
#include <map>
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
class Model {
 public:
  void Insert(const std::string& key, int value) {
    if (int* present = Find(key)) {
      *present = value;
    } else {
      buckets_[BucketOf(key)].emplace_front(key, value);
    }
  }
  int* Find(const std::string& key) {
    for (auto& entry : buckets_[BucketOf(key)]) {
      if (entry.first == key) return &entry.second;
    }
    return nullptr;
  }
  void Erase(const std::string& key) {
    std::erase_if(buckets_[BucketOf(key)],
                  [&](const auto& entry) { return entry.first == key; });
  }
  void Clear() { buckets_.clear(); }
  Entries Walk() const {
    Entries all;
    for (const auto& [index, bucket] : buckets_) {
      all.insert(all.end(), bucket.begin(), bucket.end());
    }
    return all;
  }

 private:
  std::map<unsigned int, std::deque<std::pair<std::string, int>>> buckets_;
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

TEST(HashMap, AddsBytesAsSignedNumbers) {
  const struct {
    const char* key;
    unsigned int hash;
  } cases[] = {{"", 0},
               {"ab", 195},
               {"ba", 195},
               {"allow", 543},
               {"\xC3\xA9", 0u - 148},
               {"\x80", 0u - 128}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.key);
    EXPECT_EQ(SASM::hashSS(c.key), c.hash);
  }
  IntMap map;
  EXPECT_EQ(map.insert("\xC3\xA9", 1)->bucket, 12u);
}

TEST(HashMap, WalksByBucketAndNewestFirstWithin) {
  IntMap map;
  for (const char* key : {"allow", "always", "klimit", "ab", "ba", ""}) {
    map.insert(key, 0);
  }
  std::string order;
  for (const auto& node : map) order += std::string(node.key.c_str()) + " ";
  EXPECT_EQ(order, " always ba ab klimit allow ");
}

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
    std::string key;
    for (unsigned int i = below(4); i > 0; --i) key += "ab\xC3 qr"[below(6)];
    const auto found = map.find(key.c_str());
    const int* expected = model.Find(key);
    ASSERT_EQ(found == map.end(), expected == nullptr) << key;
    ASSERT_TRUE(!expected || found->value == *expected) << key;
    const unsigned int action = below(1000);
    if (action == 0) {
      EXPECT_TRUE(map.clear());
      model.Clear();
    } else if (action < 500) {
      const auto stored = map.insert(key.c_str(), step);
      ASSERT_TRUE(!expected || stored == found) << "the node stays";
      model.Insert(key, step);
    } else if (expected) {
      map.erase(found);
      model.Erase(key);
    }
    ASSERT_EQ(Walk(map), model.Walk()) << "step " << step;
  }
}

TEST(HashMap, KeepsPointersToValuesThroughChangesElsewhere) {
  SASM::SettingsDictionary map;
  const bool value = true;
  const SASM::SettingDataItem item("k", SASM::kSettingsDataTypeBool, &value);
  SASM::SettingDataItem* stored = &map.insert("k", item)->value;
  for (int i = 0; i < 100; ++i) map.insert(std::to_string(i).c_str(), item);
  map.erase(map.find("7"));
  EXPECT_EQ(&map.insert("k", item)->value, stored);
  EXPECT_TRUE(stored->value.boolean);
}

}  // namespace
