#pragma once

#include "chart/elements/AirportElement.h"
#include "chart/elements/AirwayElement.h"
#include "chart/elements/VORElement.h"
#include "chart/store/ChartSetWriter.h"
#include "chart/store/SetDescription.h"
#include "core/Factories.h"
#include "core/files/Paths.h"
#include "displays/PanelManager.h"
#include "gui/windows/DialogFixture.h"
#include "procedures/ProcedureManager.h"
#include "sensors/SensorManager.h"

#include <fstream>

namespace skyvane {

/// The dialogs of procedures over charts of four airports and a navaid with airways, clicked through.
class ProcedureDialogs : public DialogFixture {
public:
    // Ids, by the order in which they are written.
    enum { Field, Meadow, Nowhere, Pad, Navaid };

    void SetUp() override {
        DialogFixture::SetUp();
        if (!context)
            return;
        installCharts();
        registerSensorFactories(*context, *context->getSensorManager());
        registerProcedureFactories(*context, plan());
        IniFile ini;
        ini.set("", "optimized", "0");
        context->getPanelManager()->loadPanelSettingsFromIni(&ini, nullptr, false, false);
        context->getSensorManager()->loadSensorSettingsFromIni(&ini, false);
    }
    ProcedureManager& plan() { return *context->getProcedureManager(); }
    /// 20 NM south of the field, at 3000 ft, heading north east.
    void fly() { context->getSensorManager()->startSimulation({9.0, 48.67}, 45, 3000); }

    void installCharts() {
        const std::string set = context->getPath("ChartData/V");
        ASSERT_TRUE(makePath(set));
        ChartSetWriter writer(set);
        writer.add(field("FELD", "Field", 49.0, 530));
        AirportElement meadow = field("MEDW", "Meadow", 49.2, 700);
        meadow.accuracy = 1;
        meadow.runways[0].lengthFeet = 0;
        for (RunwayEnd& end : meadow.runways[0].ends)
            end.isThresholdKnown = false;
        writer.add(meadow);
        writer.add(field("NOWH", "Nowhere", 49.4, AirportElement::UnknownElevation));
        AirportElement pad = field("HELI", "Pad", 48.7, 100);
        pad.isHeliport = true;
        writer.add(pad);
        VORElement vor;
        vor.ident = "SKY";
        vor.name = "SKYVANE";
        vor.position = {9.1, 48.9};
        writer.add(vor);
        for (const double latitude : {48.4, 49.4}) {
            AirwayElement airway;
            airway.name = latitude < 49.0 ? "T21" : "L6";
            airway.start = {9.1, latitude};
            airway.end = vor.position;
            writer.add(airway);
        }
        ASSERT_TRUE(writer.finish());
        ASSERT_TRUE((SetDescription{1, "V", "V", "V"}.save(set + ".sci")));
    }
    static AirportElement field(const std::string& ident, const std::string& name, double latitude, int elevation) {
        AirportElement airport;
        airport.position = {9.0, latitude};
        airport.ident = ident;
        airport.name = name;
        airport.elevationFeet = elevation;
        airport.accuracy = 3;
        Runway runway;
        runway.lengthFeet = 3000;
        runway.widthFeet = 75;
        runway.directionDegrees = 90;
        runway.accuracy = 3;
        for (const bool first : {true, false}) {
            RunwayEnd& end = runway.ends[first ? 0 : 1];
            end.name = first ? "09" : "27";
            end.isThresholdKnown = true;
            end.threshold = {first ? 8.994 : 9.006, latitude};
        }
        airport.runways = {runway};
        return airport;
    }

    /// The steps that a pilot takes, one in each second frame.
    ProcedureDialogs& step(std::function<void()> action) {
        script->then(std::move(action));
        return *this;
    }
    ProcedureDialogs& press(const std::wstring& text) {
        return step([this, text] { click(text); });
    }
    ProcedureDialogs& type(const std::string& letters) {
        return step([this, letters] {
            for (const char letter : letters)
                key(static_cast<irr::u32>(letter - 'a') + irr::KEY_KEY_A, static_cast<wchar_t>(letter));
            key(irr::KEY_RETURN); // takes the keys from the screen
        });
    }
    /// Of the lists from the left and from above.
    ProcedureDialogs& choose(std::size_t list, int row) {
        return step([this, list, row] {
            const auto lists = visible(irr::gui::EGUIET_LIST_BOX);
            ASSERT_LT(list, lists.size());
            const irr::core::recti place = lists[list]->getAbsolutePosition();
            const int height = environment->getSkin()->getSize(irr::gui::EGDS_BUTTON_HEIGHT);
            clickAt({place.getCenter().X - place.getWidth() / 4, place.UpperLeftCorner.Y + row * height + height / 2});
        });
    }
    /// Replaces what an edit box holds.
    ProcedureDialogs& enter(const std::wstring& former, const std::wstring& text) {
        return step([this, former, text] {
            irr::gui::IGUIElement* box = findText(root, former);
            ASSERT_NE(nullptr, box) << irr::core::stringc(former.c_str()).c_str();
            box->setText(text.c_str());
            environment->setFocus(box);
            key(irr::KEY_END);
            key(irr::KEY_KEY_0, L'0');
            key(irr::KEY_BACK);
            key(irr::KEY_RETURN);
        });
    }
    ProcedureDialogs& look(const std::string& name) {
        return step([this, name] {
            picture(name);
            expectTidy();
        });
    }
    bool fillPlan() { return plan().newProcedure(); }

