#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <utility>
#include <vector>

namespace skyvane {

/// Keeps what was used last, up to a limit; the rest goes, oldest use first, by its destructor.
///
///     LRUCache<int, std::unique_ptr<IChartElement>> cache(100000);
///     if (auto* element = cache.find(id)) return element->get();
///     auto* element = cache.insert(id, load(id));                     // null when the limit is 0
///
/// V owns what it stands for: a type whose destructor gives it back. Pointers to values hold until the value goes. A
/// hit is one look-up that notes the time of use, and allocates nothing; the order of use is worked out when something
/// has to go. Not thread safe.
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
        it->second.used = ++now_;
        return &it->second.value;
    }

    /// Enters a value as the one used last, in place of one of the same key; what is beyond the limit goes. Null when
    /// the limit lets nothing stay.
    V* insert(const K& key, V value) {
        entries_.erase(key);
        Entry& entry = entries_.emplace(key, Entry{std::move(value), ++now_, now_}).first->second;
        queue({now_, key});
        shrink();
        return limit_ > 0 ? &entry.value : nullptr;
    }

    void erase(const K& key) { entries_.erase(key); }

    void clear() {
        entries_.clear();
        uses_.clear();
    }

    void setLimit(size_t limit) {
        limit_ = limit;
        shrink();
    }
    size_t getLimit() const { return limit_; }
    size_t size() const { return entries_.size(); }
    unsigned long getMissCount() const { return misses_; }

private:
    struct Entry {
        V value;
        uint64_t used;   ///< When it was used last.
        uint64_t queued; ///< Of the one note in uses_ that stands for it: never later.
    };
    /// A use that isn't newer than the entry's last one.
    struct Use {
        uint64_t time;
        K key;
    };
    static bool isLater(const Use& a, const Use& b) { return a.time > b.time; }

    void queue(Use use) {
        if (uses_.size() > 2 * entries_.size() + FewUses)
            forgetOldUses();
        uses_.push_back(std::move(use));
        std::push_heap(uses_.begin(), uses_.end(), isLater);
    }

    /// What was erased or replaced leaves notes behind.
    void forgetOldUses() {
        const auto isOld = [this](const Use& use) {
            const auto it = entries_.find(use.key);
            return it == entries_.end() || it->second.queued != use.time;
        };
        uses_.erase(std::remove_if(uses_.begin(), uses_.end(), isOld), uses_.end());
        std::make_heap(uses_.begin(), uses_.end(), isLater);
    }

    void shrink() {
        while (entries_.size() > limit_)
            dropOldest();
    }

    /// The oldest note is of the oldest entry when that wasn't used since; else it is put right.
    void dropOldest() {
        std::pop_heap(uses_.begin(), uses_.end(), isLater);
        Use& oldest = uses_.back();
        const auto it = entries_.find(oldest.key);
        if (it == entries_.end() || it->second.queued != oldest.time) {
            uses_.pop_back();
        } else if (it->second.used == oldest.time) {
            entries_.erase(it);
            uses_.pop_back();
        } else {
            oldest.time = it->second.queued = it->second.used;
            std::push_heap(uses_.begin(), uses_.end(), isLater);
        }
    }

    static constexpr size_t FewUses = 16;

    std::unordered_map<K, Entry> entries_;
    std::vector<Use> uses_; ///< A heap, the oldest on top; one note for each entry, and old ones.
    size_t limit_;
    uint64_t now_ = 0;
    unsigned long misses_ = 0;
};

} // namespace skyvane
