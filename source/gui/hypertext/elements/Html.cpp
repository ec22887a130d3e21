#include "gui/hypertext/elements/Html.h"

namespace skyvane {

std::string escapeHTML(const std::string& text) {
    std::string html;
    html.reserve(text.size() + text.size() / 8);
    for (const char c : text) {
        switch (c) {
        case '"':
            html += "&quot;";
            break;
        case '&':
            html += "&amp;";
            break;
        case '<':
            html += "&lt;";
            break;
        case '>':
            html += "&gt;";
            break;
        case '\n':
            html += "<br>";
            break;
        default:
            html += c;
        }
    }
    return html;
}

std::string makeHTMLPage(const std::string& title, const std::string& body) {
    return "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01 Transitional//EN\" "
           "\"http://www.w3.org/TR/html4/loose.dtd\">\n"
           "<html>\n<head>\n<meta http-equiv=\"Content-Type\" content=\"text/html; charset=UTF-8\">\n<title>" +
           escapeHTML(title) +
           "</title>\n</head>\n<body style=\"margin-top:1%; margin-bottom:1%; margin-left:10%; margin-right:10%\">\n" +
           body + "\n</body>\n</html>\n";
}

} // namespace skyvane
