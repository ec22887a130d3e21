#include "gui/hypertext/markup/SubParserList.h"

#include "gui/hypertext/markup/ElementParsers.h"

#include <algorithm>

namespace skyvane {

using Answer = ISubParser::Answer;

SubParserList::SubParserList(int depth) {
    if (depth > deepest)
        return;
    for (const auto& prototype : parserPrototypes())
        parsers_.push_back(prototype->createNewEntity(depth));
}

Answer SubParserList::acceptChar(char c) {
    for (std::unique_ptr<ISubParser>& parser : parsers_) {
        const Answer answer = parser->acceptChar(c);
        if (answer == Answer::Finished) {
            element_ = parser->getDocElement();
            return Answer::Finished;
        }
        if (answer == Answer::NotMine)
            parser.reset();
    }
    parsers_.erase(std::remove(parsers_.begin(), parsers_.end(), nullptr), parsers_.end());
    return parsers_.empty() ? Answer::NotMine : Answer::GoingOn;
}

Answer ElementSlot::acceptChar(char c) {
    if (list_)
        return list_->acceptChar(c);
    if (c == '\\') {
        afterBackslash_ = true;
        return Answer::GoingOn;
    }
    if (!afterBackslash_)
        return Answer::NotMine;
    list_ = std::make_unique<SubParserList>(depth_ + 1);
    list_->acceptChar('\\');
    return list_->acceptChar(c);
}

std::unique_ptr<IDocElement> ElementSlot::take() {
    std::unique_ptr<IDocElement> element = list_->getDocElement();
    list_.reset();
    afterBackslash_ = false;
    return element;
}

} // namespace skyvane
