#include "displays/instruments/DialFactory.h"

#include "core/Context.h"
#include "core/geometry/Rectangles.h"
#include "core/ini/IniFile.h"
#include "core/text/Utf8.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/gauges/PanelOptions.h"
#include "gui/windows/IniEditor.h"

namespace skyvane {

bool DialFactory::askOptions(IniFile& ini, const std::string& section) {
    const std::wstring schema = decodeUtf8(options_);
    const std::vector<EditorRow> rows = parseEditorSchema(schema);
    IniFile options = readPanelOptions(rows, ini, section);
    IniEditor editor(context_, name_, schema, helpPage_);
    if (!editor.run(&options))
        return false;
    writePanelOptions(rows, options, ini, section);
    return true;
}

bool DialFactory::setup(IniFile* ini, std::string section) {
    if (options_ && !askOptions(*ini, section))
        return false;
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
    drawer->Draw(preview_.get(), previewRect(rect), &rect);
}

irr::core::rect<int> DialFactory::previewRect(const irr::core::rect<int>& rect) const {
    irr::core::rect<int> square = rect;
    return makeQuadratic(square);
}

} // namespace skyvane
