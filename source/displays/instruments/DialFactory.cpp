#include "displays/instruments/DialFactory.h"

#include "core/Context.h"
#include "core/geometry/Rectangles.h"
#include "core/ini/IniFile.h"
#include "displays/drawing/Drawer2D.h"

namespace skyvane {

bool DialFactory::setup(IniFile* ini, std::string section) {
    ini->set(section, "SensorCount", "1");
    ini->set(section, "Sensor0", "-1");
    return true;
}

void DialFactory::renderPreview(irr::core::rect<int> rect) {
    Drawer2D* drawer = context_->getDrawer();
    if (!previewLoaded_) {
        preview_ = PanelTexture(drawer->getDevice()->getVideoDriver(), context_->getPath(previewPath_));
        previewLoaded_ = true;
    }
    drawer->Draw(preview_.get(), previewRect(rect));
}

irr::core::rect<int> DialFactory::previewRect(const irr::core::rect<int>& rect) const {
    irr::core::rect<int> square = rect;
    return makeQuadratic(square);
}

} // namespace skyvane
