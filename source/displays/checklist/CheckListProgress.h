#pragma once

#include <cstddef>
#include <list>
#include <string>
#include <vector>

namespace skyvane {

/// How far a pilot has come in a checklist. Nothing of it is stored: a list is begun anew each time it is chosen.
class CheckListProgress {
public:
    static constexpr int none = -1;

    /// All items open, whatever was shown before.
    void begin(const std::list<std::string>& lines);
    /// The lines may have been edited: with others it begins anew, and gives true.
    bool update(const std::list<std::string>& lines);

    int getCount() const { return static_cast<int>(items_.size()); }
    /// UTF-8
    const std::string& getText(int item) const { return items_[static_cast<size_t>(item)].text; }
    bool isDone(int item) const { return items_[static_cast<size_t>(item)].done; }
    /// Done, or open again; out of range nothing.
    void toggle(int item);
    int getDoneCount() const;
    /// The first open item; none when all is done.
    int getNext() const;
    /// "3 of 12 done"; empty without items.
    std::wstring describe() const;

private:
    struct Item {
        std::string text;
        bool done = false;
    };

    std::vector<Item> items_;
};

/// Rows of different heights, one below the other, in pixels from the first one's top.
class RowStack {
public:
    void clear() { ends_.clear(); }
    void add(int height) { ends_.push_back(getHeight() + height); }
    int getHeight() const { return ends_.empty() ? 0 : ends_.back(); }
    int getTop(int row) const { return row > 0 ? ends_[static_cast<size_t>(row) - 1] : 0; }
    int getBottom(int row) const { return ends_[static_cast<size_t>(row)]; }
    /// The row at a place; -1 above the first and below the last.
    int at(int place) const;

private:
    std::vector<int> ends_;
};

} // namespace skyvane
