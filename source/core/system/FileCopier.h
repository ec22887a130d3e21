#pragma once

#include "core/files/FileMoving.h"
#include "core/system/IFileOperator.h"

#include <list>
#include <string>

namespace skyvane {

/// Notes source and target of each file of a tree, and makes the target folders on the way. Copies nothing itself.
class FileCopier : public IFileOperator {
public:
    /// Both without a trailing slash; `from` as it is given to visitFiles.
    FileCopier(std::string from, std::string to) : from_(std::move(from)), to_(std::move(to)) {}

    void OnFileRead(const irr::core::stringc& name, const irr::core::stringc& fullName, unsigned size,
                    bool isDirectory) override;
    void OnDirChange(const std::string& path) override;
    const std::list<FilePair>& getPairs() const { return pairs_; }

private:
    std::string targetOf(const std::string& path) const { return to_ + path.substr(from_.size()); }

    std::string from_;
    std::string to_;
    std::list<FilePair> pairs_;
};

} // namespace skyvane
