#pragma once

#include "chart/names/Trie.h"

#include <vector>

namespace skyvane {

/// Visits a node and all below it, depth first and children in order, with a stack of its own.
///
///     for (TrieWalk walk(trie, node); walk.node() != TrieWalk::None; walk.next()) ...    // each node once
///
/// A visitor that wants to know when a node's children are done asks isLeaving(), after constructing with `bothWays`.
class TrieWalk {
public:
    static constexpr uint32_t None = Trie::None;

    TrieWalk(const Trie& trie, uint32_t node, bool bothWays = false) : trie_(trie), bothWays_(bothWays) {
        path_.push_back(node);
    }

    /// The node visited, None at the end.
    uint32_t node() const { return path_.empty() ? None : path_.back(); }
    /// Visited for the second time, behind its children.
    bool isLeaving() const { return leaving_; }
    /// Its ancestors up to the start, and itself.
    const std::vector<uint32_t>& path() const { return path_; }
    void next();

private:
    const Trie& trie_;
    std::vector<uint32_t> path_;
    bool bothWays_;
    bool leaving_ = false;
};

} // namespace skyvane
