#pragma once

#include "gui/hypertext/elements/DivideElement.h"
#include "gui/hypertext/markup/SubParserList.h"

#include <string>
#include <vector>

namespace skyvane {

/// One of each kind, in the order in which they are asked.
const std::vector<std::unique_ptr<ISubParser>>& parserPrototypes();

/// What begins with a backslash and a letter.
class ConstructParser : public ISubParser {
public:
    explicit ConstructParser(char letter) : letter_(letter) {}
    Answer acceptChar(char c) override;

protected:
    virtual bool isMyLetter(char c) { return c == letter_; }
    virtual Answer acceptInside(char c) = 0;

private:
    char letter_;
    int read_ = 0; ///< Bytes of backslash and letter.
};

/// \T characters \n
class TextParser : public ConstructParser {
public:
    TextParser() : ConstructParser('T') {}
    std::unique_ptr<IDocElement> getDocElement() override;
    std::unique_ptr<ISubParser> createNewEntity(int) const override { return std::make_unique<TextParser>(); }

protected:
    Answer acceptInside(char c) override;

private:
    bool escaped_ = false;
    std::string text_;
};

/// Fields that a backslash ends, then one element, then \n.
class FieldsParser : public ConstructParser {
protected:
    /// `hasElement` false for a construct that ends with its last field: `fields` counts that one too.
    FieldsParser(char letter, size_t fields, bool hasElement, int depth)
        : ConstructParser(letter), count_(fields), hasElement_(hasElement), slot_(depth) {}
    Answer acceptInside(char c) override;

    std::vector<std::string> fields_;
    std::unique_ptr<IDocElement> child_;

private:
    Answer acceptInField(char c);
    Answer acceptElement(char c);

    size_t count_;
    bool hasElement_;
    bool closing_ = false; ///< The backslash of the final \n was read.
    std::string field_;
    ElementSlot slot_;
};

/// \H element \n
class HeadParser : public FieldsParser {
public:
    explicit HeadParser(int depth) : FieldsParser('H', 0, true, depth) {}
    std::unique_ptr<IDocElement> getDocElement() override;
    std::unique_ptr<ISubParser> createNewEntity(int depth) const override {
        return std::make_unique<HeadParser>(depth);
    }
};

/// \L target \ element \n
class LinkParser : public FieldsParser {
public:
    explicit LinkParser(int depth) : FieldsParser('L', 1, true, depth) {}
    std::unique_ptr<IDocElement> getDocElement() override;
    std::unique_ptr<ISubParser> createNewEntity(int depth) const override {
        return std::make_unique<LinkParser>(depth);
    }
};

/// \F picture \ margin of the width \ margin of the height \n
class FigureParser : public FieldsParser {
public:
    explicit FigureParser(int depth) : FieldsParser('F', 3, false, depth) {}
    std::unique_ptr<IDocElement> getDocElement() override;
    std::unique_ptr<ISubParser> createNewEntity(int depth) const override {
        return std::make_unique<FigureParser>(depth);
    }
};

/// \S size \ red \ green \ blue \ centred \ element \n
class StyleParser : public FieldsParser {
public:
    explicit StyleParser(int depth) : FieldsParser('S', 5, true, depth) {}
    std::unique_ptr<IDocElement> getDocElement() override;
    std::unique_ptr<ISubParser> createNewEntity(int depth) const override {
        return std::make_unique<StyleParser>(depth);
    }
};

/// \R element element ... \n and \C element element ... \n; backslashes may stand between the elements.
class DivideParser : public ConstructParser {
public:
    explicit DivideParser(int depth) : ConstructParser('R'), slot_(depth) {}
    std::unique_ptr<IDocElement> getDocElement() override;
    std::unique_ptr<ISubParser> createNewEntity(int depth) const override {
        return std::make_unique<DivideParser>(depth);
    }

protected:
    bool isMyLetter(char c) override;
    Answer acceptInside(char c) override;

private:
    DivideElement::Direction direction_ = DivideElement::Direction::Rows;
    ElementSlot slot_;
    std::vector<std::unique_ptr<IDocElement>> children_;
};

} // namespace skyvane
