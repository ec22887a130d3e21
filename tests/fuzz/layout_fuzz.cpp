// Any document gives a window that can be built, and any schema rows that can be shown.
#include "core/ini/IniFile.h"
#include "core/text/Utf8.h"
#include "gui/layout/EditorSchema.h"
#include "gui/layout/WindowLayout.h"

#include <cstdint>
#include <cstdlib>
#include <string>

using namespace skyvane;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    IniFile document;
    document.setFromString(text.c_str());
    const WindowLayout layout = WindowLayout::read(document);
    const irr::core::rect<int> window = windowRect({0, 0, 1280, 720}, layout.ratio);
    if (!window.isValid() || window.getWidth() > 1281 || window.getHeight() > 721)
        std::abort();
    for (const LayoutElement& element : layout.elements)
        if (!elementRect(element.rect, window).isValid() || !elementRect(element.rect, window, layout.ratio).isValid())
            std::abort();
    for (const EditorRow& row : parseEditorSchema(decodeUtf8(text))) {
        isCorrectType(row.standard, row.type);
        row.getAlternatives();
    }
    EditorColor::parse(text);
    return 0;
}
