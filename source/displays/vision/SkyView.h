#pragma once

#include "core/engine/EngineRef.h"
#include "displays/instruments/PanelTexture.h"

#include <array>
#include <irrlicht.h>

namespace skyvane {

class Context;
class SceneStage;

/// The sky above the horizon and plain ground below it, all around the eye. Where there is no terrain this is what
/// tells up from down, so that the horizon is an edge, and exact.
class SkyView {
public:
    explicit SkyView(Context* context);

    /// Behind everything: what has been drawn stays. Without `textured` in two plain colours.
    void draw(SceneStage& stage, bool textured);

private:
    enum Part { Above, Side, LowSide, Below, PartCount };

    struct Piece {
        EngineRef<irr::scene::SMeshBuffer> mesh;
        irr::video::SMaterial pictured, plain;
    };
    PanelTexture front_, top_, bottom_;
    std::array<Piece, PartCount> pieces_;
};

} // namespace skyvane
