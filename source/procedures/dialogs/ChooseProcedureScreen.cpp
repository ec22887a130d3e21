#include "procedures/dialogs/ChooseProcedureScreen.h"

#include "chart/store/IChartElementSource.h"
#include "core/Context.h"
#include "displays/PanelManager.h"
#include "gui/skin/Skin.h"
#include "gui/windows/Questions.h"
#include "procedures/dialogs/PreviewPane.h"
#include "procedures/dialogs/ProcedureDocuments.h"
#include "procedures/dialogs/SearchBoxHandler.h"
#include "procedures/framework/IProcedureFactory.h"

namespace skyvane {

ChooseProcedureScreen::ChooseProcedureScreen(Context& context, const IChartElement* destination, int id,
                                             bool keepsProcedure)
    : ProcedureScreen(
          context, {chooseProcedureLandscapeLayout, chooseProcedurePortraitLayout, "ProcedureDialog.hti", "bcancel"}),
      search_(*context.getPanelManager()->getSearchBoxHandler()) {
    Skin::setButtonStyle(element("bdirect"), "directNormal");
    PreviewPane::add(context, window(), gui().getSpecialRectangle("previewBox"),
                     [this](const irr::core::rect<int>& rect) { search_.renderPreview(rect); });
    SearchBoxElements elements;
    elements.edit = gui().get<irr::gui::IGUIEditBox>("edest");
    elements.list = gui().get<irr::gui::IGUIListBox>("ldest");
    elements.text = element("tdistbearing");
    elements.hint = element("thint");
    elements.here = gui().get<irr::gui::IGUICheckBox>("cpos");
    elements.recent = element("brecent");
    elements.nearest = element("bnrst");
    elements.direct = element("bdirect");
    elements.procedures = gui().get<irr::gui::IGUIListBox>("lprocedures");
    search_.init(destination, id, elements, keepsProcedure);
    updateButtons();
}

ChooseProcedureScreen::~ChooseProcedureScreen() {
    search_.release();
}

void ChooseProcedureScreen::updateButtons() {
    element("bnext")->setEnabled(search_.getSelectedProcedure() != nullptr);
    element("bdirect")->setEnabled(search_.isDirectPossible());
}

void ChooseProcedureScreen::onEvent(const irr::SEvent& event) {
    if (search_.processEvent(event))
        finish();
    else
        updateButtons();
}

bool ChooseProcedureScreen::onNext() {
    if (!search_.getSelectedProcedure())
        return false;
    IndicatedProcedure line = *search_.getSelectedProcedure();
    IChartElementSource* charts = context_.getCharts();
    const bool isHere = search_.isAtPresentPosition();
    const bool isWanted =
        line.factory->setup(line, charts && !isHere ? charts->getChartElement(line.chartIndex) : nullptr);
    made_ = isWanted ? line.factory->Create() : nullptr;
    if (!made_) {
        takeGlass();
        if (isWanted)
            tellInBox(context_, L"The charts don't know this place any more.");
        return false;
    }
    search_.finish();
    return true;
}

} // namespace skyvane
