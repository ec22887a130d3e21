#pragma once

#include "core/ini/IniFile.h"
#include "procedures/framework/IProcedure.h"

#include <string>
#include <vector>

namespace skyvane {

/// The values of one procedure as a form that a pilot fills in, in his units: the keys of a saved plan behind it, so
/// that a procedure that was made from the form is the one that a plan with these values would bring.
///
///     ProcedureForm form(procedure, charts);
///     do ask(form.getRows(), form.values); while (!(trouble = form.findTrouble()).empty());
///     auto changed = form.create(charts);
///
/// Main thread only.
class ProcedureForm {
public:
    enum class Kind { Number, Flag };
    struct Row {
        const char* key;   ///< Of the procedure in a saved plan, and of `values`.
        const char* label; ///< With the unit.
        Kind kind;
        double unit;   ///< Of the form, in the unit of the plan.
        double offset; ///< In the unit of the form, what the plan has more.
        double least, most;
        bool isOptional = false; ///< Nothing entered means that the plan shall choose.
    };

    /// The procedure is one that a factory made. The charts may be null.
    ProcedureForm(IProcedure& procedure, IChartElementSource* charts);

    const std::vector<Row>& getRows() const { return rows_; }
    /// What is wrong with the values, in words for the pilot; empty when nothing is.
    std::string findTrouble();
    /// The procedure with the values; null when it can't be made.
    std::unique_ptr<IProcedure> create(IChartElementSource* charts);

    IniFile values; ///< In the unnamed section.

private:
    bool has(const char* key) const;
    void fill();

    IProcedureFactory* factory_;
    IniFile plan_;
    std::vector<Row> rows_;
};

} // namespace skyvane
