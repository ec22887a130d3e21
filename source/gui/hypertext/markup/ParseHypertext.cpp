#include "gui/hypertext/markup/ParseHypertext.h"

#include "gui/hypertext/markup/CleanMarkup.h"
#include "gui/hypertext/markup/SubParserList.h"

namespace skyvane {

std::unique_ptr<IDocElement> parseHypertext(const std::string& page) {
    if (page.size() > longestHypertext)
        return nullptr;
    SubParserList list(0);
    for (const char c : cleanMarkup(page)) {
        const ISubParser::Answer answer = list.acceptChar(c);
        if (answer == ISubParser::Answer::Finished)
            return list.getDocElement();
        if (answer == ISubParser::Answer::NotMine)
            return nullptr;
    }
    return nullptr;
}

} // namespace skyvane
