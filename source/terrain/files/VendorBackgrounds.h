#pragma once

#include "chart/areas/IArea.h"
#include "chart/names/Trie.h"

#include <list>
#include <string>

namespace skyvane {

/// One loaded list of background tiles: which there are, and where their pictures lie. Main thread only.
class VendorBackgrounds {
public:
    /// Reads the file. The images folder comes with a slash at its end.
    VendorBackgrounds(const std::string& path, const std::string& imagesFolder);

    /// False for a list that can't be read, or whose vendor has no folder: it has no tiles.
    bool isGood() const { return !folder_.empty(); }
    /// Made here from the tiles of the others.
    bool isCommon() const { return common_; }
    const std::string& getBgFilePath() const { return path_; }
    /// With a slash at its end.
    const std::string& getFolderPath() const { return folder_; }
    const std::string& getVendor() const { return vendor_; }
    IArea::BgType getBgType() const { return type_; }

    /// Whether the list is of that type and has the tile.
    bool isBackgroundTextureLoadable(IArea::BgType type, int area) const;
    /// Where the picture of a tile of the list lies.
    std::string getTilePath(int area) const;
    /// The numbers of the tiles.
    std::list<int> calculateLeafList() const { return tiles_.getAllElements(); }
    /// Removes the file and the pictures of its tiles.
    void deleteFromStorage() const;

private:
    std::string path_;
    std::string folder_;
    std::string vendor_;
    IArea::BgType type_ = IArea::IFR_HIGH;
    bool common_ = false;
    Trie tiles_; ///< Under its number as text, each tile once.
};

} // namespace skyvane
