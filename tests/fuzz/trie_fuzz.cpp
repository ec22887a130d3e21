#include "chart/names/Trie.h"

#include <cstdlib>
#include <sstream>

using namespace skyvane;

/// Any bytes as a name index: what was read can be asked, and what is written reads back as the same.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    std::istringstream in(std::string(reinterpret_cast<const char*>(data), size));
    Trie trie;
    const bool good = trie.Load(in);
    const std::list<int> all = trie.getAllElements();
    if (trie.getMatching("", static_cast<int>(all.size()) - 1).size() > all.size())
        std::abort();

    std::stringstream file;
    Trie again;
    if (trie.Save(file) && (!again.Load(file) || again.getAllElements() != all))
        std::abort();
    if (good && trie.createIdentifierList("") != again.createIdentifierList(""))
        std::abort();
    for (const int id : {0, 7, 258, -1}) {
        trie.removeElement(id);
        trie.insert("AB", id);
        if (!trie.isElement("AB"))
            std::abort();
    }
    return 0;
}
