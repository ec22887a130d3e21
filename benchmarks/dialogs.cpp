// How long the slowest dialog of the program takes to open, in frames of the page that it opens over.
#include "Bench.h"
#include "DemoProgram.h"

#include "core/Context.h"
#include "core/FrameLoop.h"
#include "core/engine/EngineRef.h"
#include "core/ini/IniFile.h"
#include "core/time/Time.h"
#include "displays/PanelManager.h"
#include "gui/menu/Menu.h"
#include "gui/menu/MenuRow.h"

#include <GL/gl.h>
#include <algorithm>
#include <cmath>
#include <cwchar>
#include <memory>

namespace skyvane {

namespace {

/// Of the program where drawing is quick; the machine that measures may need longer for its frames.
constexpr double framePeriodSeconds = 0.036;

/// Ends whatever waits for an answer once its first frame is on the glass, and notes how long that took.
class FirstFrame : public IFrameRunner {
public:
    FirstFrame(Context& context, IFrameRunner& frames) : context_(context), frames_(frames) { context.setFrames(this); }
    ~FirstFrame() override { context_.setFrames(&frames_); }

    /// From one frame of the page to the next.
    double secondsOfPage() {
        return skyvane::secondsOf([this] {
            frames_.runFrame(nullptr);
            glFinish();
        });
    }

    double secondsOf(const MenuRow& row) {
        shown_ = false;
        seconds_ = 0.0;
        const double start = Secs();
        start_ = start;
        row.run(context_);
        if (!shown_)
            runFrame(nullptr);
        return seconds_;
    }

    bool runFrame(const ModalFrame* modal) override {
        if (shown_)
            return false;
        frames_.runFrame(modal);
        glFinish();
        seconds_ = Secs() - start_;
        shown_ = true;
        return true;
    }
    EventReceiver* getEvents() override { return frames_.getEvents(); }

private:
    Context& context_;
    IFrameRunner& frames_;
    double start_ = 0.0;
    double seconds_ = 0.0;
    bool shown_ = false;
};

/// Rows that open no dialog.
bool opensDialog(const MenuRow& row) {
    return std::wcscmp(row.text, L"Homepage") != 0;
}

/// What a row has told stays until it is answered.
void removeBoxes(irr::gui::IGUIElement* root) {
    const irr::core::list<irr::gui::IGUIElement*> elements = root->getChildren();
    for (irr::gui::IGUIElement* element : elements)
        if (element->getType() == irr::gui::EGUIET_MODAL_SCREEN)
            element->remove();
}

double slowestDialog(bool smoke) {
    const BenchHome home;
    const auto device = home.path().empty() ? EngineRef<irr::IrrlichtDevice>() : openBenchWindow();
    if (!device)
        return std::nan("");
    double slowest = 0.0;
    Context context(device.get(), home.programPath().c_str(), true);
    FrameLoop loop(context);
    loop.runFrame(nullptr);
    FirstFrame frames(context, loop);
    for (const MenuRow& row : menuRows()) {
        if (!opensDialog(row) || (row.isShown && !row.isShown(context)))
            continue;
        std::vector<double> openings, periods;
        for (int i = 0; i < (smoke ? 1 : 7); ++i) {
            periods.push_back(frames.secondsOfPage());
            openings.push_back(frames.secondsOf(row));
            context.getPanelManager()->getMenu()->hideMenuWindows();
            removeBoxes(device->getGUIEnvironment()->getRootGUIElement());
        }
        slowest = std::max(slowest, median(openings) / std::max(framePeriodSeconds, median(periods)));
    }
    return slowest;
}

} // namespace

std::vector<Bench> dialogBenches() {
    return {{"dialog.open-frames", Bench::Bound::AtMost, 2.0, slowestDialog}};
}

} // namespace skyvane
