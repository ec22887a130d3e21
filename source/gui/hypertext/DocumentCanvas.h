#pragma once

#include "core/engine/EngineRef.h"
#include "gui/hypertext/DocumentPictures.h"
#include "gui/hypertext/elements/IDocCanvas.h"

#include <irrlicht.h>
#include <string>

namespace skyvane {

class FlexibleFont;

/// Draws documents with the engine, in the looks of the skin. Main thread only.
class DocumentCanvas : public IDocCanvas {
public:
    /// The device outlives the canvas.
    explicit DocumentCanvas(irr::IrrlichtDevice* device);
    ~DocumentCanvas() override;

    /// Null shows no texts.
    void setFont(FlexibleFont* font);
    FlexibleFont* getFont() const { return font_.get(); }
    /// Where pictures are, with a trailing slash; those of the page before are given up.
    void beginPage(const std::string& folder);
    /// The target that was clicked since the last call; empty for none.
    std::string takeTarget();

    int getLinkPadding() const override;
    uint32_t getLinkColor() const override;
    uint32_t getPageColor() const override;
    std::unique_ptr<IDocText> makeText(const std::wstring& text, const Style& style) override;
    std::unique_ptr<IDocPicture> loadPicture(const std::string& name) override;
    void drawFilledRect(const Rect& rect, uint32_t color, const Rect& clip) override;
    void drawFrame(const Rect& rect, uint32_t color, const Rect& clip) override;
    void drawButton(const Rect& rect, bool pressed, const Rect& clip) override;
    void gotoOnNextRender(const std::string& target) override { target_ = target; }

private:
    irr::gui::IGUISkin* skin() const;

    irr::IrrlichtDevice* device_;
    EngineRef<FlexibleFont> font_;
    DocumentPictures pictures_;
    std::string folder_;
    std::string target_;
};

} // namespace skyvane
