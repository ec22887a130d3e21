#include "gui/layout/EditorSchema.h"

#include "core/ini/IniFile.h"
#include "gui/layout/EditorValues.h"

#include <gtest/gtest.h>

namespace skyvane {

using Type = EditorValueType;

TEST(EditorSchema, ALineOfTextGivesTypedRows) {
    const std::vector<EditorRow> rows = parseEditorSchema(
        L"port,Port:,4000,INT;flavor,Flavor:,Generic\\;Talos\\;Levil\\;uAvionix,ONE_OF;tint,Tint:,\\,,COLOR_RGB");
    ASSERT_EQ(3u, rows.size());
    EXPECT_EQ(L"port", rows[0].key);
    EXPECT_EQ(L"Port:", rows[0].label);
    EXPECT_EQ(L"4000", rows[0].standard);
    EXPECT_EQ(Type::INT, rows[0].type);
    EXPECT_EQ(Type::ONE_OF, rows[1].type);
    EXPECT_EQ((std::vector<std::wstring>{L"Generic", L"Talos", L"Levil", L"uAvionix"}), rows[1].getAlternatives());
    EXPECT_EQ(Type::COLOR_RGB, rows[2].type);
}

TEST(EditorSchema, AnySchemaGivesSomeRows) {
    EXPECT_TRUE(parseEditorSchema(L"").empty());
    EXPECT_TRUE(parseEditorSchema(L";;,,,;").empty());
    const std::vector<EditorRow> rows = parseEditorSchema(L"a;b,B,1,FLOAT,x,y;c,C,1, BOOLEAN ;");
    ASSERT_EQ(3u, rows.size());
    EXPECT_EQ(Type::NOT_EDITABLE, rows[0].type);
    EXPECT_EQ(Type::NOT_EDITABLE, rows[1].type);
    EXPECT_EQ(Type::BOOLEAN, rows[2].type);
    std::wstring flood;
    for (int i = 0; i < 10000; ++i)
        flood += L"k,l,d,INT;";
    EXPECT_EQ(200u, parseEditorSchema(flood).size());
    EXPECT_EQ(Type::NOT_EDITABLE, editorValueType(9));
    EXPECT_EQ(Type::NOT_EDITABLE, editorValueType(-1));
}

TEST(EditorSchema, NumbersHaveTheirForm) {
    for (const wchar_t* text : {L"", L"0", L"-12", L"4000"})
        EXPECT_TRUE(isCorrectType(text, Type::INT)) << text;
    for (const wchar_t* text : {L"-", L"1.5", L"1-", L"+1", L" 1", L"1e3", L"0x1", L"--1", L"٣"})
        EXPECT_FALSE(isCorrectType(text, Type::INT)) << text;
    for (const wchar_t* text : {L"", L"0", L"-1.5", L".5", L"-.5", L"7."})
        EXPECT_TRUE(isCorrectType(text, Type::DOUBLE)) << text;
    for (const wchar_t* text : {L".", L"-", L"1.2.3", L"1,5", L"nan", L"1e3"})
        EXPECT_FALSE(isCorrectType(text, Type::DOUBLE)) << text;
    EXPECT_TRUE(isCorrectType(L"any - text.", Type::STRING));
}

TEST(EditorSchema, ColoursKeepTheirBounds) {
    EXPECT_EQ("1,2,3", EditorColor::parse("1,2,3").toText(false));
    EXPECT_EQ("1,2,3,255", EditorColor::parse("1,2,3").toText(true));
    EXPECT_EQ("255,0,0,7", EditorColor::parse("300,-4,x,7,9").toText(true));
    EXPECT_EQ("0,0,0,255", EditorColor::parse("").toText(true));
}

TEST(EditorValuesTest, ColoursKeepTheFormThatTheDocumentHas) {
    const EditorRow tint{L"tint", L"", L"1,2,3,4", EditorValueType::COLOR_RGBA};
    const EditorRow plain{L"plain", L"", L"1,2,3", EditorValueType::COLOR_RGB};
    IniFile document;
    document.setFromString("tint.R = 200\ntint.B = 999\nplain = 9,8,7\n");
    EXPECT_EQ("200,2,255,4", readEditorValue(document, tint).value_or(""));
    EXPECT_EQ("9,8,7", readEditorValue(document, plain).value_or(""));
    writeEditorValue(document, tint, "10,20,30,40");
    writeEditorValue(document, plain, "5,6,7");
    EXPECT_EQ("plain = 5,6,7\ntint.A = 40\ntint.B = 30\ntint.G = 20\ntint.R = 10\n\n", document.toString());
    IniFile fresh;
    EXPECT_FALSE(readEditorValue(fresh, plain));
    EXPECT_EQ("", fresh.toString());
    writeEditorValue(fresh, plain, "5,6,7");
    EXPECT_EQ("plain = 5,6,7\nplain.B = 7\nplain.G = 6\nplain.R = 5\n\n", fresh.toString());
    document.setFromString("port.R = 3\n");
    EXPECT_FALSE(readEditorValue(document, {L"port", L"", L"", EditorValueType::INT}));
}

} // namespace skyvane
