#include "displays/map/MapOptions.h"

#include "core/Context.h"
#include "core/ModalLoop.h"
#include "core/events/EventReceiver.h"
#include "core/text/Numbers.h"
#include "core/text/Utf8.h"
#include "displays/map/MapDocuments.h"
#include "gui/windows/GUI.h"
#include "gui/windows/Help.h"
#include "gui/windows/LayoutDocuments.h"
#include "gui/windows/WindowTools.h"

#include <algorithm>

namespace skyvane {
namespace {

constexpr const char* helpPage = "Map2DOptions.hti";
constexpr const wchar_t* backdropItems[] = {L"VFR", L"Low IFR", L"High IFR", L"None"};
constexpr int longestNose = 1000;
constexpr int highestFeet = 1000000;

struct CheckRow {
    const char* id;
    bool MapSwitches::*member;
};

constexpr CheckRow checkRows[] = {{"cterrain", &MapSwitches::terrainEnable},
                                  {"clowObstacles", &MapSwitches::lowObstacles},
                                  {"cchartElements", &MapSwitches::chartElements},
                                  {"cdescriptions", &MapSwitches::descriptions},
                                  {"cprivateAirports", &MapSwitches::privateAirports},
                                  {"cheliports", &MapSwitches::heliports},
                                  {"cglider", &MapSwitches::glider},
                                  {"cclosed", &MapSwitches::closed},
                                  {"ctaxiways", &MapSwitches::taxiways},
                                  {"chighways", &MapSwitches::highways},
                                  {"crailways", &MapSwitches::railways},
                                  {"cwater", &MapSwitches::water},
                                  {"ccoastline", &MapSwitches::coastlines},
                                  {"cborder", &MapSwitches::countryborders},
                                  {"csucceedingProcedures", &MapSwitches::succeedingProcedures},
                                  {"clowIFR", &MapSwitches::lowIFR},
                                  {"chighIFR", &MapSwitches::highIFR},
                                  {"cairways", &MapSwitches::airways},
                                  {"cairspaces", &MapSwitches::airspaces},
                                  {"cirrelevant", &MapSwitches::irrelevant},
                                  {"cmarks", &MapSwitches::marks}};

/// The window with the settings in it.
class OptionsWindow {
public:
    explicit OptionsWindow(Context& context) : context_(context) {
        irr::gui::IGUIEnvironment* environment = context.getIrrlichtDevice()->getGUIEnvironment();
        IniFile document = readLayout(context.isPortrait() ? mapOptionsPortraitLayout : mapOptionsLandscapeLayout);
        window_ = EngineRef<irr::gui::IGUIWindow>::share(addWindowForRatio(
            environment, &document, environment->getRootGUIElement()->getAbsolutePosition(), true, nullptr, -1));
        gui_ = std::make_unique<GUI>(environment, &document, windowArea(window_.get()), window_.get(), false);
        prepareHelpButton(&context, gui_->getElement("boptHelp"), helpPage);
        if (auto* box = backdropBox())
            for (const wchar_t* item : backdropItems)
                box->addItem(item);
    }
    ~OptionsWindow() {
        gui_.reset();
        removeWindow(window_.get());
    }
    OptionsWindow(const OptionsWindow&) = delete;
    OptionsWindow& operator=(const OptionsWindow&) = delete;

    void put(const MapSettings& settings) {
        for (const CheckRow& row : checkRows)
            check(row.id, settings.switches.*row.member);
        check("cnose", settings.drawNose);
        write("enose", settings.noseLength);
        write("eairspaces", settings.airspacesBelow);
        write("etraffic", settings.trafficFilterAlt);
        if (auto* box = backdropBox())
            box->setSelected(static_cast<int>(settings.bgType));
    }

    void take(MapSettings& settings) const {
        for (const CheckRow& row : checkRows)
            settings.switches.*row.member = isChecked(row.id, settings.switches.*row.member);
        settings.drawNose = isChecked("cnose", settings.drawNose);
        settings.noseLength = read("enose", settings.noseLength, 0, longestNose);
        settings.airspacesBelow = read("eairspaces", settings.airspacesBelow, -highestFeet, highestFeet);
        settings.trafficFilterAlt = read("etraffic", settings.trafficFilterAlt, 0, highestFeet);
        if (auto* box = backdropBox())
            settings.bgType = static_cast<MapBackdrop>(std::clamp(box->getSelected(), 0, 3));
    }

    /// True when "Ok" ended it.
    bool run() {
        irr::gui::IGUIElement* former = context_.getEvents()->getBackButton();
        context_.getEvents()->setBackButton(gui_->getElement("boptCancel"));
        bool isOpen = true, isOk = false;
        ModalLoop loop(*context_.getFrames(), {[&](const irr::SEvent& event) {
            if (event.EventType == irr::EET_GUI_EVENT)
                gui_->Update(event.GUIEvent);
            if (isClickOf(event, gui_->getElement("boptHelp")))
                showHelp(&context_, helpPage);
            isOk = isClickOf(event, gui_->getElement("boptOk"));
            if (isOk || isClickOf(event, gui_->getElement("boptCancel")))
                isOpen = false;
        }});
        const bool answered = loop.run([&isOpen] { return isOpen; });
        context_.getEvents()->setBackButton(former);
        return answered && isOk;
    }

private:
    irr::gui::IGUIComboBox* backdropBox() const { return gui_->get<irr::gui::IGUIComboBox>("cbackground"); }
    irr::gui::IGUICheckBox* box(const char* id) const { return gui_->get<irr::gui::IGUICheckBox>(id); }
    void check(const char* id, bool on) {
        if (box(id))
            box(id)->setChecked(on);
    }
    bool isChecked(const char* id, bool fallback) const { return box(id) ? box(id)->isChecked() : fallback; }
    void write(const char* id, int value) {
        if (irr::gui::IGUIElement* edit = gui_->getElement(id))
            edit->setText(decodeUtf8(toText(value)).c_str());
    }
    int read(const char* id, int fallback, int lowest, int highest) const {
        const irr::gui::IGUIElement* edit = gui_->getElement(id);
        return edit ? std::clamp(toInt(encodeUtf8(edit->getText()), fallback), lowest, highest) : fallback;
    }

    Context& context_;
    EngineRef<irr::gui::IGUIWindow> window_;
    std::unique_ptr<GUI> gui_;
};

} // namespace

bool askMapOptions(Context& context, MapSettings& settings) {
    OptionsWindow window(context);
    window.put(settings);
    if (!window.run())
        return false;
    window.take(settings);
    return true;
}

} // namespace skyvane
