#pragma once

#include <string>

namespace skyvane {

/// The characters that a wipe dials through, by the edit box's id.
const std::wstring& wipeAlphabet(int editBoxId);

/// Dials a character of an alphabet by a finger that moves up or down: upwards goes on in the alphabet, round and
/// round.
class WipeDial {
public:
    /// Where the finger has dialled to. The drawn strip has scrolled by `fraction` of a character, 0.5 is in the
    /// middle.
    struct Place {
        std::size_t index = 0;
        double fraction = 0.5;
    };

    /// No finger: stands at the last character of the text so far, 0 for an empty one. Characters outside of the
    /// alphabet count as its first.
    void rest(const std::wstring& alphabet, wchar_t last);
    /// A finger comes down, from where the dial rests. `steps` characters fit into the height of the area.
    void start(int y, int areaHeight, int steps);
    void move(int y);
    void stop() { active_ = false; }

    bool isActive() const { return active_; }
    const Place& getPlace() const { return place_; }
    /// The character at so many places from the dialled one.
    wchar_t getCharacter(int offset = 0) const;

private:
    std::size_t wrapped(long index) const;

    std::wstring alphabet_ = L"A";
    int startY_ = 0;
    double stepHeight_ = 1.0;
    std::size_t startIndex_ = 0;
    Place place_;
    bool active_ = false;
};

} // namespace skyvane
