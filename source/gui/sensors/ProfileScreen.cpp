#include "gui/sensors/ProfileScreen.h"

#include "core/Context.h"
#include "core/ModalLoop.h"
#include "core/events/EventReceiver.h"
#include "core/files/SafeFile.h"
#include "core/ini/IniFile.h"
#include "core/log/Logger.h"
#include "core/text/Utf8.h"
#include "gui/elements/AggregatableGUIElementAdapter.h"
#include "gui/elements/AggregateGUIElement.h"
#include "gui/elements/BeautifulGUIImage.h"
#include "gui/elements/BeautifulGUIText.h"
#include "gui/elements/ScrollBar.h"
#include "gui/skin/Skin.h"
#include "gui/windows/Questions.h"
#include "gui/windows/WindowTools.h"

#include <algorithm>
#include <array>

namespace skyvane {
namespace {

using Rect = irr::core::rect<irr::s32>;

const Rect laidOutLater(0, 0, 1, 1);
const std::array<irr::video::SColor, 4> plainColors{irr::video::SColor(0xffffffff), irr::video::SColor(0xffffffff),
                                                    irr::video::SColor(0xffffffff), irr::video::SColor(0xffffffff)};
constexpr wchar_t HelpText[] =
    L"Here you can select the most common sensor configuration profiles.\nIn case you need a more sophisticated "
    L"configuration (e.g. combinations of multiple sensor data sources, more configuration parameters, etc..) please "
    L"select \"Custom\" and set up your configuration in the Advanced Sensor Setup.";

constexpr wchar_t NotAvailable[] = L"not available yet";

BeautifulGUIImage* addIcon(Context& context, irr::video::ITexture* texture) {
    return new BeautifulGUIImage(context.getIrrlichtDevice()->getGUIEnvironment(), context.getDrawer(), texture,
                                 plainColors, LayoutWish{0.1f, 1.0f, true});
}

AggregateGUIElement::Options rowOptions(float share) {
    AggregateGUIElement::Options options;
    options.wish.recommendedSpace = share;
    options.horizontal = true;
    return options;
}

} // namespace

ProfileScreen::ProfileScreen(Context* context, IniFile& document, const Profiles& profiles)
    : context_(context), environment_(context->getIrrlichtDevice()->getGUIEnvironment()), document_(document),
      profiles_(profiles) {
    const Rect screen = environment_->getRootGUIElement()->getAbsolutePosition();
    window_ = EngineRef<irr::gui::IGUIWindow>::share(environment_->addWindow(screen, true));
    window_->getCloseButton()->setVisible(false);
    window_->setDraggable(false);
    window_->setDrawTitlebar(false);
    const int button = context->getRecommendedButtonHeight();
    const int gap = button / 3;
    // On an upright screen the headline gets a row of its own.
    const int headEnd = gap + button * (context->isPortrait() ? 5 : 3) / 2;
    addHead(Rect(gap, gap, screen.getWidth() - gap, headEnd));
    addRows(Rect(gap, headEnd + gap, screen.getWidth() - gap, screen.getHeight() - gap));
}

ProfileScreen::~ProfileScreen() {
    removeWindow(window_.get());
}

irr::gui::IGUIButton* ProfileScreen::addButton(const std::wstring& label, const char* style) const {
    irr::gui::IGUIButton* button = environment_->addButton(laidOutLater, nullptr, -1, label.c_str());
    Skin::setButtonStyle(button, style);
    return button;
}

void ProfileScreen::addHead(const Rect& place) {
    irr::video::ITexture* gear =
        context_->getIrrlichtDevice()->getVideoDriver()->getTexture(context_->getPath("media/gear.png").c_str());
    useLast_ = addButton(L"Use Last Settings", "greenNormal");
    help_ = addButton(L"Help", "stdRow");
    auto* headline = new BeautifulGUIText(environment_, context_->getFlexibleFont(),
                                          L"Please select your sensor configuration profile:", {}, LayoutWish{0.54f});
    const auto adapter = [this](irr::gui::IGUIButton* button, float share) {
        return new AggregatableGUIElementAdapter(environment_, button, LayoutWish{share});
    };
    if (!context_->isPortrait()) {
        (new AggregateGUIElement(environment_, rowOptions(1.0f),
                                 {addIcon(*context_, gear), headline, adapter(useLast_, 0.24f), adapter(help_, 0.12f)},
                                 {}, window_.get(), place))
            ->drop();
        return;
    }
    auto* title = new AggregateGUIElement(environment_, rowOptions(1.0f), {addIcon(*context_, gear), headline}, {});
    auto* buttons =
        new AggregateGUIElement(environment_, rowOptions(1.0f), {adapter(useLast_, 0.6f), adapter(help_, 0.4f)}, {});
    (new AggregateGUIElement(environment_, AggregateGUIElement::Options(), {title, buttons}, {}, window_.get(), place))
        ->drop();
}

void ProfileScreen::addRows(const Rect& place) {
    const int button = context_->getRecommendedButtonHeight();
    const int count = std::max(static_cast<int>(profiles_.size()), 1);
    const int rowHeight = std::clamp(place.getHeight() / count, button * 11 / 10, button * 5 / 2);
    AggregateGUIElement::Options options;
    options.scrollable = true;
    const bool isLong = rowHeight * count > place.getHeight();
    Rect listPlace = place;
    if (isLong)
        listPlace.LowerRightCorner.X -= environment_->getSkin()->getSize(irr::gui::EGDS_SCROLLBAR_SIZE);
    auto* list = new AggregateGUIElement(environment_, options, {}, {}, window_.get(), listPlace);
    const float share = static_cast<float>(rowHeight) / static_cast<float>(std::max(place.getHeight(), 1));
    for (const auto& profile : profiles_)
        addRow(*list, *profile, share);
    list->drop();
    if (!isLong)
        return;
    const Rect barPlace(listPlace.LowerRightCorner.X, place.UpperLeftCorner.Y, place.LowerRightCorner.X,
                        place.LowerRightCorner.Y);
    auto* bar = new ScrollBar(environment_, 1.0f, false, -1, nullptr, LayoutWish(), window_.get(), barPlace);
    bar->linkToScrollable(list);
    bar->drop();
}

void ProfileScreen::addRow(AggregateGUIElement& list, IConfigOverride& profile, float share) {
    const bool canBeChosen = profile.getObstacle().empty();
    const Row row{&profile, addButton(nameOf(profile), canBeChosen ? "blueRow" : "stdRow"),
                  addButton(L"More Details", "stdRow")};
    rows_.push_back(row);
    list.addSubElement(
        new AggregateGUIElement(environment_, rowOptions(share),
                                {addIcon(*context_, profile.getIcon()), nameCell(row),
                                 new AggregatableGUIElementAdapter(environment_, row.details, LayoutWish{0.26f})},
                                {}),
        false);
}

/// On an upright screen the words about a profile that can't be chosen have no place beside its name.
bool ProfileScreen::hasWordsBelow(IConfigOverride& profile) const {
    return context_->isPortrait() && !profile.getObstacle().empty();
}

std::wstring ProfileScreen::nameOf(IConfigOverride& profile) const {
    const bool hasWords = !profile.getObstacle().empty() && !hasWordsBelow(profile);
    return profile.getName() + (hasWords ? std::wstring(L" (") + NotAvailable + L")" : L"");
}

IAggregatableGUIElement* ProfileScreen::nameCell(const Row& row) const {
    const LayoutWish wish{0.64f};
    if (!hasWordsBelow(*row.profile))
        return new AggregatableGUIElementAdapter(environment_, row.choose, wish);
    AggregateGUIElement::Options options;
    options.wish = wish;
    auto* words = new BeautifulGUIText(environment_, context_->getFlexibleFont(), NotAvailable,
                                       {irr::video::SColor(0xffc3ccd8), true}, LayoutWish{0.35f});
    return new AggregateGUIElement(
        environment_, options, {new AggregatableGUIElementAdapter(environment_, row.choose, LayoutWish{0.65f}), words},
        {});
}

void ProfileScreen::run() {
    keepBackButton();
    ModalLoop loop(*context_->getFrames(),
                   {[this](const irr::SEvent& event) { onEvent(event); }, ModalFrame::Backdrop::Grey});
    loop.run([this] { return open_; });
    context_->getEvents()->setBackButton(nullptr);
}

/// The back key changes nothing about the sensors.
void ProfileScreen::keepBackButton() const {
    context_->getEvents()->setBackButton(useLast_);
}

void ProfileScreen::onEvent(const irr::SEvent& event) {
    if (!open_)
        return;
    if (isClickOf(event, useLast_))
        open_ = false;
    else if (isClickOf(event, help_))
        tellInBox(*context_, HelpText);
    for (const Row& row : rows_) {
        if (isClickOf(event, row.choose))
            choose(*row.profile);
        else if (isClickOf(event, row.details))
            showDetails(*row.profile);
    }
    keepBackButton();
}

void ProfileScreen::choose(IConfigOverride& profile) {
    if (!profile.OnConfigChosen(&document_))
        return;
    if (const int error = saveFileSafely(context_->getConfigPath(), document_.toString())) {
        const std::string trouble = "The profile is used now, but could not be saved. " + whyNotWritten(error);
        logText(trouble + "\n");
        tellInBox(*context_, decodeUtf8(trouble));
    }
    open_ = false;
}

void ProfileScreen::showDetails(IConfigOverride& profile) const {
    const std::wstring obstacle = profile.getObstacle();
    const std::wstring text = profile.getDescription() + (obstacle.empty() ? L"" : L"\n\n" + obstacle);
    if (!profile.isApplicableWebsiteURL())
        tellInBox(*context_, text);
    else if (askInBox(*context_, text, profile.getWebsiteButtonLabel(), L"Close"))
        context_->gotoURL(profile.getWebsiteURL());
}

} // namespace skyvane
