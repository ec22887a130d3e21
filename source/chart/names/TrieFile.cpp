#include "chart/names/TrieReader.h"
#include "chart/names/TrieWalk.h"
#include "core/bytes/ByteWriter.h"
#include "core/files/PartialFile.h"
#include "core/log/Logger.h"

#include <cstring>
#include <fstream>

namespace skyvane {

namespace {

constexpr unsigned windowBytes = 1000000;
constexpr unsigned long refillMargin = 250000;

struct WindowSource {
    PartialFile& file;

    bool get(void* out, size_t count) {
        if (file.available() < count)
            file.update();
        if (file.available() < count)
            return false;
        std::memcpy(out, file.data(), count);
        return file.skip(count);
    }
};

struct StreamSource {
    std::istream& in;

    bool get(void* out, size_t count) {
        return static_cast<bool>(in.read(static_cast<char*>(out), static_cast<std::streamsize>(count)));
    }
};

void writeNumber(std::ostream& out, int32_t value) {
    char bytes[sizeof value];
    ByteWriter(bytes, sizeof bytes).little(value);
    out.write(bytes, sizeof bytes);
}

} // namespace

bool Trie::Save(std::ostream& out) const {
    bool complete = true;
    std::list<int> ids;
    for (TrieWalk walk(*this, 0, true); walk.node() != None; walk.next()) {
        const Node& node = nodes_[walk.node()];
        if (!walk.isLeaving()) {
            if (walk.path().size() > 1)
                out.put(static_cast<char>(node.character));
            int32_t children = 0;
            for (uint32_t child = node.firstChild; child != None; child = nodes_[child].nextSibling)
                ++children;
            writeNumber(out, children);
            continue;
        }
        ids.clear();
        appendIds(walk.node(), ids);
        if (ids.size() >= static_cast<size_t>(IdLimit)) {
            complete = false;
            ids.resize(IdLimit - 1);
        }
        writeNumber(out, node.count);
        writeNumber(out, static_cast<int32_t>(ids.size()));
        for (const int id : ids)
            writeNumber(out, id);
    }
    if (!complete)
        logText("A name stands for more elements than a name index can hold: some are not found by it.\n");
    return complete && out.good();
}

bool Trie::Load(std::istream& in) {
    clear();
    StreamSource source{in};
    return TrieReader(*this, nullptr).read(source);
}

bool Trie::mergeLoad(const std::string& path, IIndexCorrectionCallback* callback) {
    PartialFile file(path, windowBytes, refillMargin);
    if (!file.good())
        return false;
    if (mergeLoad(file, callback))
        return true;
    logText("Name index " + path + " is broken at byte " + std::to_string(file.getOffsetInFile()) +
            ": the names before it are used.\n");
    return false;
}

bool Trie::mergeLoad(PartialFile& file, IIndexCorrectionCallback* callback) {
    WindowSource source{file};
    return TrieReader(*this, callback).read(source);
}

bool SaveTrie(const Trie* trie, const std::string& path) {
    std::ofstream out(path, std::ios::binary);
    const bool saved = trie->Save(out);
    out.close();
    return saved && out;
}

std::unique_ptr<Trie> LoadTrie(const std::string& path) {
    auto trie = std::make_unique<Trie>();
    trie->mergeLoad(path, nullptr);
    return trie;
}

} // namespace skyvane
