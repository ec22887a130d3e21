#pragma once

#include "gui/hypertext/markup/ISubParser.h"

#include <vector>

namespace skyvane {

/// Reads one element of whatever kind: each byte goes to every parser that still takes part, until one has finished.
class SubParserList {
public:
    /// An element that lies `depth` constructs deep; one deeper than deepest isn't accepted.
    explicit SubParserList(int depth);

    ISubParser::Answer acceptChar(char c);
    /// Once, after Finished.
    std::unique_ptr<IDocElement> getDocElement() { return std::move(element_); }

    static constexpr int deepest = 32;

private:
    std::vector<std::unique_ptr<ISubParser>> parsers_;
    std::unique_ptr<IDocElement> element_;
};

/// The place of an element within a construct, behind the backslash that ends what stands before it.
class ElementSlot {
public:
    /// `depth` is that of the construct around.
    explicit ElementSlot(int depth) : depth_(depth) {}

    /// Backslashes before the element's own are separators.
    ISubParser::Answer acceptChar(char c);
    bool hasBegun() const { return list_ != nullptr; }
    bool isAfterBackslash() const { return afterBackslash_; }
    /// After Finished: the element; the slot can take another.
    std::unique_ptr<IDocElement> take();

private:
    int depth_;
    bool afterBackslash_ = false;
    std::unique_ptr<SubParserList> list_;
};

} // namespace skyvane
