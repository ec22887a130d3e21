#pragma once

#include <utility>

namespace skyvane {

/// Holds one reference to a reference-counted engine object and drops it at the end.
///
///     auto image = EngineRef<irr::video::IImage>::adopt(driver->createImage(...));   // takes over a create's
///     reference auto texture = EngineRef<irr::video::ITexture>::share(driver->getTexture(...)); // grabs one of its
///     own
template <class T>
class EngineRef {
public:
    EngineRef() = default;
    static EngineRef adopt(T* object) { return EngineRef(object); }
    static EngineRef share(T* object) {
        if (object)
            object->grab();
        return EngineRef(object);
    }
    ~EngineRef() { reset(); }
    EngineRef(const EngineRef& other) : object_(other.object_) {
        if (object_)
            object_->grab();
    }
    EngineRef(EngineRef&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    EngineRef& operator=(EngineRef other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    void reset() {
        if (object_)
            std::exchange(object_, nullptr)->drop();
    }

    T* get() const { return object_; }
    T* operator->() const { return object_; }
    T& operator*() const { return *object_; }
    explicit operator bool() const { return object_ != nullptr; }

private:
    explicit EngineRef(T* object) : object_(object) {}
    T* object_ = nullptr;
};

} // namespace skyvane
