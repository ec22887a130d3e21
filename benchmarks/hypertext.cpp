// Scrolling a page of hypertext that is fifty screens long, against one that fills a screen; layouts meanwhile.
#include "Bench.h"

#include "core/Context.h"
#include "core/engine/EngineRef.h"
#include "gui/font/FlexibleFont.h"
#include "gui/hypertext/CHyperTextElement.h"

#include <GL/gl.h>
#include <cmath>
#include <cstdlib>
#include <memory>

namespace skyvane {

namespace {

constexpr int linesOfScreen = 28;
constexpr int longScreens = 50;

std::string pageOf(int screens) {
    std::string page = "\\R";
    for (int line = 0; line < screens * linesOfScreen; ++line)
        page += "\\T\"Line " + std::to_string(1000 + line) +
                " of a page that a pilot reads, with some words more to fill it\"\\n";
    return page + "\\n";
}

/// A window that shows pages of text.
class Reader {
public:
    explicit Reader(const std::string& home)
        : device_(EngineRef<irr::IrrlichtDevice>::adopt(
              irr::createDevice(irr::video::EDT_OPENGL, {1280, 720}, 32, false, true, false, nullptr))) {
        if (!device_)
            return;
        device_->getLogger()->setLogLevel(irr::ELL_NONE);
        context_ = std::make_unique<Context>(device_.get(), (home + "/skyvane").c_str(), true);
        device_->getGUIEnvironment()->clear();
    }

    bool isGood() const { return context_ != nullptr; }
    CHyperTextElement* open(const std::string& page) {
        irr::gui::IGUIElement* root = device_->getGUIEnvironment()->getRootGUIElement();
        auto* element = new CHyperTextElement(device_.get(), root->getAbsolutePosition(), root, page.c_str(),
                                              static_cast<int>(page.size()), {});
        element->drop();
        element->setFlexibleFont(context_->getFlexibleFont());
        return element;
    }
    double frameSeconds(CHyperTextElement* element) {
        irr::video::IVideoDriver* driver = device_->getVideoDriver();
        return secondsOf([&] {
            driver->beginScene(true, true, irr::video::SColor(0xff000000));
            element->draw();
            driver->endScene();
            glFinish();
        });
    }

private:
    EngineRef<irr::IrrlichtDevice> device_;
    std::unique_ptr<Context> context_;
};

void scrollDown(CHyperTextElement* element) {
    irr::SEvent event{};
    event.EventType = irr::EET_KEY_INPUT_EVENT;
    event.KeyInput.PressedDown = true;
    event.KeyInput.Key = irr::KEY_DOWN;
    element->OnEvent(event);
}

/// The ratio of the frames, and the layouts of all of them beyond the first.
struct Scrolled {
    double ratio = std::nan("");
    double layouts = std::nan("");
};

Scrolled scrollLongPage(bool smoke) {
    const std::string& build = benchBuildFolder();
    const std::string home = build + "/bench-home";
    if (std::system(("tools/demo/prepare-home.sh " + build + " " + home + " >/dev/null").c_str()) != 0)
        return {};
    Reader reader(home);
    if (!reader.isGood())
        return {};
    CHyperTextElement* longPage = reader.open(pageOf(longScreens));
    CHyperTextElement* onePage = reader.open(pageOf(1));
    for (CHyperTextElement* page : {longPage, onePage})
        reader.frameSeconds(page);
    const auto layouts = [&] { return longPage->getDocument().getLayouts() + onePage->getDocument().getLayouts(); };
    const unsigned long before = layouts();
    Scrolled result;
    result.ratio = ratioOfMedians(
        smoke ? 5 : 400,
        [&] {
            scrollDown(longPage);
            return reader.frameSeconds(longPage);
        },
        [&] { return reader.frameSeconds(onePage); });
    result.layouts = static_cast<double>(layouts() - before);
    const bool scrolled = longPage->getDocument().getScrollOffset() < 0 && longPage->getDocument().hasPage();
    return scrolled ? result : Scrolled{};
}

} // namespace

std::vector<Bench> hypertextBenches() {
    return {{"hypertext.scroll", Bench::Bound::AtMost, 1.3, [](bool smoke) { return scrollLongPage(smoke).ratio; }},
            {"hypertext.layouts", Bench::Bound::AtMost, 0.0, [](bool smoke) { return scrollLongPage(smoke).layouts; }}};
}

} // namespace skyvane
