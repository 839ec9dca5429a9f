// Skin settings from JSON text, for tests.
#pragma once

#include "vela/theme/document/json.h"
#include "vela/theme/document/skin_map.h"
#include "vela/theme/skins/skin_document.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace vela {

inline std::wstring widened(std::string_view ascii) { return {ascii.begin(), ascii.end()}; }
inline std::string narrowed(std::wstring_view ascii)
{
    std::string text;
    for (const wchar_t c : ascii)
        text += static_cast<char>(c);
    return text;
}

// Single quotes stand for double ones.
inline std::wstring jsonText(std::string_view text)
{
    std::wstring wide = widened(text);
    for (wchar_t& c : wide)
        c = c == L'\'' ? L'"' : c;
    return wide;
}

inline SkinMap skinMapOf(std::string_view text)
{
    JsonDocument document;
    EXPECT_TRUE(document.read(jsonText(text))) << text;
    SkinMap map;
    map.add({}, document.root());
    map.sort();
    return map;
}

inline SkinDefinition skinOf(std::string_view text)
{
    JsonDocument document;
    EXPECT_TRUE(document.read(jsonText(text))) << text;
    SkinDefinition skin;
    EXPECT_TRUE(readSkin(document.root(), skin)) << text;
    return skin;
}

} // namespace vela
