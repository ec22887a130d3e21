#include "gui/keys/EditBoxId.h"

namespace skyvane {

EditBoxMarking markingOf(int id) {
    switch (id) {
    case IntegerEdit:
    case DecimalEdit:
    case DestinationEdit:
        return {true, true};
    case StringEdit:
        return {true, false};
    default:
        return {};
    }
}

} // namespace skyvane
