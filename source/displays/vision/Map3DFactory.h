#pragma once

#include "displays/instruments/DialFactory.h"
#include "displays/visionmath/VisionSettings.h"

namespace skyvane {

class Map3DFactory : public DialFactory {
public:
    explicit Map3DFactory(Context* context);

    void loadSetupFromIni(IniFile* ini, std::string section) override;
    std::unique_ptr<IPanel> Create() override;

protected:
    irr::core::rect<int> previewRect(const irr::core::rect<int>& rect) const override { return rect; }

private:
    VisionSettings settings_;
    std::string section_;
};

} // namespace skyvane
