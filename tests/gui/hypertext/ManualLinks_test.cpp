#include "gui/hypertext/RecordingCanvas.h"
#include "gui/hypertext/markup/ParseHypertext.h"
#include "support/SourceFolder.h"

#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>
#include <set>
#include <sstream>

namespace skyvane {
namespace {

namespace fs = std::filesystem;

/// Pages as a reader follows them: each link tapped where it is drawn.
class ManualLinks : public testing::Test {
protected:
    static constexpr int width = 800, endless = 1 << 20;

    static std::string contentOf(const std::string& page) {
        std::ostringstream text;
        text << std::ifstream(sourceFolder() + "media/doc/" + page, std::ios::binary).rdbuf();
        return text.str();
    }
    /// What a tap on each of the page's buttons leads to.
    static std::vector<std::string> targetsOf(const std::string& page) {
        RecordingCanvas canvas;
        const std::unique_ptr<IDocElement> root = parseHypertext(contentOf(page));
        EXPECT_NE(nullptr, root) << page;
        if (!root)
            return {};
        const irr::core::rect<int> place = root->calcRelativeViewPort(canvas, canvas.style(), width);
        const auto draw = [&](MouseState state, irr::core::vector2d<int> mouse) {
            DocPass pass{canvas, {0, 0, width, endless}, state, mouse};
            root->render(place, pass);
        };
        draw(MouseState::Idle, {-1, -1});
        for (const std::string& drawn : std::vector<std::string>(canvas.drawn)) {
            irr::core::rect<int> button;
            if (std::sscanf(drawn.c_str(), "button %d,%d %d,%d", &button.UpperLeftCorner.X, &button.UpperLeftCorner.Y,
                            &button.LowerRightCorner.X, &button.LowerRightCorner.Y) != 4)
                continue;
            const std::size_t before = canvas.targets.size();
            draw(MouseState::Released, button.getCenter());
            EXPECT_EQ(before + 1, canvas.targets.size()) << page << ": " << drawn;
        }
        return canvas.targets;
    }
};

TEST_F(ManualLinks, EachOfThemOpensAPageThatLeadsBack) {
    std::set<std::string> seen{"index.hti"}, open = seen;
    std::size_t followed = 0;
    while (!open.empty()) {
        const std::string page = *open.begin();
        open.erase(open.begin());
        const std::vector<std::string> targets = targetsOf(page);
        followed += targets.size();
        EXPECT_TRUE(page == "index.hti" || std::count(targets.begin(), targets.end(), "index.hti")) << page;
        for (const std::string& target : targets) {
            EXPECT_NE(page, target) << "leads to where the reader is";
            EXPECT_FALSE(contentOf(target).empty()) << page << " leads to " << target;
            if (seen.insert(target).second)
                open.insert(target);
        }
    }
    EXPECT_GE(seen.size(), 18u);
    EXPECT_GE(followed, 2 * seen.size() - 2) << "there and back";
}

} // namespace
} // namespace skyvane
