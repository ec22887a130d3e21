#pragma once

#include "core/engine/EngineRef.h"

#include <irrlicht.h>
#include <string>

namespace skyvane {

class CHyperTextElement;
class Context;

/// The manual over the whole screen, on a page of media/doc, with a button back to where the pilot was. Takes over the
/// back key while it lives. Main thread only.
class ManualWindow {
public:
    static constexpr const char* startPage = "index.hti";

    ManualWindow(Context* context, const std::string& page);
    ~ManualWindow();
    ManualWindow(const ManualWindow&) = delete;
    ManualWindow& operator=(const ManualWindow&) = delete;

    /// True for the click that closes the manual.
    bool isClosedBy(const irr::SEvent& event) const;
    void gotoPage(const std::string& page);
    /// The page leaves room for what lies over it there.
    void keepClear(const irr::core::rect<int>& cover);

    /// Whether the manual that is installed has the page.
    static bool hasPage(Context* context, const std::string& page);

private:
    Context* context_;
    EngineRef<irr::gui::IGUIWindow> window_;
    CHyperTextElement* element_ = nullptr; ///< A child of the window.
    irr::gui::IGUIButton* back_ = nullptr; ///< Likewise.
    irr::gui::IGUIElement* backBefore_;    ///< Not owned; the event receiver looks it up before use.
};

} // namespace skyvane
