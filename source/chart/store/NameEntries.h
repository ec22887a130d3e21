#pragma once

namespace skyvane {

class IChartElement;
class Trie;

/// Enters an element into a name index under each of its names.
void insertInTrie(Trie& names, const IChartElement& element, int id);

} // namespace skyvane
