#pragma once

#include "sensors/gdl90/messages/IGDL90Message.h"

#include <optional>
#include <string>

namespace skyvane {

/// Writes "NAME field=value field=value": the form in which messages are printed. A missing value is "-".
class MessageText {
public:
    explicit MessageText(const IGDL90Message& message);

    MessageText& add(const char* field, double value);
    MessageText& add(const char* field, const std::optional<double>& value);
    MessageText& add(const char* field, const std::string& value);
    const std::string& text() const { return text_; }

private:
    std::string text_;
};

} // namespace skyvane
