#pragma once

#include "core/geometry/EngineMath.h"
#include "procedures/framework/IProcedure.h"
#include "procedures/framework/IndicatedProcedure.h"

#include <list>
#include <memory>
#include <string>

namespace skyvane {

class IChartElement;

/// Makes the procedures of one kind: what it can do for a chart element, and procedures from what the pilot has told it
/// or from documents. Factories live as long as the program; they make procedures, which point back to them.
///
/// Dialogs and drawing stand on the upper floor: a factory there derives from the one below and brings setup and
/// renderPreview, which fill the values that Create uses.
class IProcedureFactory {
public:
    /// For an element, null for none, and its id.
    virtual std::list<IndicatedProcedure> getPossibleProcedures(IChartElement*, int) { return {}; }
    virtual bool areProceduresPossible(IChartElement*) { return false; }
    /// With the values that were set up last.
    virtual std::unique_ptr<IProcedure> Create() = 0;
    /// Null when the document doesn't tell what can be flown. The charts may be null.
    virtual std::unique_ptr<IProcedure> CreateFromIni(IChartElementSource* charts, IniFile* document,
                                                      const std::string& section, unsigned index) = 0;
    /// Identifies the factory in saved plans.
    virtual std::string getName() = 0;
    virtual IProcedure::Type getType() = 0;
    /// Asks the pilot; false when he doesn't want the procedure after all. The element may be null.
    virtual bool setup(IndicatedProcedure&, IChartElement*) { return false; }
    /// Draws what the line stands for into a rectangle of the screen.
    virtual void renderPreview(IndicatedProcedure*, irr::core::rect<int>) {}
    virtual ~IProcedureFactory() = default;
};

} // namespace skyvane
