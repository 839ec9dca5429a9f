#include "vela/theme/document/json.h"

#include "tests/support/written_json.h"

#include <clocale>
#include <limits>
#include <string>
#include <tuple>

#include <gtest/gtest.h>

namespace vela {
namespace {

std::string narrow(std::wstring_view text)
{
    std::string result;
    for (const wchar_t unit : text)
        result += unit < 0x80 ? static_cast<char>(unit) : '?';
    return result;
}

std::wstring repeated(std::wstring_view piece, std::size_t count)
{
    std::wstring text;
    text.reserve(piece.size() * count);
    for (std::size_t i = 0; i < count; ++i)
        text += piece;
    return text;
}

TEST(Json, ReadsWhatTheGrammarAllows)
{
    using namespace std::string_view_literals;
    const struct {
        std::wstring_view text;
        JsonKind kind;
        std::wstring_view written;
    } rows[] = {
        {L"null", JsonKind::Null, L"null"},
        {L"true", JsonKind::Boolean, L"true"},
        {L"false", JsonKind::Boolean, L"false"},
        {L" \t\r\n\f\v7", JsonKind::Number, L"7"},
        {L"[]", JsonKind::Array, L"[]"},
        {L"[ \n]", JsonKind::Array, L"[]"},
        {L"[1 , [2,[]],{} , \"x\" ]", JsonKind::Array, L"[1,[2,[]],{},\"x\"]"},
        {L"{}", JsonKind::Object, L"{}"},
        {L"{ }", JsonKind::Object, L"{}"},
        {L"{ \"b\" : 1 , \"a\" : [ { } ] }", JsonKind::Object, L"{\"a\":[{}],\"b\":1}"},
        // Ordered unit by unit: capitals first, a prefix before what it begins.
        {L"{\"ab\":1,\"a\":2,\"B\":3,\"\":4}", JsonKind::Object, L"{\"\":4,\"B\":3,\"a\":2,\"ab\":1}"},
        {L"{\"a\":1,\"b\":0,\"a\":2,\"a\":3}", JsonKind::Object, L"{\"a\":3,\"b\":0}"},
        {L"{\"a\":1,\"\\u0061\":{\"a\":2}}", JsonKind::Object, L"{\"a\":{\"a\":2}}"},
        {L"\"\"", JsonKind::String, L"\"\""},
        {L"\"a'b\"", JsonKind::String, L"\"a'b\""},
        {L"\"\\\"\\\\\\/\\b\\f\\n\\r\\t\"", JsonKind::String,
         L"\"\\u0022\\u005c/\\u0008\\u000c\\u000a\\u000d\\u0009\""},
        {L"\"\\u00e9\\u00E9\\u0000\"", JsonKind::String, L"\"\\u00e9\\u00e9\\u0000\""},
        {L"\"\\ud83d\\ude00\"", JsonKind::String, L"\"\\ud83d\\ude00\""},
        // Characters of the text stand for themselves, even line breaks and zeros.
        {L"\"\n\0\x7f\u00e9\""sv, JsonKind::String, L"\"\\u000a\\u0000\\u007f\\u00e9\""},
        {L"nullx", JsonKind::Null, L"null"},
        {L"{} ]", JsonKind::Object, L"{}"},
    };
    for (const auto& row : rows) {
        JsonDocument document;
        ASSERT_TRUE(document.read(row.text)) << narrow(row.text) << ": " << document.error().explanation;
        EXPECT_EQ(document.root().kind(), row.kind) << narrow(row.text);
        EXPECT_EQ(writtenJson(document.root()), row.written) << narrow(row.text);
        EXPECT_TRUE(document.error().explanation.empty());
    }
}

TEST(Json, RefusesWhatItDoesNotAndSaysWhere)
{
    const struct {
        std::wstring_view text;
        std::uint32_t offset;
    } rows[] = {
        {L"", 0},
        {L" \n", 2},
        {L"TRUE", 0},
        {L"True", 0},
        {L"tru", 0},
        {L"nul", 0},
        {L"NaN", 0},
        {L"nan", 0},
        {L"Infinity", 0},
        {L"+1", 0},
        {L"\u00a0"
         L"1",
         0},
        {L"// no\n1", 0},
        {L"/* no */ 1", 0},
        {L"]", 0},
        {L"'a'", 0},
        {L"[", 1},
        {L"[1", 2},
        {L"[1,]", 3},
        {L"[,1]", 1},
        {L"[1 2]", 3},
        {L"[1}", 2},
        {L"[+1]", 1},
        {L"{", 1},
        {L"{a:1}", 1},
        {L"{1:1}", 1},
        {L"{'a':1}", 1},
        {L"{\"a\"", 4},
        {L"{\"a\" 1}", 5},
        {L"{\"a\"=1}", 4},
        {L"{\"a\":", 5},
        {L"{\"a\":}", 5},
        {L"{\"a\":1,}", 7},
        {L"{\"a\":1]", 6},
        {L"{\"a\":1 \"b\":2}", 7},
        {L"\"abc", 4},
        {L"\"abc\\", 5},
        {L"\"abc\\\"", 6},
        {L"\"\\x41\"", 2},
        {L"\"\\U0041\"", 2},
        {L"\"\\'\"", 2},
        {L"\"\\u12g4\"", 5},
        {L"\"\\u12\"", 5},
        {L"\"\\u 123\"", 3},
        {L"\"\\u+123\"", 3},
        {L"[true, [\"ok\", fals]]", 14},
    };
    for (const auto& row : rows) {
        JsonDocument document;
        EXPECT_FALSE(document.read(row.text)) << narrow(row.text);
        EXPECT_EQ(document.error().offset, row.offset) << narrow(row.text);
        EXPECT_FALSE(document.error().explanation.empty()) << narrow(row.text);
        EXPECT_EQ(document.root().kind(), JsonKind::Null) << narrow(row.text);
    }
}

double readNumber(std::wstring_view text)
{
    JsonDocument document;
    EXPECT_TRUE(document.read(text)) << narrow(text);
    return document.root().number().value_or(-12345);
}

TEST(Json, ConvertsNumbersAsTheCLibraryDoes)
{
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    const struct {
        std::wstring text;
        double value;
    } rows[] = {
        {L"0", 0},
        {L"150", 150},
        {L"-7", -7},
        {L"999999999", 999999999},
        {L"9999999999", 9999999999},
        {L"1.5", 1.5},
        {L"-2.25e2", -225},
        {L"1e3", 1000},
        {L"1E+3", 1000},
        {L"125e-3", 0.125},
        {L"0.1", 0.1},
        {L"0.30000000000000004", 0.30000000000000004},
        {L"9007199254740993", 9007199254740992},
        {L"179769313486231570814e288", 1.7976931348623157e308},
        {L"1.7976931348623157e308", 1.7976931348623157e308},
        {L"2.2250738585072011e-308", 2.2250738585072011e-308},
        {L"5e-324", 5e-324},
        {L"1e-400", 0},
        {L"1e400", kInfinity},
        {L"-1e400", -kInfinity},
        {L"1e99999999999999999999", kInfinity},
        {L"1e-99999999999999999999", 0},
        {L"1" + repeated(L"0", 400), kInfinity},
        {L"1" + repeated(L"0", 400) + L"e-400", 1},
        {L"0." + repeated(L"0", 400) + L"1e401", 1},
        {L"0." + repeated(L"3", 5000), 1.0 / 3},
        // The scan takes more than the grammar of JSON; its conversion decides.
        {L"007", 7},
        {L"-", 0},
        {L".", 0},
        {L".5", 0.5},
        {L"-.5", -0.5},
        {L"1.", 1},
        {L"1.e2", 100},
        {L"1e", 1},
        {L"1e+", 1},
        {L"e5", 0},
        // What the scan does not take is what follows the value.
        {L"0x10", 0},
        {L"1-2", 1},
        {L"1.5.5", 1.5},
    };
    for (const auto& row : rows)
        EXPECT_EQ(readNumber(row.text), row.value) << narrow(row.text);
}

TEST(Json, ReadsNumbersAlikeWhereTheDecimalPointIsAComma)
{
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
    for (const char* name : {"de_DE.UTF-8", "cs_CZ.UTF-8", "German"}) {
        if (std::setlocale(LC_NUMERIC, name) && *std::localeconv()->decimal_point == ',')
            break;
    }
    const bool comma = *std::localeconv()->decimal_point == ',';
    const double value = readNumber(L"1.5e-1");
    std::setlocale(LC_NUMERIC, before.c_str());
    EXPECT_EQ(value, 0.15);
    if (!comma)
        GTEST_SKIP() << "no locale with a decimal comma is installed";
}

TEST(Json, ReadsOneValueAtTheCursorAndLeavesItBehindThat)
{
    const std::wstring_view text = L"  1 [2,3]{\"a\":4}\"b\"true";
    const std::size_t ends[] = {3, 9, 16, 19, 23};
    JsonDocument document;
    std::size_t cursor = 0;
    for (const std::size_t end : ends) {
        ASSERT_TRUE(document.read(text, cursor));
        EXPECT_EQ(cursor, end);
    }
    EXPECT_FALSE(document.read(text, cursor));
    cursor = 1000;
    EXPECT_FALSE(document.read(text, cursor));
}

TEST(Json, FindsMembersOfObjectsOnly)
{
    std::wstring text = L"{\"list\":[\"list\"],\"\":0";
    for (int i = 0; i < 1000; ++i)
        text += L",\"k" + std::to_wstring(i * 7919 % 1000) + L"\":" + std::to_wstring(i * 7919 % 1000);
    JsonDocument document;
    ASSERT_TRUE(document.read(text + L"}"));
    const JsonValue& root = document.root();
    EXPECT_EQ(root.members().size(), 1002U);
    for (int i = 0; i < 1000; ++i) {
        const JsonValue* const found = root.find(L"k" + std::to_wstring(i));
        ASSERT_NE(found, nullptr) << i;
        EXPECT_EQ(found->number(), i);
    }
    EXPECT_NE(root.find(L""), nullptr);
    EXPECT_EQ(root.find(L"K1"), nullptr);
    EXPECT_EQ(root.find(L"k1000"), nullptr);
    const JsonValue* const list = root.find(L"list");
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->find(L"list"), nullptr);
    EXPECT_EQ(list->items()[0].find(L"list"), nullptr);
}

TEST(Json, GivesAPayloadOnlyToItsOwnKind)
{
    JsonDocument document;
    ASSERT_TRUE(document.read(L"[null, true, 1, \"s\", [0], {\"a\":0}]"));
    const auto items = document.root().items();
    for (std::size_t kind = 0; kind < 6; ++kind) {
        const JsonValue& value = items[kind];
        EXPECT_EQ(static_cast<std::size_t>(value.kind()), kind);
        EXPECT_EQ(value.boolean().has_value(), kind == 1);
        EXPECT_EQ(value.number().has_value(), kind == 2);
        EXPECT_EQ(value.string().has_value(), kind == 3);
        EXPECT_EQ(value.items().size(), kind == 4 ? 1U : 0U);
        EXPECT_EQ(value.members().size(), kind == 5 ? 1U : 0U);
    }
}

TEST(Json, RemembersWhereKeysAndValuesBegin)
{
    JsonDocument document;
    ASSERT_TRUE(document.read(L"\n{ \"b\" : [ 1, true ],\n \"a\":\"x\" }"));
    const JsonValue& root = document.root();
    EXPECT_EQ(root.offset(), 1U);
    ASSERT_EQ(root.members().size(), 2U);
    const auto& [a, b] = std::tie(root.members()[0], root.members()[1]);
    EXPECT_EQ(a.name.offset(), 23U);
    EXPECT_EQ(a.value.offset(), 27U);
    EXPECT_EQ(b.name.offset(), 3U);
    EXPECT_EQ(b.value.offset(), 9U);
    EXPECT_EQ(b.value.items()[1].offset(), 14U);
}

TEST(Json, BoundsTheDepthSoThatNoTextExhaustsTheStack)
{
    const auto nested = [](std::wstring_view open, std::wstring_view close, int depth) {
        const auto count = static_cast<std::size_t>(depth);
        return repeated(open, count) + L"0" + repeated(close, count);
    };
    JsonDocument document;
    EXPECT_TRUE(document.read(nested(L"[", L"]", kMaxJsonDepth)));
    EXPECT_FALSE(document.read(nested(L"[", L"]", kMaxJsonDepth + 1)));
    EXPECT_EQ(document.error().offset, static_cast<std::uint32_t>(kMaxJsonDepth));
    EXPECT_TRUE(document.read(nested(L"{\"a\":", L"}", kMaxJsonDepth)));
    EXPECT_FALSE(document.read(nested(L"{\"a\":", L"}", kMaxJsonDepth + 1)));
    EXPECT_FALSE(document.read(repeated(L"[", 1'000'000)));
    EXPECT_FALSE(document.read(repeated(L"{\"a\":[", 1'000'000)));
}

TEST(Json, ReadsLongTextsOfEveryKind)
{
    constexpr std::size_t kLong = std::size_t{8} << 20;
    JsonDocument document;
    ASSERT_TRUE(document.read(L'"' + std::wstring(kLong, L'x') + L'"'));
    EXPECT_EQ(*document.root().string(), std::wstring(kLong, L'x'));
    ASSERT_TRUE(document.read(L'"' + repeated(L"\\u0041", kLong / 6) + L'"'));
    EXPECT_EQ(*document.root().string(), std::wstring(kLong / 6, L'A'));
    ASSERT_TRUE(document.read(L"[0" + repeated(L",1", kLong / 2) + L"]"));
    EXPECT_EQ(document.root().items().size(), kLong / 2 + 1);
    ASSERT_TRUE(document.read(L"{\"a\":0" + repeated(L",\"a\":1", kLong / 16) + L"}"));
    ASSERT_EQ(document.root().members().size(), 1U);
    EXPECT_EQ(document.root().find(L"a")->number(), 1);
    ASSERT_TRUE(document.read(std::wstring(kLong, L' ') + L"1"));
    EXPECT_EQ(document.root().offset(), kLong);
    EXPECT_FALSE(document.read(L'"' + std::wstring(kLong, L'\\')));
}

TEST(Json, RefusesEveryTruncationOfADocument)
{
    const std::wstring text =
        L"{\"skins\": [ {\"id\": \"a\\u0041\\n\", \"on\": true, \"off\": false, \"none\": null,"
        L" \"n\": -1.5e+3, \"list\": [ [ ], { } ] } ] }";
    JsonDocument document;
    ASSERT_TRUE(document.read(text));
    for (std::size_t size = 0; size < text.size(); ++size) {
        // A copy of its own, so that a sanitizer sees a step behind the end.
        const std::wstring truncated(text, 0, size);
        EXPECT_FALSE(document.read(truncated)) << size;
        EXPECT_LE(document.error().offset, size);
    }
}

TEST(Json, KeepsTheTreeWhenTheTextGoesAndTheDocumentMoves)
{
    JsonDocument document;
    ASSERT_TRUE(document.read(std::wstring(L"{\"name\": \"kept\", \"list\": [1, 2]}")));
    const JsonValue copy = document.root();
    const JsonDocument moved = std::move(document);
    EXPECT_EQ(writtenJson(moved.root()), L"{\"list\":[1,2],\"name\":\"kept\"}");
    EXPECT_EQ(writtenJson(copy), writtenJson(moved.root()));
}

} // namespace
} // namespace vela
