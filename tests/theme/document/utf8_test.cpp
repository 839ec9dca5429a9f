#include "vela/theme/document/utf8.h"

#include <string>

#include <gtest/gtest.h>

namespace vela {
namespace {

TEST(Utf8, DecodesWellFormedText)
{
    const struct {
        std::string_view bytes;
        std::wstring_view text;
    } rows[] = {
        {"", L""},
        {"plain", L"plain"},
        {"P\xC5\x99\xC3\xAD\xC5\xA1"
         "ern\xC4\x9B",
         L"P\u0159\u00ed\u0161"
         L"ern\u011b"},
        {"\xC2\x80\xDF\xBF\xE0\xA0\x80", L"\u0080\u07ff\u0800"},
        {"\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF", L"\ud7ff\ue000\uffff"},
        // A pair of surrogates where a unit has 16 bits, which is what the compiler makes of it too.
        {"a\xF0\x9F\x98\x80"
         "b\xF0\x90\x80\x80\xF4\x8F\xBF\xBF",
         L"a\U0001f600"
         L"b\U00010000\U0010ffff"},
        {"\xEF\xBB\xBF{}", L"{}"},
        {"\xEF\xBB\xBF", L""},
        {"\xEF\xBB\xBF\xEF\xBB\xBF{}", L"\ufeff{}"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(decodeUtf8(row.bytes), row.text) << row.bytes;
    EXPECT_EQ(decodeUtf8(std::string_view("a\0b", 3)), std::wstring_view(L"a\0b", 3));
}

TEST(Utf8, ReplacesEveryByteThatBelongsToNoCharacter)
{
    const struct {
        std::string_view bytes;
        std::wstring_view text;
    } rows[] = {
        {"a\x80z", L"a\ufffdz"},                               // continuation alone
        {"a\xFFz\xFE", L"a\ufffdz\ufffd"},                     // never a byte of UTF-8
        {"\xC3", L"\ufffd"},                                   // cut off
        {"\xC3z", L"\ufffdz"},                                 // the next character stays
        {"\xE2\x82", L"\ufffd\ufffd"},                         // cut off after two of three
        {"\xE2\x82z", L"\ufffd\ufffdz"},                       //
        {"\xF0\x9F\x98\xC3\xA9", L"\ufffd\ufffd\ufffd\u00e9"}, //
        {"\xC0\xAF", L"\ufffd\ufffd"},                         // longer than needed
        {"\xE0\x9F\xBF", L"\ufffd\ufffd\ufffd"},               //
        {"\xF0\x8F\xBF\xBF", L"\ufffd\ufffd\ufffd\ufffd"},     //
        {"\xED\xA0\x80", L"\ufffd\ufffd\ufffd"},               // a surrogate
        {"\xF4\x90\x80\x80", L"\ufffd\ufffd\ufffd\ufffd"},     // beyond U+10FFFF
        {"\xF8\x88\x80\x80\x80", L"\ufffd\ufffd\ufffd\ufffd\ufffd"},
        {"\xEF\xBB{}", L"\ufffd\ufffd{}"}, // half a byte-order mark
    };
    for (const auto& row : rows)
        EXPECT_EQ(decodeUtf8(row.bytes), row.text) << row.bytes;
}

} // namespace
} // namespace vela
