#include "chartmaker/csv/CsvReader.h"

namespace skyvane {

bool CsvReader::takeLine(std::string& line) {
    std::string_view read;
    if (!pending_.empty()) {
        line = std::move(pending_.front());
        pending_.pop_front();
    } else if (lines_.next(read))
        line = read;
    else
        return false;
    ++taken_;
    return true;
}

bool CsvReader::next() {
    std::string line;
    isQuoted_ = false;
    values_.assign(1, {});
    if (!takeLine(line))
        return false;
    number_ = taken_;
    split(line);
    std::deque<std::string> joined;
    while (isQuoted_ && joined.size() < LongestRecordLines && takeLine(line)) {
        values_.back() += '\n';
        split(line);
        joined.push_back(std::move(line));
    }
    if (isQuoted_) {
        taken_ -= static_cast<long>(joined.size());
        pending_.insert(pending_.begin(), std::make_move_iterator(joined.begin()),
                        std::make_move_iterator(joined.end()));
    }
    return true;
}

void CsvReader::split(const std::string& line) {
    for (size_t i = 0; i < line.size(); ++i) {
        std::string& value = values_.back();
        const bool isQuote = line[i] == '"';
        if (isQuoted_ && isQuote && i + 1 < line.size() && line[i + 1] == '"')
            value += line[i++];
        else if (isQuote && (isQuoted_ || value.empty()))
            isQuoted_ = !isQuoted_;
        else if (line[i] == ',' && !isQuoted_)
            values_.emplace_back();
        else
            value += line[i];
    }
}

} // namespace skyvane
