#pragma once

#include <irrlicht.h>
#include <string>

namespace skyvane {

/// Is shown every entry of a tree by visitFiles.
class IFileOperator {
public:
    /// Each file and folder. `fullName` begins with the path that the walk was given.
    virtual void OnFileRead(const irr::core::stringc& name, const irr::core::stringc& fullName, unsigned size,
                            bool isDirectory) = 0;
    /// The walk has entered a folder; its entries follow.
    virtual void OnDirChange(const std::string&) {}
    virtual ~IFileOperator() = default;
};

} // namespace skyvane
