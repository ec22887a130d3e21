#pragma once

#include <memory>
#include <string>
#include <vector>

namespace skyvane {

class ApproachProcedureFactory;
class IApproach;

/// A way of flying an approach that a pilot can choose.
class IApproachProfile {
public:
    virtual ~IApproachProfile() = default;
    /// Sets the factory's values to those that suit the profile.
    virtual void setGUI(ApproachProcedureFactory* factory) const = 0;
    /// From the factory's runway and values; null when the charts don't have them any more.
    virtual std::unique_ptr<IApproach> create(ApproachProcedureFactory* factory) const = 0;
    virtual const std::wstring& getLabel() const = 0;
};

class AApproachProfile : public IApproachProfile {
public:
    AApproachProfile(int finalLengthMiles, std::wstring label)
        : finalLengthMiles_(finalLengthMiles), label_(std::move(label)) {}

    void setGUI(ApproachProcedureFactory* factory) const override;
    const std::wstring& getLabel() const override { return label_; }

private:
    int finalLengthMiles_;
    std::wstring label_;
};

/// Straight in, from so many nautical miles.
class LongFinal : public AApproachProfile {
public:
    explicit LongFinal(int finalLengthMiles);
    std::unique_ptr<IApproach> create(ApproachProcedureFactory* factory) const override;
};

class TrafficPattern : public AApproachProfile {
public:
    TrafficPattern(int finalLengthMiles, bool isLeftTraffic);
    std::unique_ptr<IApproach> create(ApproachProcedureFactory* factory) const override;

private:
    bool isLeftTraffic_;
};

/// All, in the order of the dialog.
std::vector<std::unique_ptr<const IApproachProfile>> makeApproachProfiles();

} // namespace skyvane
