// Any bytes as a page: it is laid out, drawn somewhere in its middle, clicked at and written as HTML.
#include "../gui/hypertext/RecordingCanvas.h"
#include "gui/hypertext/markup/ParseHypertext.h"

#include <cstdint>
#include <cstdlib>

using namespace skyvane;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const auto root = parseHypertext(std::string(reinterpret_cast<const char*>(data), size));
    if (!root)
        return 0;
    RecordingCanvas canvas;
    canvas.pictures["p"] = {1, 4000};
    for (const int width : {0, 1, 333}) {
        const irr::core::rect<int> place = root->calcRelativeViewPort(canvas, canvas.style(), width);
        if (place.LowerRightCorner.Y < 0 || place.LowerRightCorner.Y > 1 << 28)
            std::abort();
        const int top = -place.LowerRightCorner.Y / 2;
        DocPass pass{canvas, {0, 0, 333, 100}, MouseState::Released, {160, 10}};
        root->render(irr::core::rect<int>(0, top, width, top), pass);
    }
    root->Print(0);
    root->toHTML();
    return 0;
}