    /// Elements of that kind that can be seen.
    std::vector<irr::gui::IGUIElement*> visible(irr::gui::EGUI_ELEMENT_TYPE type) const {
        std::vector<irr::gui::IGUIElement*> found;
        collect(root, type, found);
        return found;
    }
    static void collect(irr::gui::IGUIElement* element, irr::gui::EGUI_ELEMENT_TYPE type,
                        std::vector<irr::gui::IGUIElement*>& found) {
        if (!element->isVisible())
            return;
        if (element->getType() == type)
            found.push_back(element);
        for (irr::gui::IGUIElement* child : element->getChildren())
            collect(child, type, found);
    }
    /// Nothing of the window overlaps, is cut by its place, or too small for a finger.
    void expectTidy() const {
        const auto windows = visible(irr::gui::EGUIET_WINDOW);
        ASSERT_EQ(windows.size(), 1u) << "what lies beneath is hidden";
        const auto* hint = findText(root, L"Type an identifier or a name, or press \"Recent\" or \"Nrst\".");
        std::vector<irr::gui::IGUIElement*> shown;
        for (irr::gui::IGUIElement* child : windows[0]->getChildren())
            if (child->isVisible() && child != hint)
                shown.push_back(child);
        const irr::core::recti inside = windows[0]->getAbsolutePosition();
        for (std::size_t i = 0; i < shown.size(); ++i) {
            const std::string name = nameOf(shown[i]);
            const irr::core::recti place = shown[i]->getAbsolutePosition();
            irr::core::recti cut = place;
            cut.clipAgainst(inside);
            EXPECT_TRUE(cut == place) << name << " beyond the window";
            for (std::size_t j = 0; j < i; ++j) {
                irr::core::recti other = shown[j]->getAbsolutePosition();
                other.clipAgainst(place);
                EXPECT_FALSE(other.getWidth() > 0 && other.getHeight() > 0) << name << " over " << nameOf(shown[j]);
            }
            expectRoom(shown[i], name);
        }
    }
    void expectRoom(const irr::gui::IGUIElement* element, const std::string& name) const {
        const irr::core::recti place = element->getAbsolutePosition();
        irr::gui::IGUIFont* font = environment->getSkin()->getFont();
        if (element->getType() == irr::gui::EGUIET_BUTTON) {
            EXPECT_GE(place.getHeight(), context->getRecommendedButtonHeight()) << name;
            EXPECT_LE(static_cast<int>(font->getDimension(element->getText()).Width), place.getWidth() - 8) << name;
        }
        if (element->getType() != irr::gui::EGUIET_STATIC_TEXT)
            return;
        const auto* text = static_cast<const irr::gui::IGUIStaticText*>(element);
        EXPECT_LE(text->getTextHeight(), place.getHeight()) << name;
        EXPECT_LE(text->getTextWidth(), place.getWidth()) << name;
    }
    static std::string nameOf(const irr::gui::IGUIElement* element) {
        return std::string(irr::core::stringc(element->getText()).c_str()) + " (" + std::to_string(element->getType()) +
               ")";
    }

    /// What a document of flight plans says of the current procedure.
    std::string saved(const std::string& key) {
        IniFile document;
        plan().getCurrentProcedure()->insertInIni(context->getCharts(), &document, "", 0);
        return document.get("", "proc[0]." + key);
    }
    std::vector<int> recent() const {
        std::ifstream file(context->getPath("data/recent"), std::ios::binary);
        std::vector<int> ids(15);
        file.read(reinterpret_cast<char*>(ids.data()), 60);
        return file ? ids : std::vector<int>();
    }
};

} // namespace skyvane
