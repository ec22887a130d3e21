#pragma once

#include "chart/elements/IIndexCorrectionCallback.h"
#include "chart/names/Trie.h"
#include "core/bytes/ByteReader.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace skyvane {

/// Reads the file form of a trie from any source into one, without believing it.
///
/// A node is, little-endian: i32 child count, the children (u8 character and node each), i32 count, i32 id count, ids
/// of i32. The stack for nodes within nodes is the reader's own; what it takes is bounded by the file's size.
class TrieReader {
public:
    TrieReader(Trie& trie, IIndexCorrectionCallback* callback) : trie_(trie), callback_(callback) {}

    /// The source has bool get(void*, size_t). False when it ends early or holds impossible counts; the trie then has
    /// what came before, all of it found.
    template <class Source>
    bool read(Source& source) {
        bool good = enter(source, 0);
        while (good && !open_.empty())
            good = open_.back().childrenLeft > 0 ? readChild(source) : readEnd(source);
        while (!open_.empty())
            leave(0);
        return good;
    }

private:
    static constexpr int MostChildren = 256;

    struct Open {
        uint32_t node;
        uint32_t lastChild;
        int32_t childrenLeft;
        int32_t idsSeen; ///< At the node and below it, in this file.
    };

    template <class Source>
    static bool number(Source& source, int32_t& value) {
        uint8_t bytes[sizeof value];
        if (!source.get(bytes, sizeof bytes))
            return false;
        value = ByteReader(bytes, sizeof bytes).little<int32_t>();
        return true;
    }

    template <class Source>
    bool enter(Source& source, uint32_t node) {
        open_.push_back({node, Trie::None, 0, 0});
        int32_t children = 0;
        if (!number(source, children) || children < 0 || children > MostChildren)
            return false;
        open_.back().childrenLeft = children;
        return true;
    }

    template <class Source>
    bool readChild(Source& source) {
        uint8_t character = 0;
        if (!source.get(&character, 1))
            return false;
        Open& parent = open_.back();
        --parent.childrenLeft;
        parent.lastChild = trie_.childOf(parent.node, static_cast<int8_t>(character), parent.lastChild);
        return enter(source, parent.lastChild);
    }

    template <class Source>
    bool readEnd(Source& source) {
        int32_t count = 0;
        int32_t ids = 0;
        if (!number(source, count) || !number(source, ids) || ids < 0 || ids >= Trie::IdLimit)
            return false;
        for (; ids > 0; --ids) {
            int32_t stored = 0;
            if (!number(source, stored))
                return false;
            int id = stored;
            if (callback_)
                callback_->OnIndexCorrect(id, stored);
            trie_.appendId(open_.back().node, id);
            ++open_.back().idsSeen;
        }
        leave(count);
        return true;
    }

    // A count below the ids that there are would let a short text give more than was asked for.
    void leave(int32_t claimedCount) {
        const Open closed = open_.back();
        open_.pop_back();
        int32_t& count = trie_.nodes_[closed.node].count;
        const int64_t sum = static_cast<int64_t>(count) + std::max(claimedCount, closed.idsSeen);
        count = static_cast<int32_t>(std::min<int64_t>(sum, std::numeric_limits<int32_t>::max()));
        if (!open_.empty())
            open_.back().idsSeen += closed.idsSeen;
    }

    Trie& trie_;
    IIndexCorrectionCallback* callback_;
    std::vector<Open> open_;
};

} // namespace skyvane
