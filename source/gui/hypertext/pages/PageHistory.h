#pragma once

#include <string>
#include <vector>

namespace skyvane {

/// The pages that were looked at, backward and forward. Remembers the last so many.
class PageHistory {
public:
    /// Leaves the current page for a new one: the way forward is forgotten. An empty current page isn't remembered.
    void leave(const std::string& current);
    /// The page before or after the current one, which takes its place on the other list; empty when there is none.
    std::string goBackwards(const std::string& current);
    std::string goForwards(const std::string& current);
    bool hasBackward() const { return !backward_.empty(); }
    bool hasForward() const { return !forward_.empty(); }
    void clear();

    static constexpr size_t longest = 200;

private:
    std::vector<std::string> backward_;
    std::vector<std::string> forward_;
};

/// Whether a name that a page gives (of a page or a picture) stays within the page's folder: relative, in plain
/// letters, without "..".
bool isNameWithinFolder(const std::string& name);

} // namespace skyvane
