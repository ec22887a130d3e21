#pragma once

#include <string>
#include <vector>

namespace irr {
namespace io {
class IFileSystem;
}
} // namespace irr

namespace skyvane {

/// Reads tables of wide strings: "," ends a token, ";" a token and its row, "\" takes the next character literally
/// ("\n" is a line feed), and line ends are ignored. Any text gives some table.
///
///     UnicodeCfgParser parser(2);
///     parser.parse(L"key,Label:;other,Other label:;");
///     parser.getResult()[1][0]; // "other"
class UnicodeCfgParser {
public:
    using Row = std::vector<std::wstring>;

    /// Every row of the result has exactly that many strings.
    explicit UnicodeCfgParser(unsigned columns) : columns_(columns) {}

    /// Replaces the result. Tokens beyond the columns are dropped and reported on standard error; text behind the last
    /// separator is no token.
    void parse(const std::wstring& text);
    /// The same for text in UTF-8.
    void parseFromUTF8(const std::string& bytes);
    /// The same for a file of the engine's file system; the result is empty when it can't be opened. This one operation
    /// belongs to the upper floor: its definition stands in core/engine/AssetFiles.cpp.
    void parseFromUTF8File(irr::io::IFileSystem* files, const char* path);

    const std::vector<Row>& getResult() const { return rows_; }

private:
    void endToken(std::wstring& token);
    void startRow();

    unsigned columns_;
    size_t tokens_ = 0; ///< Tokens that the last row has had.
    std::vector<Row> rows_;
};

} // namespace skyvane
