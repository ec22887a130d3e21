#pragma once

#include "gui/font/TextMesh.h"
#include <array>

namespace skyvane {

/// The meshes of the texts that were drawn last.
///
/// Holds 64 texts; the one not drawn for longest makes room. Very long texts share one place, so that the cache stays
/// small whatever is drawn.
class TextMeshCache {
public:
    const TextMesh& get(const FlexibleFont& font, const wchar_t* text, size_t length, const TextMesh::Look& look,
                        irr::video::SColor color);
    unsigned long getRebuilds() const { return rebuilds_; }

private:
    struct Entry {
        TextMesh mesh;
        size_t hash = 0;
        unsigned long lastUse = 0; ///< 0: never built.
    };

    Entry& choose(const wchar_t* text, size_t length, size_t hash, const TextMesh::Look& look);
    bool holds(const Entry& entry, const wchar_t* text, size_t length, size_t hash, const TextMesh::Look& look) const;

    std::array<Entry, 64> entries_;
    unsigned long uses_ = 0;
    unsigned long rebuilds_ = 0;
};

} // namespace skyvane
