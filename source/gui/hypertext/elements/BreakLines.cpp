#include "gui/hypertext/elements/BreakLines.h"

#include "core/text/Numbers.h"
#include "gui/glyphs/IterateOverString.h"
#include "gui/glyphs/TextMeasure.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

constexpr int tabSize = 4;
constexpr size_t linesOfPiece = 24;
constexpr size_t charactersOfPiece = 4096;
constexpr size_t firstStretch = 64;
constexpr double highest = 1 << 28;

bool isBlank(wchar_t character) {
    return character == L' ' || character == L'\t';
}

/// Finds the first glyph of a line that reaches beyond a limit.
class LimitFinder : public ICharacterCallback {
public:
    explicit LimitFinder(double limit) : limit_(limit) {}
    void OnCharacter(const FontCharacter& character, int index, int x, int) override {
        if (index_ < 0 && x - character.xoffset + character.xadvance > limit_)
            index_ = index;
    }
    void OnLineFinished(int) override {}
    int getIndex() const { return index_; }

private:
    double limit_;
    int index_ = -1;
};

/// One run over a text. Lines are told by where they begin and end.
class LineBreaker {
public:
    LineBreaker(const std::wstring& text, int width, const Style& style)
        : text_(text), style_(style), limit_((width + 0.5) / static_cast<double>(style.scale)) {}

    BrokenText run() {
        size_t start = 0;
        while (start <= text_.size()) {
            const size_t feed = std::min(text_.find(L'\n', start), text_.size());
            start = breakParagraph(start, feed);
        }
        endPiece();
        finish();
        return std::move(result_);
    }

private:
    static constexpr size_t none = std::wstring::npos;

    /// Gives the start of the next one.
    size_t breakParagraph(size_t start, size_t end) {
        while (true) {
            const size_t blank = findBreak(start, end);
            addLine(start, blank == none ? end : blank);
            if (blank == none)
                return end + 1;
            start = blank + 1;
        }
    }

    /// The blank that the line from `start` ends at; none when all of it fits, or nothing breaks it.
    size_t findBreak(size_t start, size_t end) const {
        const size_t wide = findTooWide(start, end);
        if (wide == none)
            return none;
        for (size_t i = wide + 1; i-- > start;)
            if (isBlank(text_[i]))
                return i;
        const auto next =
            std::find_if(text_.begin() + static_cast<long>(wide), text_.begin() + static_cast<long>(end), isBlank);
        const size_t found = static_cast<size_t>(next - text_.begin());
        return found < end ? found : none;
    }

    /// Measures a stretch that grows until it is too wide, so that a long paragraph isn't measured for each line.
    size_t findTooWide(size_t start, size_t end) const {
        for (size_t stretch = firstStretch;; stretch *= 2) {
            const size_t length = std::min(stretch, end - start);
            LimitFinder finder(limit_);
            iterateOverString(text_.data() + start, length, tabSize, *style_.font, finder);
            if (finder.getIndex() >= 0)
                return start + static_cast<size_t>(finder.getIndex());
            if (length == end - start)
                return none;
        }
    }

    void addLine(size_t start, size_t end) {
        const size_t length = end - start;
        if (lines_ - firstLineOfPiece_ >= linesOfPiece || piece_.size() + length > charactersOfPiece)
            endPiece();
        if (lines_ > firstLineOfPiece_)
            piece_ += L'\n';
        // What lies further right than so many letters no screen shows.
        piece_.append(text_, start, std::min(length, charactersOfPiece));
        ++lines_;
        if (length > 0)
            filledLines_ = lines_;
    }

    void endPiece() {
        if (piece_.find_first_not_of(L'\n') != none) {
            const auto size =
                measureText(piece_.data(), piece_.size(), tabSize, *style_.font, {style_.scale, style_.scale});
            result_.width = std::max(result_.width, static_cast<int>(size.Width));
            result_.pieces.push_back({piece_, heightOf(firstLineOfPiece_), heightOf(lines_)});
        }
        piece_.clear();
        firstLineOfPiece_ = lines_;
    }

    void finish() { result_.height = heightOf(filledLines_); }

    int heightOf(size_t lines) const {
        const double height = static_cast<double>(lines) * style_.font->lineHeight * static_cast<double>(style_.scale);
        return roundHalfAway(std::clamp(height, 0.0, highest));
    }

    const std::wstring& text_;
    const Style& style_;
    const double limit_; ///< In pixels of the font.
    BrokenText result_;
    std::wstring piece_;
    size_t lines_ = 0;
    size_t firstLineOfPiece_ = 0;
    size_t filledLines_ = 0;
};

} // namespace

BrokenText breakLines(const std::wstring& text, int width, const Style& style) {
    if (!style.font || text.empty() || width <= 0)
        return {};
    return LineBreaker(text, width, style).run();
}

} // namespace skyvane
