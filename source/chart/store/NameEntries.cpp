#include "chart/store/NameEntries.h"

#include "chart/elements/IChartElement.h"
#include "chart/names/IndexCase.h"
#include "chart/names/Trie.h"

namespace skyvane {

void insertInTrie(Trie& names, const IChartElement& element, int id) {
    const int count = element.getTrieInsertionNameCount();
    for (int i = 0; i < count; ++i)
        names.insert(upperCaseName(element.getTrieInsertionName(i)), id);
}

} // namespace skyvane
