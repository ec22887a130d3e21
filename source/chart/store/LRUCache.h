#pragma once

#include <cstddef>
#include <unordered_map>
#include <utility>

namespace skyvane {

/// Keeps what was used last, up to a limit; the rest goes, oldest use first, by its destructor.
///
///     LRUCache<int, std::unique_ptr<IChartElement>> cache(100000);
///     if (auto* element = cache.find(id)) return element->get();
///     auto* element = cache.insert(id, load(id));                     // null when the limit is 0
///
/// V owns what it stands for: a type whose destructor gives it back. Pointers to values hold until the value goes. A
/// hit allocates nothing: one look-up, then the entry is moved to the end of the order of use. Not thread safe.
template <class K, class V>
class LRUCache {
public:
    explicit LRUCache(size_t limit) : limit_(limit) {}
    LRUCache(const LRUCache&) = delete;
    LRUCache& operator=(const LRUCache&) = delete;

    /// The value, used now; null when it isn't there, which counts as a miss.
    V* find(const K& key) {
        const auto it = entries_.find(key);
        if (it == entries_.end()) {
            ++misses_;
            return nullptr;
        }
        if (&*it != last_) {
            unlink(&*it);
            linkLast(&*it);
        }
        return &it->second.value;
    }

    /// Enters a value as the one used last, in place of one of the same key; what is beyond the limit goes. Null when
    /// the limit lets nothing stay.
    V* insert(const K& key, V value) {
        erase(key);
        Node* node = &*entries_.emplace(key, Entry{std::move(value), nullptr, nullptr}).first;
        linkLast(node);
        shrink();
        return last_ == node ? &node->second.value : nullptr;
    }

    void erase(const K& key) {
        const auto it = entries_.find(key);
        if (it == entries_.end())
            return;
        unlink(&*it);
        entries_.erase(it);
    }

    void clear() {
        first_ = last_ = nullptr;
        entries_.clear();
    }

    void setLimit(size_t limit) {
        limit_ = limit;
        shrink();
    }
    size_t getLimit() const { return limit_; }
    size_t size() const { return entries_.size(); }
    unsigned long getMissCount() const { return misses_; }

private:
    struct Entry;
    using Node = std::pair<const K, Entry>;
    struct Entry {
        V value;
        Node* before;
        Node* after;
    };

    void unlink(Node* node) {
        Entry& entry = node->second;
        (entry.before ? entry.before->second.after : first_) = entry.after;
        (entry.after ? entry.after->second.before : last_) = entry.before;
    }

    void linkLast(Node* node) {
        node->second.before = last_;
        node->second.after = nullptr;
        (last_ ? last_->second.after : first_) = node;
        last_ = node;
    }

    void shrink() {
        while (entries_.size() > limit_) {
            Node* oldest = first_;
            unlink(oldest);
            entries_.erase(entries_.find(oldest->first));
        }
    }

    std::unordered_map<K, Entry> entries_; ///< Its nodes don't move: the order of use links them.
    Node* first_ = nullptr;                ///< Used longest ago.
    Node* last_ = nullptr;
    size_t limit_;
    unsigned long misses_ = 0;
};

} // namespace skyvane
