#pragma once

namespace skyvane {

/// What a terrain node loads from its file.
class ITerrainData {
public:
    virtual ~ITerrainData() = default;
};

} // namespace skyvane
