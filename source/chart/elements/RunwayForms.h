#pragma once

#include "chart/elements/IniForms.h"
#include "chart/elements/RecordForms.h"
#include "chart/elements/Runway.h"

namespace skyvane {

template <class Self, class Form>
void Approach::record(Self& self, Form& form) {
    form.text(self.name);
    form.number(self.frequency.megahertz);
    form.number(self.frequency.kilohertz);
}

template <class Self, class Form>
void Runway::record(Self& self, Form& form) {
    form.number(self.surface);
    form.number(self.lengthFeet);
    form.number(self.widthFeet);
    form.number(self.directionDegrees);
    for (auto& end : self.ends)
        form.number(end.trafficPattern);
    form.flag(self.hasLights);
    for (auto& end : self.ends) {
        form.longitudeFirst(end.threshold);
        form.flag(end.isThresholdKnown);
    }
    for (auto& end : self.ends) {
        form.number(end.elevationFeet);
        form.flag(end.isElevationKnown);
    }
    for (auto& end : self.ends) {
        form.number(end.slopeDegrees);
        form.flag(end.isSlopeKnown);
    }
    for (auto& end : self.ends)
        form.text(end.name);
    for (auto& end : self.ends)
        form.objects(end.approaches, Approach::LeastRecordBytes);
    form.number(self.accuracy);
}

/// The keys of an approach, as "App0[3].Name".
inline std::string approachKey(const std::string& end, size_t index, const char* key) {
    return "App" + end + "[" + std::to_string(index) + "]." + key;
}

template <class Self, class Form>
void documentApproaches(Self& approaches, const std::string& end, Form& form) {
    const std::string countKey = "App" + end + "Cnt";
    if constexpr (Form::Reads) {
        approaches.resize(form.count(countKey, [&](size_t i) {
            return form.has(approachKey(end, i, "Name")) || form.has(approachKey(end, i, "MHZ")) ||
                   form.has(approachKey(end, i, "KHZ"));
        }));
    } else
        form.number(countKey, static_cast<uint32_t>(approaches.size()));
    for (size_t i = 0; i < approaches.size(); ++i) {
        form.text(approachKey(end, i, "Name"), approaches[i].name);
        form.number(approachKey(end, i, "MHZ"), approaches[i].frequency.megahertz);
        form.number(approachKey(end, i, "KHZ"), approaches[i].frequency.kilohertz);
    }
}

template <class Self, class Form>
void Runway::document(Self& self, Form& form) {
    static const std::vector<std::string> surfaces = {"SOLID", "CRACKED", "GRASS", "WATER", "UNKNOWN"};
    form.choice("Type", self.surface, surfaces, static_cast<uint32_t>(UnknownSurface));
    form.number("Len", self.lengthFeet);
    form.number("Width", self.widthFeet);
    form.number("Dir", self.directionDegrees);
    form.flag("Light", self.hasLights);
    form.number("Accuracy", self.accuracy);
    for (size_t i = 0; i < self.ends.size(); ++i) {
        auto& end = self.ends[i];
        const std::string index = std::to_string(i);
        form.number("TP" + index, end.trafficPattern);
        form.optionalPosition(index, end.threshold, end.isThresholdKnown);
        form.optional("Ele" + index, end.elevationFeet, end.isElevationKnown);
        form.optional("Slope" + index, end.slopeDegrees, end.isSlopeKnown);
        form.text("Name" + index, end.name);
        documentApproaches(end.approaches, index, form);
    }
}

} // namespace skyvane
