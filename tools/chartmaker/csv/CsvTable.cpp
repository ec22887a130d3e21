#include "chartmaker/csv/CsvTable.h"

#include "chartmaker/text/SourceText.h"
#include "core/IProgressSink.h"

#include <algorithm>

namespace skyvane {
namespace {

constexpr size_t noPlace = static_cast<size_t>(-1);
constexpr long linesPerStep = 256;

} // namespace

CsvTable::CsvTable(const std::string& path, const Columns& needed, const Columns& optional,
                   const SourceContext& context)
    : path_(path), context_(context), lines_(path) {
    readHeader(needed, optional);
}

void CsvTable::readHeader(const Columns& needed, const Columns& optional) {
    const bool isRead = csv_.next();
    std::vector<std::string> header = csv_.getValues();
    for (std::string& name : header)
        name = trimmed(name);
    headerSize_ = header.size();
    for (const Columns* columns : {&needed, &optional})
        for (const char* column : *columns) {
            const auto found = std::find(header.begin(), header.end(), column);
            places_.push_back(found == header.end() ? noPlace : static_cast<size_t>(found - header.begin()));
            if (found == header.end() && columns == &needed && isRead && isGood_) {
                isGood_ = false;
                const bool hasSemicolons = header.size() == 1 && header[0].find(';') != std::string::npos;
                context_.sink.refuse({path_, 1},
                                     hasSemicolons ? "semicolons part its values: save it as comma-separated ones"
                                                   : std::string("the first line names no column \"") + column + "\"");
            }
        }
    if (!isRead) {
        isGood_ = false;
        context_.sink.refuse({path_}, lines_.getError().empty() ? "is empty" : lines_.getError());
    }
}

bool CsvTable::next() {
    while (isGood_ && csv_.next()) {
        if (csv_.getLineNumber() % linesPerStep == 0)
            context_.progress.setProgress(lines_.getShare());
        const std::vector<std::string>& values = csv_.getValues();
        const bool isBlank = values.size() == 1 && trimmed(values[0]).empty();
        if (csv_.isBroken())
            context_.sink.refuse(getLine(), "a quote isn't closed");
        else if (isBlank)
            continue;
        else if (isCut())
            context_.sink.refuse(getLine(), "the file ends inside of this line: it may be cut");
        else
            return true;
    }
    if (isGood_ && !lines_.getError().empty()) {
        isGood_ = false;
        context_.sink.refuse({path_}, lines_.getError());
    }
    return false;
}

/// The last line of the file has no end, and fewer values than there are columns: the last of them may lack its end.
bool CsvTable::isCut() const {
    return lines_.isUnended() && csv_.getValues().size() < headerSize_;
}

const std::string& CsvTable::operator[](size_t column) const {
    static const std::string none;
    const size_t place = places_[column];
    return place < csv_.getValues().size() ? csv_.getValues()[place] : none;
}

} // namespace skyvane
