#pragma once

#include <cstddef>
#include <map>
#include <vector>

namespace skyvane {

/// Who uses which shared square target. Panels with different owners that never need the same slot share targets of the
/// same size, so that panels of different pages don't each pay for theirs. Knows targets only as keys.
class RenderTargetSharing {
public:
    /// A known target of that edge none of whose users has the same id or the same owner, with this user added; null
    /// when there is none.
    void* share(const void* owner, int id, int size);
    /// A new target with its first user.
    void add(void* target, const void* owner, int id, int size);
    /// Removes one user; unknown ones are ignored. True when the target has no user left and is forgotten: its maker
    /// destroys it.
    bool release(void* target, const void* owner, int id);
    size_t count() const { return targets_.size(); }

private:
    struct User {
        int id;
        const void* owner;
    };
    struct Target {
        int size;
        std::vector<User> users;
    };

    std::map<void*, Target> targets_;
};

} // namespace skyvane
