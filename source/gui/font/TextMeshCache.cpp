#include "gui/font/TextMeshCache.h"

#include <string_view>

namespace skyvane {

namespace {

constexpr size_t longText = 2048;

} // namespace

const TextMesh& TextMeshCache::get(const FlexibleFont& font, const wchar_t* text, size_t length,
                                   const TextMesh::Look& look, irr::video::SColor color) {
    const size_t hash = std::hash<std::wstring_view>()(std::wstring_view(text, length));
    Entry& entry = choose(text, length, hash, look);
    if (holds(entry, text, length, hash, look)) {
        entry.mesh.setColor(color);
    } else {
        entry.mesh.build(font, text, look, color);
        entry.hash = hash;
        ++rebuilds_;
    }
    entry.lastUse = ++uses_;
    return entry.mesh;
}

TextMeshCache::Entry& TextMeshCache::choose(const wchar_t* text, size_t length, size_t hash,
                                            const TextMesh::Look& look) {
    if (length > longText)
        return entries_[0];
    Entry* oldest = &entries_[1];
    for (size_t i = 1; i < entries_.size(); ++i) {
        if (holds(entries_[i], text, length, hash, look))
            return entries_[i];
        if (entries_[i].lastUse < oldest->lastUse)
            oldest = &entries_[i];
    }
    return *oldest;
}

bool TextMeshCache::holds(const Entry& entry, const wchar_t* text, size_t length, size_t hash,
                          const TextMesh::Look& look) const {
    return entry.lastUse != 0 && entry.hash == hash && entry.mesh.isOf(text, length, look);
}

} // namespace skyvane
