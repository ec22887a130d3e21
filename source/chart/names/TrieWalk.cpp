#include "chart/names/TrieWalk.h"

namespace skyvane {

void TrieWalk::next() {
    if (!leaving_) {
        const uint32_t child = trie_.nodes_[path_.back()].firstChild;
        if (child != None) {
            path_.push_back(child);
            return;
        }
        leaving_ = true;
        if (bothWays_)
            return;
    }
    while (!path_.empty()) {
        const uint32_t sibling = path_.size() > 1 ? trie_.nodes_[path_.back()].nextSibling : None;
        path_.pop_back();
        if (sibling != None) {
            path_.push_back(sibling);
            leaving_ = false;
            return;
        }
        if (bothWays_)
            return; // the parent, if any, is left now
    }
}

} // namespace skyvane
