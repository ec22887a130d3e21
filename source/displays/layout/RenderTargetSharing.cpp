#include "displays/layout/RenderTargetSharing.h"

#include <algorithm>

namespace skyvane {

void* RenderTargetSharing::share(const void* owner, int id, int size) {
    for (auto& entry : targets_) {
        Target& target = entry.second;
        const bool taken = std::any_of(target.users.begin(), target.users.end(),
                                       [&](const User& user) { return user.id == id || user.owner == owner; });
        if (target.size != size || taken)
            continue;
        target.users.push_back({id, owner});
        return entry.first;
    }
    return nullptr;
}

void RenderTargetSharing::add(void* target, const void* owner, int id, int size) {
    targets_[target] = {size, {{id, owner}}};
}

bool RenderTargetSharing::release(void* target, const void* owner, int id) {
    const auto found = targets_.find(target);
    if (found == targets_.end())
        return false;
    std::vector<User>& users = found->second.users;
    const auto user = std::find_if(users.begin(), users.end(),
                                   [&](const User& other) { return other.id == id && other.owner == owner; });
    if (user == users.end())
        return false;
    users.erase(user);
    if (!users.empty())
        return false;
    targets_.erase(found);
    return true;
}

} // namespace skyvane
