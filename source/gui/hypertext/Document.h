#pragma once

#include "gui/hypertext/DocumentCanvas.h"
#include "gui/hypertext/elements/IDocElement.h"
#include "gui/hypertext/pages/PageHistory.h"
#include "gui/layoutmath/FingerScroll.h"

#include <irrlicht.h>
#include <memory>
#include <string>

namespace skyvane {

/// A page of the program's markup with what a reader does to it: scrolls it by finger, makes it larger, follows its
/// links and goes back.
///
///     Document page(device, "index.hti", (media + "doc/").c_str());
///     page.setFont(font);
///     page.processEvent(event); ...; page.render(style, rect);    // each frame
///
/// Layout runs only when the page, the width, the style or the size changed; a frame without one allocates nothing but
/// for texts seen for the first time. A page that is wrong shows nothing and leaves a line in the log. Main thread
/// only.
class Document {
public:
    /// With a text of `size` bytes, or a file. `dir` is where pages and pictures are; null for "./".
    Document(irr::IrrlichtDevice* device, const char* text, int size, const char* dir);
    Document(irr::IrrlichtDevice* device, const std::string& file, const char* dir);

    /// Shows another text, from its start.
    void setHTI(const char* text, int size);
    /// Opens "<dir><file>"; a dir that isn't null becomes the one for what follows. False, with nothing changed, for a
    /// file that can't be opened or lies out of the folder. Into the history unless it is the page shown already.
    bool gotoFile(const std::string& file, const char* dir, bool addToHistory);
    void Backwards();
    void Forwards();
    /// The page changes with the next drawing.
    void gotoOnNextRender(const std::string& target) { canvas_.gotoOnNextRender(target); }

    void setFont(FlexibleFont* font);
    /// Exponent of 1.1 that the texts are larger by, limited to what can be read.
    void setSize(int size);
    int getSize() const { return size_; }

    /// Mouse events alone; a press counts when it lies within the rectangle of the last drawing. False when the event
    /// wasn't for the page.
    bool processEvent(const irr::SEvent& event);
    /// Towards the end for positive shares of the view.
    void scrollByView(float share);
    /// Draws into the rectangle; the style's font is the document's own.
    void render(const Style& style, const irr::core::rect<int>& rect);
    /// The page as HTML, with the title in its head.
    std::string toHTML(const std::string& title) const;

    const std::string& getFile() const { return file_; }
    bool hasPage() const { return root_ != nullptr; }
    bool hasBackward() const { return history_.hasBackward(); }
    bool hasForward() const { return history_.hasForward(); }
    int getScrollOffset() const { return scroll_.getOffset(); }
    const FingerScroll& getScroll() const { return scroll_; }
    /// Layouts so far: stands still while nothing changes.
    unsigned long getLayouts() const { return layouts_; }
    /// The tree with its places, for a look from outside.
    std::string Print() const { return root_ ? root_->Print(0) : std::string(); }

private:
    void init(const char* dir);
    void show(const std::string& text);
    bool open(const std::string& file, const std::string& folder);
    void updateMouse();
    void layOut(const Style& style, const irr::core::rect<int>& rect);
    bool processPress(const irr::SEvent::SMouseInput& mouse);

    irr::IrrlichtDevice* device_;
    DocumentCanvas canvas_;
    std::unique_ptr<IDocElement> root_;
    std::string folder_;
    std::string file_; ///< Empty for a text.
    PageHistory history_;
    int size_ = 0;

    bool laidOut_ = false;
    Style style_; ///< Of the last layout.
    irr::core::rect<int> rootRect_{0, 0, 0, 0};
    irr::core::rect<int> view_{0, 0, 0, 0};
    int width_ = 0;
    unsigned long layouts_ = 0;

    FingerScroll scroll_;
    MouseState mouseState_ = MouseState::Idle;
    bool pressed_ = false;    ///< The button is down, since a press within the page.
    bool pressWaits_ = false; ///< For a drawing to see it.
    irr::core::vector2d<int> mouse_;
};

} // namespace skyvane
