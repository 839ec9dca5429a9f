// Writes a JSON tree as text that reads back as the same tree: members by key, no white space, everything but
// printable ASCII escaped. What tests compare and what the fuzzer feeds back.
#pragma once

#include "vela/theme/document/json.h"

#include <cmath>
#include <cstdio>
#include <string>

namespace vela {

inline std::wstring writtenJson(std::wstring_view string)
{
    std::wstring text = L"\"";
    for (const wchar_t unit : string) {
        const auto code = static_cast<unsigned long>(unit);
        if (code > 0xFFFF) {
            text += unit;
        } else if (code < 0x20 || code > 0x7E || unit == L'"' || unit == L'\\') {
            char escape[8];
            std::snprintf(escape, sizeof escape, "\\u%04lx", code);
            text.append(escape, escape + 6);
        } else {
            text += unit;
        }
    }
    return text + L'"';
}

inline std::wstring writtenJson(double number)
{
    if (std::isinf(number))
        return number < 0 ? L"-1e999" : L"1e999";
    char text[32];
    const int length = std::snprintf(text, sizeof text, "%.17g", number);
    return {text, text + length};
}

inline std::wstring writtenJson(const JsonValue& value)
{
    std::wstring text;
    switch (value.kind()) {
    case JsonKind::Null: return L"null";
    case JsonKind::Boolean: return *value.boolean() ? L"true" : L"false";
    case JsonKind::Number: return writtenJson(*value.number());
    case JsonKind::String: return writtenJson(*value.string());
    case JsonKind::Array:
        for (const JsonValue& item : value.items())
            text += (text.empty() ? L"" : L",") + writtenJson(item);
        return L"[" + text + L"]";
    case JsonKind::Object:
        for (const JsonMember& member : value.members())
            text +=
                (text.empty() ? L"" : L",") + writtenJson(member.key()) + L":" + writtenJson(member.value);
        return L"{" + text + L"}";
    }
    return text;
}

} // namespace vela
