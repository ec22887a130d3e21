#pragma once

#include <cstddef>
#include <functional>

namespace skyvane {

/// Which of the input methods serves the edit box that has the focus. The first of them is the real keyboard, which
/// shows nothing and comes only by the change key.
///
/// A choice stays for the next edit box when that one can be served by it, else the first preferred method is taken.
class InputChoice {
public:
    using IsPreferred = std::function<bool(std::size_t input, int id)>;

    InputChoice(std::size_t count, IsPreferred isPreferred);

    /// An edit box takes the focus.
    void select(int id);
    /// The change key: the next method, round and round.
    void change();

    /// False for an edit box that no method serves: nothing is shown for it.
    bool isAvailable() const { return available_; }
    std::size_t getCurrent() const { return current_; }

private:
    std::size_t firstPreferred(int id) const;

    std::size_t count_;
    IsPreferred isPreferred_;
    std::size_t current_ = 0;
    bool chosenByUser_ = false;
    bool available_ = false;
};

} // namespace skyvane
