#pragma once

#include "displays/IPanelFactory.h"
#include "displays/instruments/PanelTexture.h"

#include <memory>
#include <string>

namespace skyvane {

class Context;

/// What the factories of the round dials have in common: a preview image, and no settings unless one adds some.
class DialFactory : public IPanelFactory {
public:
    void loadSetupFromIni(IniFile*, std::string) override {}
    /// Has nothing to ask; writes that the panel takes the default sensor.
    bool setup(IniFile* ini, std::string section) override;
    std::string getName() override { return name_; }
    /// The preview image, or nothing without one.
    void renderPreview(irr::core::rect<int> rect) override;

protected:
    DialFactory(Context* context, const char* name, const char* previewPath)
        : context_(context), name_(name), previewPath_(previewPath) {}

    template <class Panel, class... Settings>
    std::unique_ptr<IPanel> make(const Settings&... settings) {
        auto panel = std::make_unique<Panel>(context_, settings...);
        panel->setFactory(this);
        return panel;
    }

    Context* context() const { return context_; }
    /// Where the preview image goes: the largest square.
    virtual irr::core::rect<int> previewRect(const irr::core::rect<int>& rect) const;

private:
    Context* context_;
    const char* name_;
    const char* previewPath_;
    bool previewLoaded_ = false;
    PanelTexture preview_;
};

} // namespace skyvane
