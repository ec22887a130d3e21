#include "gui/keys/KeyCodes.h"

namespace skyvane {

int keyCodeOf(wchar_t character) {
    if (character >= L'a' && character <= L'z')
        return character - L'a' + L'A';
    if ((character >= L'A' && character <= L'Z') || (character >= L'0' && character <= L'9'))
        return character;
    switch (character) {
    case L'=':
        return EqualsKey;
    case L',':
        return CommaKey;
    case L'-':
        return MinusKey;
    case L'.':
        return PeriodKey;
    default:
        return 0;
    }
}

} // namespace skyvane
