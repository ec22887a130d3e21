#include "gui/hypertext/markup/ElementParsers.h"

#include "core/text/Numbers.h"
#include "gui/hypertext/elements/FigureElement.h"
#include "gui/hypertext/elements/HeadElement.h"
#include "gui/hypertext/elements/LinkElement.h"
#include "gui/hypertext/elements/StyleElement.h"
#include "gui/hypertext/elements/TextElement.h"

#include <algorithm>

namespace skyvane {

using Answer = ISubParser::Answer;

namespace {

constexpr size_t longestField = 1024;

std::string StripQuotationMarks(const std::string& text) {
    const bool quoted = text.size() >= 2 && text.front() == '"' && text.back() == '"';
    return quoted ? text.substr(1, text.size() - 2) : text;
}

uint32_t channel(const std::string& field) {
    return static_cast<uint32_t>(std::clamp(toInt(field), 0, 255));
}

std::vector<std::unique_ptr<ISubParser>> makePrototypes() {
    std::vector<std::unique_ptr<ISubParser>> prototypes;
    prototypes.push_back(std::make_unique<TextParser>());
    prototypes.push_back(std::make_unique<HeadParser>(0));
    prototypes.push_back(std::make_unique<LinkParser>(0));
    prototypes.push_back(std::make_unique<DivideParser>(0));
    prototypes.push_back(std::make_unique<FigureParser>(0));
    prototypes.push_back(std::make_unique<StyleParser>(0));
    return prototypes;
}

} // namespace

const std::vector<std::unique_ptr<ISubParser>>& parserPrototypes() {
    static const std::vector<std::unique_ptr<ISubParser>> prototypes = makePrototypes();
    return prototypes;
}

Answer ConstructParser::acceptChar(char c) {
    if (read_ == 2)
        return acceptInside(c);
    const bool mine = read_ == 0 ? c == '\\' : isMyLetter(c);
    ++read_;
    return mine ? Answer::GoingOn : Answer::NotMine;
}

Answer TextParser::acceptInside(char c) {
    if (escaped_ && c == 'n')
        return Answer::Finished;
    if (c == '\\' && !escaped_) {
        escaped_ = true;
        return Answer::GoingOn;
    }
    escaped_ = false;
    text_ += c;
    return Answer::GoingOn;
}

std::unique_ptr<IDocElement> TextParser::getDocElement() {
    return std::make_unique<TextElement>(text_);
}

Answer FieldsParser::acceptInside(char c) {
    return fields_.size() < count_ ? acceptInField(c) : acceptElement(c);
}

Answer FieldsParser::acceptInField(char c) {
    if (c != '\\') {
        field_ += c;
        return field_.size() <= longestField ? Answer::GoingOn : Answer::NotMine;
    }
    fields_.push_back(std::move(field_));
    field_.clear();
    if (fields_.size() < count_)
        return Answer::GoingOn;
    if (!hasElement_)
        closing_ = true;
    else
        slot_.acceptChar(c); // may be the element's own already
    return Answer::GoingOn;
}

Answer FieldsParser::acceptElement(char c) {
    if (closing_)
        return c == 'n' ? Answer::Finished : Answer::NotMine;
    if (child_) {
        closing_ = c == '\\';
        return closing_ ? Answer::GoingOn : Answer::NotMine;
    }
    const Answer answer = slot_.acceptChar(c);
    if (answer != Answer::Finished)
        return answer;
    child_ = slot_.take();
    return Answer::GoingOn;
}

std::unique_ptr<IDocElement> HeadParser::getDocElement() {
    return std::make_unique<HeadElement>(std::move(child_));
}

std::unique_ptr<IDocElement> LinkParser::getDocElement() {
    return std::make_unique<LinkElement>(StripQuotationMarks(fields_[0]), std::move(child_));
}

std::unique_ptr<IDocElement> FigureParser::getDocElement() {
    return std::make_unique<FigureElement>(StripQuotationMarks(fields_[0]), static_cast<float>(toDouble(fields_[1])),
                                           static_cast<float>(toDouble(fields_[2])));
}

std::unique_ptr<IDocElement> StyleParser::getDocElement() {
    StyleElement::Change change;
    change.size = toInt(fields_[0]);
    change.color = 0xff000000 | channel(fields_[1]) << 16 | channel(fields_[2]) << 8 | channel(fields_[3]);
    change.centered = toBool(fields_[4]);
    return std::make_unique<StyleElement>(change, std::move(child_));
}

bool DivideParser::isMyLetter(char c) {
    if (c == 'C')
        direction_ = DivideElement::Direction::Columns;
    return c == 'R' || c == 'C';
}

Answer DivideParser::acceptInside(char c) {
    if (!slot_.hasBegun() && slot_.isAfterBackslash() && c == 'n')
        return Answer::Finished;
    const Answer answer = slot_.acceptChar(c);
    if (answer != Answer::Finished)
        return answer;
    children_.push_back(slot_.take());
    return Answer::GoingOn;
}

std::unique_ptr<IDocElement> DivideParser::getDocElement() {
    return std::make_unique<DivideElement>(direction_, std::move(children_));
}

} // namespace skyvane
