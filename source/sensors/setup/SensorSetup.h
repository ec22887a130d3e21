#pragma once

#include "gui/windows/GUI.h"
#include "sensors/SensorSelection.h"

#include <irrlicht.h>
#include <memory>

namespace skyvane {

class Context;
class IniFile;

/// The screen on which the pilot chooses the sensors: in its simple form the one that gives all data, in its advanced
/// form several, and which of them gives what. Main thread only.
class SensorSetup {
public:
    /// The context outlives the screen, and runs frames already.
    explicit SensorSetup(Context* context) : context_(context) {}

    /// Comes back when the pilot is done; sensors and instruments go on meanwhile. After "Ok" the document has the
    /// choice, and the answer is true; after "Cancel" it is as it was.
    bool run(IniFile* document);

private:
    struct Action {
        const char* button;
        void (SensorSetup::*run)();
    };
    static const Action actions[];

    void build();
    void onEvent(const irr::SEvent& event);
    void add();
    void useOne();
    void edit();
    void editUsed();
    void remove();
    void useForAll();
    void chooseDefault();
    void calibrate();
    void goAdvanced();
    void help();
    void cancel() { open_ = false; }
    void accept();

    void show();
    void showSensors();
    void showTypes();
    void showDefaultOfType();
    void enableButtons();
    std::wstring usedText() const;

    template <class Element>
    Element* get(const char* id) const {
        return gui_->get<Element>(id);
    }
    /// A place in the factory list, -1 for none; a sensor's number, 0 for none; a type, -1 for none.
    int chosenFactory() const;
    int chosenSensor() const;
    int chosenType() const;

    Context* context_;
    irr::gui::IGUIWindow* window_ = nullptr;
    std::unique_ptr<GUI> gui_;
    std::unique_ptr<SensorSelection> selection_; ///< While the screen is open, as the window is.
    bool advanced_ = false;
    bool changed_ = false; ///< The running sensors aren't those of the document any more.
    bool open_ = false;
    bool accepted_ = false;
};

} // namespace skyvane
