#include "chart/names/Trie.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <sstream>

namespace skyvane {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The same index as a sorted list of names, searched from front to back.
class SlowTwin {
public:
    void insert(const std::string& name, int id) {
        names_[name].push_back(id);
        ++counts_[name];
    }
    void remove(int id) {
        for (auto& [name, ids] : names_)
            ids.erase(std::remove(ids.begin(), ids.end(), id), ids.end());
    }
    std::list<int> getMatching(const std::string& text, int limit) const {
        int count = 0;
        std::list<int> all;
        for (const auto& [name, ids] : names_)
            if (name.compare(0, text.size(), text) == 0) {
                count += counts_.at(name);
                all.insert(all.end(), ids.begin(), ids.end());
            }
        if (count <= limit)
            return all;
        const auto exact = names_.find(text);
        return exact == names_.end() ? std::list<int>() : std::list<int>(exact->second.begin(), exact->second.end());
    }
    bool isElement(const std::string& name) const {
        const auto found = names_.find(name);
        return found != names_.end() && !found->second.empty();
    }
    std::list<std::string> names() const {
        std::list<std::string> names;
        for (const auto& [name, ids] : names_)
            if (!ids.empty())
                names.push_back(name);
        return names;
    }

private:
    struct SignedOrder {
        bool operator()(const std::string& a, const std::string& b) const {
            const auto below = [](char x, char y) { return static_cast<int8_t>(x) < static_cast<int8_t>(y); };
            return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), below);
        }
    };
    std::map<std::string, std::vector<int>, SignedOrder> names_;
    std::map<std::string, int> counts_;
};

std::string randomName(std::mt19937& random) {
    static const char letters[] = {'A', 'B', 'C', '\xc3', ' '};
    std::string name(random() % 7, ' ');
    for (char& letter : name)
        letter = letters[random() % sizeof letters];
    return name;
}

void compare(const Trie& trie, const SlowTwin& twin, std::mt19937& random) {
    ASSERT_EQ(trie.createIdentifierList(""), twin.names());
    for (int query = 0; query < 200; ++query) {
        const std::string text = randomName(random);
        const int limit = static_cast<int>(random() % 60);
        ASSERT_EQ(trie.getMatching(text, limit), twin.getMatching(text, limit)) << '"' << text << "\", limit " << limit;
        ASSERT_EQ(trie.isElement(text), twin.isElement(text)) << '"' << text << '"';
    }
}

TEST(Trie, agreesWithASortedList) {
    const unsigned seed = 20260412;
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    for (int round = 0; round < 30; ++round) {
        Trie trie;
        SlowTwin twin;
        for (int i = 0; i < 400; ++i) {
            const std::string name = randomName(random);
            const int id = static_cast<int>(random() % 100) - 50;
            trie.insert(name, id);
            twin.insert(name, id);
        }
        compare(trie, twin, random);
        for (int i = 0; i < 30; ++i) {
            const int id = static_cast<int>(random() % 100) - 50;
            trie.removeElement(id);
            twin.remove(id);
            if (i % 3 == 0) { // into what was given back
                trie.insert("REUSED" + std::to_string(i), id);
                twin.insert("REUSED" + std::to_string(i), id);
            }
        }
        compare(trie, twin, random);
        std::stringstream file;
        ASSERT_TRUE(trie.Save(file));
        Trie loaded;
        loaded.insert("GONE", 1);
        ASSERT_TRUE(loaded.Load(file));
        compare(loaded, twin, random);
    }
}

TEST(Trie, limitIsStrict) {
    Trie trie;
    trie.insert("EDDS", 3);
    trie.insert("EDDF", 1);
    trie.insert("EDDM", 2);
    EXPECT_THAT(trie.getMatching("ED", 2), IsEmpty());
    EXPECT_THAT(trie.getMatching("ED", 3), ElementsAre(1, 2, 3));
    EXPECT_THAT(trie.getMatching("ED", 100), ElementsAre(1, 2, 3));
    EXPECT_THAT(trie.getMatching("ed", 100), IsEmpty());
    EXPECT_THAT(trie.getMatching("EDDFX", 100), IsEmpty());

    trie.insert("ED", 9);
    trie.insert("ED", 8);
    EXPECT_THAT(trie.getMatching("ED", 2), ElementsAre(9, 8));
    EXPECT_THAT(trie.getMatching("ED", 5), ElementsAre(9, 8, 1, 2, 3));
    EXPECT_THAT(trie.getAllElements(), ElementsAre(9, 8, 1, 2, 3));
}

TEST(Trie, listsAreConsumed) {
    Trie trie;
    std::list<char> name = StringToList("LESU");
    EXPECT_EQ(name.size(), 4u);
    trie.insert(&name, 5);
    EXPECT_TRUE(name.empty());
    name = StringToList("LESU");
    EXPECT_TRUE(trie.isElement(&name));
    EXPECT_THAT(trie.getMatching(&name, 1), ElementsAre(5));
    EXPECT_FALSE(trie.isElement("LES"));
    EXPECT_FALSE(trie.isElement(""));
    EXPECT_THAT(trie.createIdentifierList(">"), ElementsAre(">LESU"));
}

TEST(Trie, removedPathsDisappearCountsStay) {
    Trie trie;
    trie.insert("ABC", 1);
    trie.insert("ABD", 2);
    trie.insert("AB", 1);
    trie.insert("ABC", 1);
    trie.removeElement(1);
    EXPECT_FALSE(trie.isElement("ABC"));
    EXPECT_THAT(trie.createIdentifierList(""), ElementsAre("ABD"));
    EXPECT_THAT(trie.getMatching("A", 3), IsEmpty()); // still counts four
    EXPECT_THAT(trie.getMatching("A", 4), ElementsAre(2));
    trie.removeElement(2);
    EXPECT_THAT(trie.createIdentifierList(""), IsEmpty());
    trie.removeElement(2);
    EXPECT_TRUE(trie.getAllElements().empty());
}

// Custom elements bring names of any length: nothing may recurse over their letters.
TEST(Trie, aNameOfAMillionLetters) {
    const std::string name(1000000, 'X');
    Trie trie;
    trie.insert(name, 1);
    EXPECT_THAT(trie.getMatching("XX", 1), ElementsAre(1));
    std::stringstream file;
    ASSERT_TRUE(trie.Save(file));
    Trie loaded;
    ASSERT_TRUE(loaded.Load(file));
    EXPECT_THAT(loaded.createIdentifierList(""), ElementsAre(name));
    loaded.removeElement(1);
    EXPECT_FALSE(loaded.isElement(name));
    EXPECT_THAT(loaded.createIdentifierList(""), IsEmpty());
}

} // namespace

} // namespace skyvane
