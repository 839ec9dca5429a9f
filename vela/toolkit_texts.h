// The words that the toolkit shows by itself, in the language of the program that it is part of.
#pragma once

namespace vela {

struct ToolkitTexts {
    const wchar_t* locale = L""; // of all texts: it decides the shapes of a few letters

    // Hints of the buttons of a title bar and of a popup.
    const wchar_t* close = L"";
    const wchar_t* minimize = L"";
    const wchar_t* maximize = L"";
    const wchar_t* restore = L"";
    const wchar_t* resetSize = L"";

    // The menu of a text field.
    const wchar_t* undo = L"";
    const wchar_t* cut = L"";
    const wchar_t* copy = L"";
    const wchar_t* paste = L"";
    const wchar_t* erase = L"";
    const wchar_t* selectAll = L"";
};

// A program gives its table once at its start, before its first control and its first text. Only a reference
// to it is held, so it lives as long as the program.
void setToolkitTexts(const ToolkitTexts& texts) noexcept;
void setToolkitTexts(const ToolkitTexts&&) = delete;

// To ask before they are given is an error, which a debug build stops at.
const ToolkitTexts& toolkitTexts() noexcept;

} // namespace vela
