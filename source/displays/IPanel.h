#pragma once

#include <irrlicht.h>
#include <string>

namespace skyvane {

class Context;
struct ChartPosition;
class IPanelFactory;

/// A self-drawing instrument or map in a rectangle of a page. Made by its factory, owned by PanelManager, called on the
/// main thread, and only while its page is shown (notifications come always).
class IPanel {
public:
    /// Presets that maps know how to apply; the numbers are stored.
    enum OptimizedSettings {
        OPTIMIZED_DEFAULT, ///< What the panels' own settings say.
        OPTIMIZED_GLIDER,
        OPTIMIZED_VFR,
        OPTIMIZED_IFR,
        OPTIMIZED_IFR_HIGH,
        OPTIMIZED_NONE ///< No choice was stored; never applied.
    };

    virtual void OnPageChange() = 0;
    virtual void render(irr::core::rect<int> rect) = 0;
    /// False when the panel consumed the event.
    virtual bool processEvent(irr::SEvent event) = 0;
    virtual std::string getName() = 0;
    virtual void OnChartChanged() {}
    virtual void OnProcedureChanged() {}
    /// Hide any GUI elements that the panel has put on the screen.
    virtual void OnHideGUI() {}
    virtual void OnTerrainNodesDelete() {}
    virtual void OnTerrainMeshExchanged() {}
    virtual void OnWideTerrainNodesDelete() {}
    virtual void OnWideTerrainMeshExchanged() {}
    virtual void OnTerrainImageResult(const ChartPosition&, const ChartPosition&, irr::video::IImage*, bool, float,
                                      float, float) {}
    virtual void OnProcedureNodesDelete() {}
    virtual void OnProcedureMeshExchanged() {}
    virtual void applyOptimizedSettings(OptimizedSettings) {}
    virtual void OnFISDataChanged(bool) {}
    virtual ~IPanel() = default;

    /// The factory that made this panel; it outlives the panel.
    IPanelFactory* getFactory() const { return factory_; }
    void setFactory(IPanelFactory* factory) { factory_ = factory; }

protected:
    explicit IPanel(Context* context) : context_(context) {}
    Context* context_;

private:
    IPanelFactory* factory_ = nullptr;
};

} // namespace skyvane
