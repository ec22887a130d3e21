#pragma once

#include "chartmaker/compile/SourceKind.h"
#include "chartmaker/csv/CsvReader.h"

#include <string>
#include <vector>

namespace skyvane {

/// A file of comma-separated values whose first record names the columns: they may come in any order, and others
/// between them.
///
///     enum Column { Ident, Name };
///     CsvTable table(path, {"ident", "name"}, {}, context);
///     while (table.next()) use(table[Ident], table.getLine());
///     return table.isGood();
///
/// What is wrong with the file or a line is told to the sink: a column that is missing, broken quotes, an end inside of
/// a line.
class CsvTable {
public:
    using Columns = std::vector<const char*>;

    CsvTable(const std::string& path, const Columns& needed, const Columns& optional, const SourceContext& context);
    CsvTable(const CsvTable&) = delete;
    CsvTable& operator=(const CsvTable&) = delete;

    bool next();
    /// The value in a column, counted through the needed ones, then the optional ones; empty where there is none.
    const std::string& operator[](size_t column) const;
    SourceLine getLine() const { return {path_, csv_.getLineNumber()}; }
    /// False when the file couldn't be read to its end, or lacks a column; the sink was told.
    bool isGood() const { return isGood_; }

private:
    void readHeader(const Columns& needed, const Columns& optional);
    bool isCut() const;

    std::string path_;
    const SourceContext& context_;
    LineReader lines_;
    CsvReader csv_{lines_};
    std::vector<size_t> places_; ///< Of the columns in a record.
    size_t headerSize_ = 0;
    bool isGood_ = true;
};

} // namespace skyvane
