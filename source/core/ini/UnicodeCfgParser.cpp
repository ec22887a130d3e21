#include "core/ini/UnicodeCfgParser.h"

#include "core/text/Utf8.h"

#include <cstdio>

namespace skyvane {

namespace {

void reportTooManyTokens(const UnicodeCfgParser::Row& row) {
    std::string line;
    for (size_t i = 0; i < row.size(); ++i)
        line += (i ? "," : "") + encodeUtf8(row[i]);
    std::fprintf(stderr, "Parser Error: Too many tokens in line: %s\n", line.c_str());
}

} // namespace

void UnicodeCfgParser::parse(const std::wstring& text) {
    rows_.clear();
    if (text.empty())
        return;
    startRow();
    std::wstring token;
    for (size_t i = 0; i < text.size(); ++i) {
        switch (text[i]) {
        case L'\\':
            if (++i < text.size())
                token += text[i] == L'n' ? L'\n' : text[i];
            break;
        case L',':
            endToken(token);
            break;
        case L';':
            endToken(token);
            startRow();
            break;
        case L'\n':
        case L'\r':
            break;
        default:
            token += text[i];
        }
    }
    if (tokens_ == 0)
        rows_.pop_back();
}

void UnicodeCfgParser::parseFromUTF8(const std::string& bytes) {
    parse(decodeUtf8(bytes));
}

void UnicodeCfgParser::endToken(std::wstring& token) {
    if (tokens_ < columns_)
        rows_.back()[tokens_++] = token;
    else
        reportTooManyTokens(rows_.back());
    token.clear();
}

void UnicodeCfgParser::startRow() {
    rows_.emplace_back(columns_);
    tokens_ = 0;
}

} // namespace skyvane
