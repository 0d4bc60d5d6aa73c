// The associative container of the settings dictionaries.
#pragma once

#include <search.h>

#include <cstring>
#include <new>
#include <type_traits>
#include <utility>

#include "settings/setting_data_item.h"
#include "settings/simple_string.h"

namespace SASM {

// Maps texts to values. Sixteen buckets, never rehashed: a dictionary holds a
// few dozen keys. One with many more, of which a file made to be slow has
// hundreds of thousands in one bucket, is searched by a tree beside it. All
// nodes stand in one doubly linked list, ascending by bucket, and within a
// bucket newest first; a walk of that list is the dictionary order, in which
// settings files are written. A sentinel closes the list.
//
// Owns its keys and values; of a value that is a pointer, the pointer only.
// A pointer to a value lives until that entry is erased or the map is
// cleared; replacing the value keeps the node and its place.
template <typename K, typename V, unsigned int (*Hash)(const K&)>
class HashMap {
 public:
  struct Node {
    K key;
    V value;
    unsigned int bucket;
    // Hash(key), so that a search compares few texts.
    unsigned int hash;
    Node* next = nullptr;
    Node* prev = nullptr;
  };

  // A position: a node, or the sentinel for the end.
  class iterator {
   public:
    iterator(const HashMap* map, Node* node) : map_(map), node_(node) {}
    Node& operator*() const { return *node_; }
    Node* operator->() const { return node_; }
    iterator& operator++() {
      node_ = node_->next;
      return *this;
    }
    bool operator==(const iterator&) const = default;

   private:
    friend class HashMap;
    const HashMap* map_;
    Node* node_;
  };

  static constexpr unsigned int kBucketCount = 16;
  // More entries than this are searched by the tree.
  static constexpr unsigned int kMostWithoutTree = 256;

  HashMap() { (void)Initialize(); }  // IsUsable tells the result
  ~HashMap() {
    DeleteAllEntries();
    delete[] buckets_;
  }
  HashMap(const HashMap&) = delete;
  HashMap& operator=(const HashMap&) = delete;

  // False when memory was short: the map then stays empty and holds nothing.
  [[nodiscard]] bool IsUsable() const { return buckets_ != nullptr; }

  iterator begin() const { return iterator(this, begin_); }
  iterator end() const { return iterator(this, sentinel_); }

  // The key's node, or end().
  iterator find(const K& key) const {
    const unsigned int hash = Hash(key);
    return iterator(this, FindNode(key, hash));
  }

  // Stores the value under the key, replacing the value of a key that is
  // present. end() when memory is short: the map is then as before.
  iterator insert(K key, V value) {
    const unsigned int hash = Hash(key);
    Node* node = FindNode(key, hash);
    if (node != sentinel_) {
      node->value = std::move(value);
      return iterator(this, node);
    }
    node = NewNode(std::move(key), std::move(value), hash);
    if (!node) return end();
    if ((++count_ > kMostWithoutTree || tree_) && !AddToTree(node)) {
      --count_;
      delete node;
      return end();
    }
    Link(node);
    return iterator(this, node);
  }

  // Removes the entry at a position other than end().
  void erase(iterator position) {
    Node* node = position.node_;
    (node->prev ? node->prev->next : begin_) = node->next;
    node->next->prev = node->prev;
    if (buckets_[node->bucket] == node) {
      const bool heads_others = node->next->bucket == node->bucket;
      buckets_[node->bucket] = heads_others ? node->next : nullptr;
    }
    if (tree_) tdelete(&node->key, &tree_, CompareKeys);
    --count_;
    delete node;
  }

  // Empties the map; needs no memory, so that a map in use stays usable. One
  // that was not tries again: false when memory is still short.
  bool clear() {
    if (IsUsable()) {
      DropTree();
      while (begin_ != sentinel_) erase(begin());
      return true;
    }
    DeleteAllEntries();
    return Initialize();
  }

 private:
  bool Initialize() {
    sentinel_ = begin_ =
        new (std::nothrow) Node{K(), V(), kBucketCount, 0, nullptr, nullptr};
    if (!sentinel_) return false;
    buckets_ = new (std::nothrow) Node* [kBucketCount + 1] {};
    if (!buckets_) return false;
    buckets_[kBucketCount] = sentinel_;
    return true;
  }

  // Leaves stale pointers behind: only Initialize or the destructor follow.
  bool DeleteAllEntries() {
    DropTree();
    for (Node* node = begin_; node;) delete std::exchange(node, node->next);
    return true;
  }

  // The sentinel when the key is absent.
  Node* FindNode(const K& key, unsigned int hash) const {
    if (!buckets_) return sentinel_;
    if (tree_) return FindInTree(key);
    const unsigned int bucket = hash % kBucketCount;
    for (Node* node = buckets_[bucket]; node && node->bucket == bucket;
         node = node->next) {
      if (node->hash == hash && node->key == key) return node;
    }
    return sentinel_;
  }

  Node* NewNode(K&& key, V&& value, unsigned int hash) {
    if (!buckets_ || !key.HasText()) return nullptr;
    return new (std::nothrow)
        Node{std::move(key), std::move(value), hash % kBucketCount, hash};
  }

  void Link(Node* node) {
    Node* next = FirstNodeFrom(node->bucket);
    node->next = next;
    node->prev = next->prev;
    next->prev = node;
    (node->prev ? node->prev->next : begin_) = node;
    buckets_[node->bucket] = node;
  }

  // The first node of the nearest bucket from `bucket` upwards that is not
  // empty; the slot after the last bucket holds the sentinel.
  Node* FirstNodeFrom(unsigned int bucket) const {
    while (!buckets_[bucket]) ++bucket;
    return buckets_[bucket];
  }

  // --- The tree of <search.h>: pointers to the keys of all nodes. There is
  // none as long as the map is small.

  static int CompareKeys(const void* a, const void* b) {
    return std::strcmp(static_cast<const K*>(a)->c_str(),
                       static_cast<const K*>(b)->c_str());
  }

  Node* FindInTree(const K& key) const {
    if (!key.HasText()) return sentinel_;
    void* found = tfind(&key, &tree_, CompareKeys);
    if (!found) return sentinel_;
    // The key is the node's first member.
    static_assert(std::is_standard_layout_v<Node>);
    return static_cast<Node*>(*static_cast<void**>(found));
  }

  // The first time also all nodes there are. False when memory is short.
  bool AddToTree(Node* node) {
    for (Node* other = tree_ ? sentinel_ : begin_; other != sentinel_;
         other = other->next) {
      if (tsearch(&other->key, &tree_, CompareKeys)) continue;
      DropTree();  // one that lacks a node is worse than none
      return false;
    }
    return tsearch(&node->key, &tree_, CompareKeys) != nullptr;
  }

  void DropTree() {
    tdestroy(std::exchange(tree_, nullptr), [](void*) {});
  }

  void* tree_ = nullptr;
  unsigned int count_ = 0;
  Node* sentinel_ = nullptr;
  Node* begin_ = nullptr;
  Node** buckets_ = nullptr;
};

using SettingsDictionary = HashMap<SimpleString, SettingDataItem, hashSS>;

// The value under a key, borrowed from the dictionary; null when there is
// none.
[[nodiscard]] inline SettingDataItem* FindSetting(
    const SimpleString& key, const SettingsDictionary& dictionary) {
  const auto found = dictionary.find(key);
  return found == dictionary.end() ? nullptr : &found->value;
}

}  // namespace SASM
