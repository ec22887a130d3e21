#pragma once

#include <string>

namespace irr {
class IrrlichtDevice;
}

namespace skyvane {

class Drawer2D;
class FlexibleFont;
class IMultiEventReceiver;

/// The application as the toolkit sees it. Main thread only, but for getPath.
class ICommonAppContext {
public:
    virtual ~ICommonAppContext() = default;
    virtual IMultiEventReceiver* getEventReceiver() = 0;
    virtual Drawer2D* getDrawer() = 0;
    virtual irr::IrrlichtDevice* getIrrlichtDevice() = 0;
    /// The panel font; null before it is loaded.
    virtual FlexibleFont* getFlexibleFont() = 0;
    /// Pixels of a touch-sized button.
    virtual int getRecommendedButtonWidth() = 0;
    virtual int getRecommendedButtonHeight() = 0;
    /// The absolute path of a path of the program's (media/..., data/..., Logs/...).
    virtual std::string getPath(const std::string& path) = 0;
    virtual void setSoftInputVisibility(bool visible) = 0;
    virtual void gotoURL(const std::string& url) = 0;
};

} // namespace skyvane
