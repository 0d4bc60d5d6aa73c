// The associative container of settings dictionaries and configuration files.
#pragma once

#include <cstddef>
#include <map>
#include <memory_resource>
#include <string_view>
#include <utility>

namespace SASM {

// Maps texts to values. Sixteen buckets, never rehashed: a dictionary holds a
// few dozen keys. All nodes form one doubly linked list, ascending by bucket,
// and within a bucket newest first; a walk of that list is the dictionary
// order, in which settings files are written. A sentinel closes the list.
//
// A map with more than kMostWithoutIndex keys is searched by an ordered index
// instead: a hostile file can put hundreds of thousands of keys in one bucket.
//
// Owns its keys and values; when the values are pointers, only the pointers.
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
  static constexpr unsigned int kMostWithoutIndex = 256;

  HashMap() : sentinel_{K(), V(), kBucketCount, 0} { Initialize(); }
  ~HashMap() { DeleteAllEntries(); }
  HashMap(const HashMap&) = delete;
  HashMap& operator=(const HashMap&) = delete;

  iterator begin() const { return iterator(this, begin_); }
  // Its key and value are empty.
  iterator end() const { return iterator(this, &sentinel_); }

  // The key's node, or end().
  iterator find(const K& key) const { return iterator(this, FindNode(key)); }

  // Stores the value under the key, replacing the value of a key that is
  // present; only a new key is copied or moved. Returns the key's node.
  iterator insert(const K& key, V value) {
    return Store(FindOrAddNode(key), std::move(value));
  }
  iterator insert(K&& key, V value) {
    return Store(FindOrAddNode(std::move(key)), std::move(value));
  }

  // The value under the key; an empty one is stored under a new key.
  V& operator[](const K& key) { return FindOrAddNode(key)->value; }

  // Removes the entry at a position other than end().
  void erase(iterator position) {
    Node* node = position.node_;
    if (!index_.empty()) index_.erase(IndexKey(node->key));
    Unlink(node);
    delete node;
  }

  // Empties the map. Always true: this needs no memory.
  bool clear() {
    DeleteAllEntries();
    Initialize();
    return true;
  }

 private:
  // Compares numbers first, which is quick, and then texts, so that no choice
  // of keys makes a search slow.
  struct IndexKey {
    explicit IndexKey(const K& key)
        : text(key.c_str()), number(std::hash<std::string_view>()(text)) {}
    std::string_view text;
    std::size_t number;
    bool operator<(const IndexKey& other) const {
      return number != other.number ? number < other.number : text < other.text;
    }
  };

  void Initialize() {
    begin_ = &sentinel_;
    sentinel_.prev = nullptr;
    for (Node*& first : buckets_) first = nullptr;
    buckets_[kBucketCount] = &sentinel_;
    count_ = 0;
  }

  // Leaves stale pointers: only Initialize or the end of the map may follow.
  void DeleteAllEntries() {
    index_.clear();
    while (begin_ != &sentinel_) {
      delete std::exchange(begin_, begin_->next);
    }
  }

  iterator Store(Node* node, V&& value) {
    node->value = std::move(value);
    return iterator(this, node);
  }

  // The sentinel when the key is absent.
  Node* FindNode(const K& key) const {
    if (!index_.empty()) [[unlikely]] {
      return FindInIndex(key);
    }
    const unsigned int hash = Hash(key);
    const unsigned int bucket = hash % kBucketCount;
    for (Node* node = buckets_[bucket]; node && node->bucket == bucket;
         node = node->next) {
      if (node->hash == hash && node->key == key) return node;
    }
    return &sentinel_;
  }

  template <typename Key>
  Node* FindOrAddNode(Key&& key) {
    if (!index_.empty()) return FindOrAddInIndex(std::forward<Key>(key));
    Node* node = FindNode(key);
    if (node == &sentinel_) {
      node = AddNode(std::forward<Key>(key));
      if (count_ > kMostWithoutIndex) AddAllToIndex();
    }
    return node;
  }

  template <typename Key>
  Node* AddNode(Key&& key) {
    const unsigned int hash = Hash(key);
    Node* node =
        new Node{K(std::forward<Key>(key)), V(), hash % kBucketCount, hash};
    Link(node);
    return node;
  }

  void Link(Node* node) {
    Node* next = FirstNodeFrom(node->bucket);
    node->next = next;
    node->prev = next->prev;
    next->prev = node;
    (node->prev ? node->prev->next : begin_) = node;
    buckets_[node->bucket] = node;
    ++count_;
  }

  void Unlink(Node* node) {
    (node->prev ? node->prev->next : begin_) = node->next;
    node->next->prev = node->prev;
    if (buckets_[node->bucket] == node) {
      const bool heads_others = node->next->bucket == node->bucket;
      buckets_[node->bucket] = heads_others ? node->next : nullptr;
    }
    --count_;
  }

  // The first node of the nearest bucket from `bucket` upwards that is not
  // empty; the slot after the last bucket holds the sentinel.
  Node* FirstNodeFrom(unsigned int bucket) const {
    while (!buckets_[bucket]) ++bucket;
    return buckets_[bucket];
  }

  Node* FindInIndex(const K& key) const {
    const auto found = index_.find(IndexKey(key));
    return found == index_.end() ? &sentinel_ : found->second;
  }

  template <typename Key>
  Node* FindOrAddInIndex(Key&& key) {
    const IndexKey index_key(key);
    const auto place = index_.lower_bound(index_key);
    if (place != index_.end() && !(index_key < place->first)) {
      return place->second;
    }
    Node* node = AddNode(std::forward<Key>(key));
    index_.emplace_hint(place, IndexKey(node->key), node);
    return node;
  }

  void AddAllToIndex() {
    for (Node& each : *this) index_.emplace(IndexKey(each.key), &each);
  }

  // Keeps the entries of an index side by side, so that a search stays in the
  // processor's cache. Never destroyed: maps may live as long as the process.
  static std::pmr::memory_resource* IndexMemory() {
    static auto* memory = new std::pmr::unsynchronized_pool_resource;
    return memory;
  }

  // All nodes by their keys, or empty.
  std::pmr::map<IndexKey, Node*> index_{IndexMemory()};
  unsigned int count_ = 0;
  mutable Node sentinel_;  // a constant map, too, gives positions to change
  Node* begin_;
  Node* buckets_[kBucketCount + 1];
};

}  // namespace SASM
