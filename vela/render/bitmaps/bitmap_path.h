// Which files a skin may name as its bitmaps. Skins come from anywhere and are read by an elevated program: a
// path must lead to a file in the folder of the skin's own document or below it.
#pragma once

#include <string>
#include <string_view>

namespace vela {

// A relative path of plain names, separated by "/" or "\". No drive, no root, no network name, no "..", no
// stream, no device, nothing that Windows would quietly turn into another name.
bool isSafeBitmapPath(std::wstring_view path) noexcept;

// The file of a safe path in a folder; empty when the path is not safe or there is no folder.
std::wstring bitmapFile(std::wstring_view folder, std::wstring_view path);

} // namespace vela
