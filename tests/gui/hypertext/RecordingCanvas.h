#pragma once

#include "core/text/Utf8.h"
#include "gui/glyphs/FontDefinition.h"
#include "gui/hypertext/elements/IDocElement.h"

#include <map>
#include <string>
#include <vector>

namespace skyvane {

/// A font whose every letter is 10 pixels wide and 20 high.
inline const FontDefinition& boxFont() {
    static const FontDefinition font = [] {
        FontDefinition made;
        FontCharacter space{};
        space.xadvance = 10;
        space.width = 10;
        space.height = 20;
        made.characters[L' '] = space;
        made.lineHeight = 20;
        return made;
    }();
    return font;
}

/// Writes down what a document draws.
class RecordingCanvas : public IDocCanvas {
public:
    std::vector<std::string> drawn;
    std::vector<std::string> targets;
    std::map<std::string, irr::core::dimension2d<irr::u32>> pictures;
    int texts = 0; ///< Built so far.

    Style style() const {
        Style style;
        style.font = &boxFont();
        style.textColor = 0xffffffff;
        return style;
    }

    int getLinkPadding() const override { return 5; }
    uint32_t getLinkColor() const override { return 0xfff2f5f9; }
    uint32_t getPageColor() const override { return 0xff101010; }
    std::unique_ptr<IDocText> makeText(const std::wstring& text, const Style&) override {
        ++texts;
        return std::make_unique<Text>(*this, encodeUtf8(text));
    }
    std::unique_ptr<IDocPicture> loadPicture(const std::string& name) override {
        const auto found = pictures.find(name);
        return found == pictures.end() ? nullptr : std::make_unique<Picture>(*this, name, found->second);
    }
    void drawFilledRect(const Rect& rect, uint32_t, const Rect&) override { note("fill", rect); }
    void drawFrame(const Rect& rect, uint32_t, const Rect&) override { note("frame", rect); }
    void drawButton(const Rect& rect, bool pressed, const Rect&) override {
        note(pressed ? "pressed" : "button", rect);
    }
    void gotoOnNextRender(const std::string& target) override { targets.push_back(target); }

    void note(const std::string& what, const Rect& rect) {
        drawn.push_back(what + " " + std::to_string(rect.UpperLeftCorner.X) + "," +
                        std::to_string(rect.UpperLeftCorner.Y) + " " + std::to_string(rect.LowerRightCorner.X) + "," +
                        std::to_string(rect.LowerRightCorner.Y));
    }

private:
    class Text : public IDocText {
    public:
        Text(RecordingCanvas& canvas, std::string text) : canvas_(canvas), text_(std::move(text)) {}
        void draw(const Rect& place, const Rect&) override { canvas_.note(text_, place); }

    private:
        RecordingCanvas& canvas_;
        std::string text_;
    };
    class Picture : public IDocPicture {
    public:
        Picture(RecordingCanvas& canvas, std::string name, irr::core::dimension2d<irr::u32> size)
            : canvas_(canvas), name_(std::move(name)), size_(size) {}
        irr::core::dimension2d<irr::u32> size() const override { return size_; }
        void draw(const Rect& place, const Rect&) override { canvas_.note(name_, place); }

    private:
        RecordingCanvas& canvas_;
        std::string name_;
        irr::core::dimension2d<irr::u32> size_;
    };
};

} // namespace skyvane
