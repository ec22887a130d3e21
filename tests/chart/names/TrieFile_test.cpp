#include "chart/elements/IIndexCorrectionCallback.h"
#include "chart/names/Trie.h"
#include "core/files/PartialFile.h"
#include "sensors/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>

namespace skyvane {

namespace {

using testing::ElementsAre;

struct Shift final : IIndexCorrectionCallback {
    explicit Shift(int by) : offset(by) {}
    void OnIndexCorrect(int& out, int stored) override { out = stored + offset; }
    IChartElement* getChartElementWhileLoading(int) override { return nullptr; }
    int offset;
};

template <size_t N>
std::string bytes(const char (&literal)[N]) {
    return std::string(literal, N - 1);
}

std::string number(int32_t value) {
    std::string text;
    for (int i = 0; i < 4; ++i)
        text += static_cast<char>(static_cast<uint32_t>(value) >> (8 * i));
    return text;
}

std::string leaf(int32_t count, const std::vector<int32_t>& ids) {
    std::string text = number(0) + number(count) + number(static_cast<int32_t>(ids.size()));
    for (const int32_t id : ids)
        text += number(id);
    return text;
}

// AB for 7 and 8, B for 258: root with two children.
const std::string golden = bytes("\2\0\0\0"
                                 "A\1\0\0\0"
                                 "B\0\0\0\0\2\0\0\0\2\0\0\0\7\0\0\0\10\0\0\0"
                                 "\2\0\0\0\0\0\0\0"
                                 "B\0\0\0\0\1\0\0\0\1\0\0\0\2\1\0\0"
                                 "\3\0\0\0\0\0\0\0");

TEST(TrieFile, goldenBytes) {
    Trie trie;
    trie.insert("AB", 7);
    trie.insert("B", 258);
    trie.insert("AB", 8);
    std::ostringstream out;
    EXPECT_TRUE(trie.Save(out));
    EXPECT_EQ(out.str(), golden);

    std::istringstream in(golden + "more");
    Trie loaded;
    EXPECT_TRUE(loaded.Load(in));
    EXPECT_EQ(in.get(), 'm'); // not a byte further than its own
    EXPECT_THAT(loaded.getAllElements(), ElementsAre(7, 8, 258));
}

TEST(TrieFile, mergingAddsUpAndShifts) {
    const TemporaryFolder folder;
    folder.write("a", golden);
    folder.write("b", golden);
    Trie trie;
    Shift first(0);
    Shift second(1000);
    EXPECT_TRUE(trie.mergeLoad(folder.path("a"), &first));
    EXPECT_TRUE(trie.mergeLoad(folder.path("b"), &second));
    EXPECT_THAT(trie.getMatching("AB", 4), ElementsAre(7, 8, 1007, 1008));
    EXPECT_THAT(trie.getMatching("A", 3), ElementsAre());
    EXPECT_THAT(trie.getMatching("B", 2), ElementsAre(258, 1258));
    EXPECT_FALSE(trie.mergeLoad(folder.path("missing"), nullptr));
    EXPECT_TRUE(LoadTrie(folder.path("missing"))->getAllElements().empty());

    EXPECT_TRUE(SaveTrie(&trie, folder.path("c")));
    EXPECT_EQ(LoadTrie(folder.path("c"))->getAllElements(), trie.getAllElements());
    EXPECT_FALSE(SaveTrie(&trie, folder.path("missing/c")));
}

// A window of a few bytes more than the longest piece still reads everything.
TEST(TrieFile, throughASmallWindow) {
    const TemporaryFolder folder;
    folder.write("a", golden);
    for (const unsigned window : {4u, 5u, 7u, 64u}) {
        PartialFile file(folder.path("a"), window, 4);
        Trie trie;
        EXPECT_TRUE(trie.mergeLoad(file, nullptr)) << window;
        EXPECT_THAT(trie.getAllElements(), ElementsAre(7, 8, 258));
    }
}

TEST(TrieFile, everyTruncationKeepsWhatCameBefore) {
    const TemporaryFolder folder;
    for (size_t length = 0; length < golden.size(); ++length) {
        folder.write("cut", golden.substr(0, length));
        Trie trie;
        trie.insert("OWN", -1);
        PartialFile file(folder.path("cut"), 100, 10);
        EXPECT_FALSE(trie.mergeLoad(file, nullptr)) << length;
        EXPECT_TRUE(trie.isElement("OWN"));
        EXPECT_EQ(trie.isElement("AB"), length >= 26) << length;
        EXPECT_EQ(trie.isElement("B"), length >= golden.size() - 8) << length;
        const size_t ids = trie.getAllElements().size();
        EXPECT_THAT(trie.getMatching("", static_cast<int>(ids) - 1), ElementsAre()) << "the limit holds, " << length;
    }
}

TEST(TrieFile, impossibleCountsAreRefused) {
    const std::string good = "A" + leaf(1, {5});
    const auto load = [](const std::string& file, Trie& trie) {
        std::istringstream in(file);
        return trie.Load(in);
    };
    Trie trie;
    for (const int32_t children : {-1, 257, 0x7fffffff, static_cast<int32_t>(0x80000000)})
        EXPECT_FALSE(load(number(children) + good, trie)) << children;
    for (const int32_t ids : {-1, 62000, 0x7fffffff}) {
        EXPECT_FALSE(load(number(2) + good + "B" + number(0) + number(1) + number(ids), trie)) << ids;
        EXPECT_THAT(trie.getAllElements(), ElementsAre(5)) << "kept";
        EXPECT_THAT(trie.getMatching("A", 1), ElementsAre(5));
    }
}

TEST(TrieFile, liesAboutCountsDoNotCrash) {
    std::istringstream in(number(3) + "A" + leaf(-5, {1, 2}) + "A" + leaf(0x7fffffff, {3}) + "\xff" + leaf(1, {4}) +
                          number(0) + number(0));
    Trie trie;
    EXPECT_TRUE(trie.Load(in));
    EXPECT_THAT(trie.getAllElements(), ElementsAre(4, 1, 2, 3)); // -1 sorts first, the same child twice is one
    EXPECT_THAT(trie.getMatching("", 3), ElementsAre());
    EXPECT_THAT(trie.getMatching("A", 100), ElementsAre(1, 2, 3)) << "none of it by prefix only";
    trie.insert("A", 9);
    EXPECT_TRUE(trie.isElement("A"));
}

TEST(TrieFile, asManyIdsAsFit) {
    Trie trie;
    for (int id = 0; id < Trie::IdLimit - 1; ++id)
        trie.insert("N", id);
    std::stringstream file;
    EXPECT_TRUE(trie.Save(file));
    Trie loaded;
    EXPECT_TRUE(loaded.Load(file));
    EXPECT_EQ(loaded.getAllElements().size(), 61999u);

    trie.insert("N", -1);
    std::stringstream cut;
    EXPECT_FALSE(trie.Save(cut));
    EXPECT_TRUE(loaded.Load(cut)) << "what is written can be read";
    EXPECT_EQ(loaded.getAllElements().size(), 61999u);
}

} // namespace

} // namespace skyvane
