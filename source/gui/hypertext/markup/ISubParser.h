#pragma once

#include "gui/hypertext/elements/IDocElement.h"

#include <memory>

namespace skyvane {

/// A state machine that reads one construct of the markup, byte by byte.
class ISubParser {
public:
    enum class Answer {
        NotMine = 0,  ///< And nothing further will be.
        Finished = 1, ///< The element is ready.
        GoingOn = 2
    };

    virtual ~ISubParser() = default;
    virtual Answer acceptChar(char c) = 0;
    /// Once, after Finished.
    virtual std::unique_ptr<IDocElement> getDocElement() = 0;
    /// A parser of the same kind in its start state, for a construct that lies `depth` constructs deep.
    virtual std::unique_ptr<ISubParser> createNewEntity(int depth) const = 0;
};

} // namespace skyvane
