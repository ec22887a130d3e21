#pragma once

#include "chart/areas/IArea.h"

#include <cstddef>
#include <vector>

namespace skyvane {

/// An area of half a degree with the ids of the elements that touch it, and for each of them the three static bytes
/// from which a display can reject it without loading it.
///
/// While a chart set is merged its ids come first and its bytes follow; at all other times each id has its bytes.
class AreaLeaf final : public IArea {
public:
    static constexpr size_t BytesPerElement = 3;

    AreaLeaf(const ChartPosition& nw, const ChartPosition& se, int parentIndex)
        : IArea(Kind::Leaf, nw, se, parentIndex) {}

    bool isLeaf() const override { return true; }

    const std::vector<int>& getElements() const { return elements_; }
    /// Three for each element, in the same order.
    const std::vector<uint8_t>& getStaticBytes() const { return staticBytes_; }

    /// How many ids at the end have no bytes yet; negative when there are bytes without an id.
    long getPendingCount() const;
    /// Whether each id has its bytes and there are no others.
    bool isSane() const { return staticBytes_.size() == BytesPerElement * elements_.size(); }

    void addElement(int id, const uint8_t* staticBytes);
    void reserveElements(size_t more) { elements_.reserve(elements_.size() + more); }
    void appendElement(int id) { elements_.push_back(id); }
    void appendStaticBytes(const uint8_t* bytes, size_t count);
    /// Takes out each occurrence of the id, with its bytes: the last element takes its place.
    void removeElement(int id);
    /// Takes out all elements and gives their memory back.
    void clear();

private:
    std::vector<int> elements_;
    std::vector<uint8_t> staticBytes_;
};

inline const AreaLeaf* IArea::asLeaf() const {
    return kind_ == Kind::Leaf ? static_cast<const AreaLeaf*>(this) : nullptr;
}

inline AreaLeaf* IArea::asLeaf() {
    return kind_ == Kind::Leaf ? static_cast<AreaLeaf*>(this) : nullptr;
}

} // namespace skyvane
