// The bytes of a text file as wide text. The code page is UTF-8, as JSON asks; a machine's own would make the
// same skin read differently from one country to the next.
#pragma once

#include <string>
#include <string_view>

namespace vela {

// A byte-order mark at the start is skipped. Every byte that does not belong to a well-formed sequence
// becomes U+FFFD, so that one bad byte never costs more than itself. Characters beyond U+FFFF become a
// surrogate pair where wchar_t has 16 bits.
std::wstring decodeUtf8(std::string_view bytes);

} // namespace vela
