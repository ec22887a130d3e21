#pragma once

#include <cstdint>
#include <iosfwd>
#include <list>
#include <memory>
#include <string>
#include <vector>

namespace skyvane {

class IIndexCorrectionCallback;
class PartialFile;

/// The name index of a chart set, in its folder.
constexpr const char* NamesFileName = "Names.dat";

/// The name index: finds ids by the beginnings of their names.
///
///     Trie names;
///     names.mergeLoad(folder + "/Names.dat", &subChart);
///     for (int id : names.getMatching("EDD", 100)) ...      // unsorted, an id may come more than once
///
/// A name can stand for many ids and an id can have many names. Names are bytes, told apart by case: the caller brings
/// them into upper case. In memory the nodes are links of 20 bytes in one array and the ids pairs in another, so that
/// the world's names take tens of megabytes; no operation recurses, whatever the length of a name. Not thread safe.
class Trie {
public:
    /// An id count of this or more in one node can't be written, and is refused when read.
    static constexpr int IdLimit = 62000;

    Trie();

    void insert(const std::string& name, int id);
    /// Consumes the list.
    void insert(std::list<char>* name, int id);
    /// Whether a name ends exactly there.
    bool isElement(const std::string& name) const;
    bool isElement(std::list<char>* name) const;
    /// The ids at or below the end of the text, depth first; when more than `limit` were inserted there, only those
    /// called exactly so.
    std::list<int> getMatching(const std::string& text, int limit) const;
    std::list<int> getMatching(std::list<char>* text, int limit) const;
    std::list<int> getAllElements() const;
    /// All names, depth first, a name ahead of its continuations, each behind the prefix.
    std::list<std::string> createIdentifierList(const std::string& prefix) const;
    /// Removes the id wherever it stands, and with it the paths that held nothing else. Counts stay as they are, so
    /// that a later getMatching may still take its limit for exceeded. Walks the whole trie.
    void removeElement(int id);

    /// Writes the file form. What a node holds beyond IdLimit is left out, with a line in the log and false as result.
    bool Save(std::ostream& out) const;
    /// Replaces the content by a file form. False when it is broken: what stood before the fault is kept.
    bool Load(std::istream& in);
    /// Adds the content of a file, its ids turned by the callback when there is one. False when the file can't be
    /// opened, or is broken (with a line in the log): what stood before the fault is kept.
    bool mergeLoad(const std::string& path, IIndexCorrectionCallback* callback);
    bool mergeLoad(PartialFile& file, IIndexCorrectionCallback* callback);

    /// Bytes of memory that the nodes and ids take.
    size_t getMemoryUse() const;

private:
    friend class TrieReader;
    friend class TrieWalk;

    /// "No node", and "no id".
    static constexpr uint32_t None = 0xffffffffu;

    struct Node {
        uint32_t firstChild = None;
        uint32_t nextSibling = None; ///< In ascending order of characters, as signed values.
        uint32_t lastId = None;      ///< The last of a ring of ids: its `next` is the first.
        int32_t count = 0;           ///< Ids inserted at or below, never less than there are.
        int8_t character = 0;
    };
    struct Id {
        int32_t id;
        uint32_t next;
    };

    template <class Text>
    uint32_t find(const Text& text) const;
    template <class Text>
    void insertPath(const Text& name, int id);
    /// The child with that character, made when there is none. `hint` is a child to begin at, or None.
    uint32_t childOf(uint32_t parent, int8_t character, uint32_t hint);
    void appendId(uint32_t node, int id);
    void appendIds(uint32_t node, std::list<int>& out) const;
    void appendAll(uint32_t node, std::list<int>& out) const;
    std::list<int> matching(uint32_t node, int limit) const;
    void removeId(uint32_t node, int id);
    void removeEmptyChildren(uint32_t node);
    void clear();

    std::vector<Node> nodes_; ///< The first is the root.
    std::vector<Id> ids_;
    uint32_t freeNodes_ = None; ///< Nodes given back, linked by nextSibling.
    uint32_t freeIds_ = None;   ///< Ids given back, linked by next.
};

/// Writes the file form to a file. False when that fails, or Save does.
bool SaveTrie(const Trie* trie, const std::string& path);
/// A new trie with the file's content, empty when the file can't be read.
std::unique_ptr<Trie> LoadTrie(const std::string& path);
std::list<char> StringToList(const std::string& text);

} // namespace skyvane
