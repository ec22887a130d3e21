#include "chart/names/Trie.h"

#include "chart/names/TrieWalk.h"

#include <algorithm>
#include <limits>

namespace skyvane {

Trie::Trie() {
    clear();
}

void Trie::clear() {
    nodes_.assign(1, Node());
    ids_.clear();
    freeNodes_ = freeIds_ = None;
}

void Trie::insert(const std::string& name, int id) {
    insertPath(name, id);
}

void Trie::insert(std::list<char>* name, int id) {
    insertPath(*name, id);
    name->clear();
}

bool Trie::isElement(const std::string& name) const {
    const uint32_t node = find(name);
    return node != None && nodes_[node].lastId != None;
}

bool Trie::isElement(std::list<char>* name) const {
    return isElement(std::string(name->begin(), name->end()));
}

std::list<int> Trie::getMatching(const std::string& text, int limit) const {
    return matching(find(text), limit);
}

std::list<int> Trie::getMatching(std::list<char>* text, int limit) const {
    return matching(find(*text), limit);
}

std::list<int> Trie::getAllElements() const {
    std::list<int> all;
    appendAll(0, all);
    return all;
}

std::list<std::string> Trie::createIdentifierList(const std::string& prefix) const {
    std::list<std::string> names;
    for (TrieWalk walk(*this, 0); walk.node() != None; walk.next()) {
        if (nodes_[walk.node()].lastId == None)
            continue;
        names.push_back(prefix);
        for (size_t i = 1; i < walk.path().size(); ++i)
            names.back() += static_cast<char>(nodes_[walk.path()[i]].character);
    }
    return names;
}

void Trie::removeElement(int id) {
    for (TrieWalk walk(*this, 0, true); walk.node() != None; walk.next())
        if (walk.isLeaving()) {
            removeId(walk.node(), id);
            removeEmptyChildren(walk.node());
        }
}

size_t Trie::getMemoryUse() const {
    return nodes_.capacity() * sizeof(Node) + ids_.capacity() * sizeof(Id);
}

template <class Text>
uint32_t Trie::find(const Text& text) const {
    uint32_t node = 0;
    for (const char wanted : text) {
        node = nodes_[node].firstChild;
        while (node != None && nodes_[node].character < static_cast<int8_t>(wanted))
            node = nodes_[node].nextSibling;
        if (node == None || nodes_[node].character != static_cast<int8_t>(wanted))
            return None;
    }
    return node;
}

template <class Text>
void Trie::insertPath(const Text& name, int id) {
    uint32_t node = 0;
    const auto countOneMore = [this](uint32_t at) {
        if (nodes_[at].count < std::numeric_limits<int32_t>::max())
            ++nodes_[at].count;
    };
    countOneMore(node);
    for (const char character : name) {
        node = childOf(node, static_cast<int8_t>(character), None);
        countOneMore(node);
    }
    appendId(node, id);
}

uint32_t Trie::childOf(uint32_t parent, int8_t character, uint32_t hint) {
    uint32_t previous = hint != None && nodes_[hint].character <= character ? hint : None;
    uint32_t next = previous == None ? nodes_[parent].firstChild : previous;
    while (next != None && nodes_[next].character < character) {
        previous = next;
        next = nodes_[next].nextSibling;
    }
    if (next != None && nodes_[next].character == character)
        return next;

    uint32_t made = freeNodes_;
    if (made != None) {
        freeNodes_ = nodes_[made].nextSibling;
        nodes_[made] = Node();
    } else {
        made = static_cast<uint32_t>(nodes_.size());
        nodes_.emplace_back();
    }
    nodes_[made].character = character;
    nodes_[made].nextSibling = next;
    (previous == None ? nodes_[parent].firstChild : nodes_[previous].nextSibling) = made;
    return made;
}

void Trie::appendId(uint32_t node, int id) {
    uint32_t made = freeIds_;
    if (made != None)
        freeIds_ = ids_[made].next;
    else {
        made = static_cast<uint32_t>(ids_.size());
        ids_.emplace_back();
    }
    uint32_t& last = nodes_[node].lastId;
    ids_[made] = {id, last == None ? made : ids_[last].next};
    if (last != None)
        ids_[last].next = made;
    last = made;
}

void Trie::appendIds(uint32_t node, std::list<int>& out) const {
    const uint32_t last = nodes_[node].lastId;
    if (last == None)
        return;
    uint32_t at = last;
    do {
        at = ids_[at].next;
        out.push_back(ids_[at].id);
    } while (at != last);
}

void Trie::appendAll(uint32_t node, std::list<int>& out) const {
    for (TrieWalk walk(*this, node); walk.node() != None; walk.next())
        appendIds(walk.node(), out);
}

std::list<int> Trie::matching(uint32_t node, int limit) const {
    std::list<int> found;
    if (node == None)
        return found;
    if (nodes_[node].count > limit)
        appendIds(node, found);
    else
        appendAll(node, found);
    return found;
}

void Trie::removeId(uint32_t node, int id) {
    const uint32_t last = nodes_[node].lastId;
    if (last == None)
        return;
    uint32_t kept = last;
    bool atLast = false;
    for (uint32_t at = ids_[last].next; !atLast;) {
        atLast = at == last;
        const uint32_t next = ids_[at].next;
        if (ids_[at].id == id) {
            ids_[kept].next = next;
            if (atLast)
                nodes_[node].lastId = kept == last ? None : kept;
            ids_[at].next = freeIds_;
            freeIds_ = at;
        } else
            kept = at;
        at = next;
    }
}

void Trie::removeEmptyChildren(uint32_t node) {
    uint32_t previous = None;
    for (uint32_t child = nodes_[node].firstChild; child != None;) {
        const uint32_t next = nodes_[child].nextSibling;
        if (nodes_[child].lastId == None && nodes_[child].firstChild == None) {
            (previous == None ? nodes_[node].firstChild : nodes_[previous].nextSibling) = next;
            nodes_[child].nextSibling = freeNodes_;
            freeNodes_ = child;
        } else
            previous = child;
        child = next;
    }
}

std::list<char> StringToList(const std::string& text) {
    return std::list<char>(text.begin(), text.end());
}

} // namespace skyvane
