// Any bytes, decoded and read as JSON: what is refused is refused with a place in the text; what is read is
// well-formed, points back into the text and survives being written and read again.
#include "tests/support/written_json.h"
#include "vela/theme/document/json.h"
#include "vela/theme/document/utf8.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

using namespace vela;

void require(bool holds)
{
    if (!holds)
        std::abort();
}

bool canBegin(wchar_t unit, JsonKind kind)
{
    switch (kind) {
    case JsonKind::Null: return unit == L'n';
    case JsonKind::Boolean: return unit == L't' || unit == L'f';
    case JsonKind::Number: return std::wstring_view(L"-.eE0123456789").find(unit) != std::wstring_view::npos;
    case JsonKind::String: return unit == L'"';
    case JsonKind::Array: return unit == L'[';
    case JsonKind::Object: return unit == L'{';
    }
    return false;
}

void checkTree(const JsonValue& value, std::wstring_view text, int depth = 0)
{
    require(value.offset() < text.size() && canBegin(text[value.offset()], value.kind()));
    require(depth <= kMaxJsonDepth);
    for (const JsonValue& item : value.items())
        checkTree(item, text, depth + 1);
    const JsonMember* previous = nullptr;
    for (const JsonMember& member : value.members()) {
        require(previous == nullptr || previous->key() < member.key());
        require(value.find(member.key()) == &member.value);
        checkTree(member.name, text, depth + 1);
        checkTree(member.value, text, depth + 1);
        previous = &member;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::wstring text = decodeUtf8({reinterpret_cast<const char*>(data), size});
    JsonDocument document;
    std::size_t cursor = 0;
    if (!document.read(text, cursor)) {
        require(document.error().offset <= text.size() && !document.error().explanation.empty());
        return 0;
    }
    require(cursor > 0 && cursor <= text.size());
    checkTree(document.root(), std::wstring_view(text).substr(0, cursor));

    const std::wstring written = writtenJson(document.root());
    JsonDocument again;
    require(again.read(written) && writtenJson(again.root()) == written);
    // What follows the value has no say in it.
    JsonDocument alone;
    require(alone.read(text.substr(0, cursor)) && writtenJson(alone.root()) == written);
    return 0;
}
