#include "displays/checklist/CheckListProgress.h"

#include <algorithm>

namespace skyvane {

void CheckListProgress::begin(const std::list<std::string>& lines) {
    items_.clear();
    for (const std::string& line : lines)
        items_.push_back({line, false});
}

bool CheckListProgress::update(const std::list<std::string>& lines) {
    const auto isSame = [](const Item& item, const std::string& line) { return item.text == line; };
    if (std::equal(items_.begin(), items_.end(), lines.begin(), lines.end(), isSame))
        return false;
    begin(lines);
    return true;
}

void CheckListProgress::toggle(int item) {
    if (item >= 0 && item < getCount())
        items_[static_cast<size_t>(item)].done = !isDone(item);
}

int CheckListProgress::getDoneCount() const {
    return static_cast<int>(std::count_if(items_.begin(), items_.end(), [](const Item& item) { return item.done; }));
}

int CheckListProgress::getNext() const {
    const auto open = std::find_if(items_.begin(), items_.end(), [](const Item& item) { return !item.done; });
    return open != items_.end() ? static_cast<int>(open - items_.begin()) : none;
}

std::wstring CheckListProgress::describe() const {
    if (items_.empty())
        return {};
    return std::to_wstring(getDoneCount()) + L" of " + std::to_wstring(getCount()) + L" done";
}

int RowStack::at(int place) const {
    if (place < 0 || place >= getHeight())
        return -1;
    return static_cast<int>(std::upper_bound(ends_.begin(), ends_.end(), place) - ends_.begin());
}

} // namespace skyvane
