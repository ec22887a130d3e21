#pragma once

#include "displays/IPanelFactory.h"
#include "displays/instruments/PanelTexture.h"

#include <memory>
#include <string>

namespace skyvane {

class Context;

/// What the factories of the instruments have in common: a preview image, and options where a schema names some.
class DialFactory : public IPanelFactory {
public:
    void loadSetupFromIni(IniFile*, std::string) override {}
    /// Asks for the options of the schema, and writes that the panel takes the default sensor.
    bool setup(IniFile* ini, std::string section) override;
    bool hasOptions() const override { return options_ != nullptr; }
    std::string getName() override { return name_; }
    /// The preview image, or nothing without one.
    void renderPreview(irr::core::rect<int> rect) override;

protected:
    /// `options` is a schema of an IniEditor, `helpPage` the page of the manual that tells of them; null without.
    DialFactory(Context* context, const char* name, const char* previewPath, const char* options = nullptr,
                const char* helpPage = nullptr)
        : context_(context), name_(name), previewPath_(previewPath), options_(options), helpPage_(helpPage) {}

    template <class Panel, class... Settings>
    std::unique_ptr<IPanel> make(const Settings&... settings) {
        auto panel = std::make_unique<Panel>(context_, settings...);
        panel->setFactory(this);
        return panel;
    }

    Context* context() const { return context_; }
    /// Where the preview image goes: the largest square. What reaches beyond the rectangle is cut.
    virtual irr::core::rect<int> previewRect(const irr::core::rect<int>& rect) const;

private:
    bool askOptions(IniFile& ini, const std::string& section);

    Context* context_;
    const char* name_;
    const char* previewPath_;
    const char* options_;
    const char* helpPage_;
    bool previewLoaded_ = false;
    PanelTexture preview_;
};

} // namespace skyvane
