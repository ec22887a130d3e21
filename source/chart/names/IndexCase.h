#pragma once

#include <string>

namespace skyvane {

/// A name as the index holds it: ASCII letters in upper case, all other bytes as they are, whatever the locale. Names
/// that go in and texts that are looked up both pass through here.
inline std::string upperCaseName(std::string name) {
    for (char& c : name)
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    return name;
}

} // namespace skyvane
