#include "gui/menu/ProcedureEditor.h"

#include "core/Context.h"
#include "core/text/Utf8.h"
#include "gui/windows/IniEditor.h"
#include "gui/windows/Questions.h"
#include "procedures/ProcedureManager.h"
#include "procedures/plan/ProcedureForm.h"

#include <string>
#include <vector>

namespace skyvane {
namespace {

constexpr const char* helpFile = "FlightPlan.hti";

/// False when the pilot gave up.
bool fillIn(Context& context, const std::string& title, ProcedureForm& form) {
    std::vector<std::string> keys, labels, standards;
    std::vector<IniEditor::ValueType> types;
    for (const ProcedureForm::Row& row : form.getRows()) {
        keys.emplace_back(row.key);
        labels.emplace_back(row.label);
        standards.emplace_back();
        types.push_back(row.kind == ProcedureForm::Kind::Flag ? IniEditor::ValueType::BOOLEAN
                                                              : IniEditor::ValueType::DOUBLE);
    }
    for (;;) {
        IniEditor editor(&context, title, static_cast<int>(keys.size()), keys.data(), labels.data(), standards.data(),
                         types.data(), helpFile);
        if (!editor.run(&form.values))
            return false;
        const std::string trouble = form.findTrouble();
        if (trouble.empty())
            return true;
        tellInBox(context, decodeUtf8(trouble));
    }
}

} // namespace

void editCurrentProcedure(Context& context) {
    ProcedureManager* procedures = context.getProcedureManager();
    IProcedure* const asked = procedures->getCurrentProcedure();
    if (!asked->getFactory())
        return;
    ProcedureForm form(*asked, context.getCharts());
    if (!fillIn(context, asked->getName(), form))
        return;
    const bool isThere = procedures->changeProcedure(asked, [&] {
        if (std::unique_ptr<IProcedure> changed = form.create(context.getCharts()))
            procedures->replaceCurrentProcedure(std::move(changed));
    });
    if (isThere)
        procedures->calculateCourseList();
}

} // namespace skyvane
