#include "sensors/ISensorDialogs.h"

#include "core/ini/IniFile.h"
#include "core/ini/IniIterator.h"
#include "core/text/Utf8.h"

namespace skyvane {
namespace {

void copySection(const IniFile& from, const std::string& fromSection, IniFile& to, const std::string& toSection) {
    for (auto it = from.newIterator(); it->isSectionAvail(); it->nextSection())
        for (; it->currentSection() == fromSection && it->isValueAvail(); it->nextValue())
            to.set(toSection, it->currentKey(), it->currentValue());
}

} // namespace

bool editSection(ISensorDialogs& dialogs, IniFile& document, const std::string& section, const std::string& title,
                 const std::wstring& schema, const char* helpFile) {
    IniFile copy;
    copySection(document, section, copy, "");
    if (!dialogs.edit(title, schema, helpFile, copy))
        return false;
    copySection(copy, "", document, section);
    return true;
}

std::wstring escapeForSchema(const std::wstring& text) {
    std::wstring escaped;
    for (const wchar_t c : text) {
        if (c == L',' || c == L';' || c == L'\\')
            escaped += L'\\';
        escaped += c;
    }
    return escaped;
}

std::wstring schemaAlternatives(const std::vector<std::string>& alternatives) {
    std::wstring joined;
    for (const std::string& alternative : alternatives)
        joined += (joined.empty() ? L"" : L";") + decodeUtf8(alternative);
    return escapeForSchema(joined);
}

} // namespace skyvane
