#include "sensors/gdl90/messages/MessageText.h"

#include "core/text/Numbers.h"

namespace skyvane {

MessageText::MessageText(const IGDL90Message& message) : text_(IGDL90Message::type2Name(message.getType())) {}

MessageText& MessageText::add(const char* field, double value) {
    return add(field, toText(value));
}

MessageText& MessageText::add(const char* field, const std::optional<double>& value) {
    return add(field, value ? toText(*value) : std::string("-"));
}

MessageText& MessageText::add(const char* field, const std::string& value) {
    text_.append(" ").append(field).append("=").append(value);
    return *this;
}

} // namespace skyvane
