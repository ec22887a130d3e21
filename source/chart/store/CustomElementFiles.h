#pragma once

#include <memory>
#include <string>

namespace skyvane {

class IniFile;

/// The documents of the user's own elements, e-1.ini, e-2.ini, ... of one folder, without gaps. The number in the name
/// is the element's id. Nothing is ever half written, and no document of the user's is overwritten by another one.
class CustomElementFiles {
public:
    /// With a slash at its end. It is made when something is saved.
    explicit CustomElementFiles(std::string folder) : folder_(std::move(folder)) {}

    /// Null when there is no such file.
    std::unique_ptr<IniFile> load(int id) const;
    /// In place of the element that has the id.
    bool replace(const IniFile& document, int id) const;
    /// As a new element. A file of that name, which the program couldn't read, is kept under another.
    bool add(const IniFile& document, int id) const;
    /// The last element takes the place of the one that goes.
    bool remove(int id, int lastId) const;

private:
    std::string pathOf(int id) const;

    std::string folder_;
};

} // namespace skyvane
