#include "gui/keys/InputChoice.h"

#include "gui/keys/EditBoxId.h"

#include <utility>

namespace skyvane {
namespace {

constexpr std::size_t realKeyboard = 0;

} // namespace

InputChoice::InputChoice(std::size_t count, IsPreferred isPreferred)
    : count_(count), isPreferred_(std::move(isPreferred)) {}

void InputChoice::select(int id) {
    const std::size_t preferred = id == NoEdit ? count_ : firstPreferred(id);
    available_ = preferred < count_;
    // A real keyboard serves every edit box, yet only who has asked for it has one.
    const bool stays = current_ == realKeyboard ? chosenByUser_ : isPreferred_(current_, id);
    if (available_ && !stays)
        current_ = preferred;
}

void InputChoice::change() {
    current_ = (current_ + 1) % count_;
    chosenByUser_ = true;
}

std::size_t InputChoice::firstPreferred(int id) const {
    std::size_t input = 0;
    while (input < count_ && !isPreferred_(input, id))
        ++input;
    return input;
}

} // namespace skyvane
