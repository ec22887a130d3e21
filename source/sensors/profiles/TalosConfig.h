#pragma once

#include "sensors/profiles/GDL90Config.h"

namespace skyvane {

/// A receiver of Talos Avionics, which speaks GDL 90 with extensions of its own.
class TalosConfig : public GDL90Config {
public:
    explicit TalosConfig(const ProfileParts& parts) : GDL90Config(parts) {}
    std::wstring getName() override { return L"TalosAvionics Device"; }
    std::wstring getDescription() override {
        return L"Position, attitude, traffic and weather come from a device of Talos Avionics.\n"
               L"Connect this device to its network first.";
    }

protected:
    std::string flavor() const override { return "Talos"; }
};

} // namespace skyvane
