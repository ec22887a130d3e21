#include "gui/glyphs/WordWrap.h"

#include <algorithm>

namespace skyvane {

namespace {

bool isBlank(wchar_t character) {
    return character == L' ' || character == L'\t';
}

/// One run over a text. The current line is text[start_, position).
class WordWrapper {
public:
    WordWrapper(const std::wstring& text, unsigned width, const ITextWidth& measure, const WordWrapOptions& options)
        : text_(text), width_(width), measure_(measure), options_(options) {}

    std::wstring run() {
        while (position_ < text_.size())
            step();
        endLine(text_.size(), false);
        return std::move(result_);
    }

private:
    static constexpr size_t none = std::wstring::npos;

    void step() {
        if (text_[position_] == L'\n') {
            endLine(position_, true);
            restart(position_ + 1);
            return;
        }
        if (isBlank(text_[position_]))
            lastBreak_ = position_;
        if (isTooWide(start_, position_ + 1, false))
            breakLine();
        else
            ++position_;
    }

    void breakLine() {
        if (lastBreak_ != none) {
            endLine(lastBreak_, true);
            restart(lastBreak_ + 1);
            return;
        }
        const size_t end = cutOfWord();
        if (end == start_ + 1 && end == text_.size()) { // a single character that nothing can make narrower
            ++position_;
            return;
        }
        result_.append(text_, start_, end - start_);
        if (options_.hyphenate)
            result_ += L'-';
        result_ += L'\n';
        restart(end);
    }

    /// One character before the one that fitted last, or so much earlier that the hyphen fits, but not the whole line.
    size_t cutOfWord() const {
        size_t end = std::max(start_ + 1, position_ > start_ ? position_ - 1 : start_);
        while (options_.hyphenate && end > start_ + 1 && isTooWide(start_, end, true))
            --end;
        return end;
    }

    bool isTooWide(size_t from, size_t to, bool hyphen) const {
        line_.assign(text_, from, to - from);
        if (hyphen)
            line_ += L'-';
        return measure_.widthOf(line_) > width_;
    }

    void endLine(size_t end, bool lineFeed) {
        while (options_.trimLineEnds && end > start_ && isBlank(text_[end - 1]))
            --end;
        result_.append(text_, start_, end - start_);
        if (lineFeed)
            result_ += L'\n';
    }

    void restart(size_t start) {
        start_ = start;
        position_ = start;
        lastBreak_ = none;
    }

    const std::wstring& text_;
    const unsigned width_;
    const ITextWidth& measure_;
    const WordWrapOptions options_;
    std::wstring result_;
    mutable std::wstring line_; ///< Scratch of isTooWide().
    size_t start_ = 0;
    size_t position_ = 0;
    size_t lastBreak_ = none;
};

} // namespace

std::wstring wrapWords(const std::wstring& text, unsigned width, const ITextWidth& measure,
                       const WordWrapOptions& options) {
    return WordWrapper(text, width, measure, options).run();
}

} // namespace skyvane
