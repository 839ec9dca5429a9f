// A strict JSON reader for skin documents. A JsonDocument holds the tree it read; the values are small views
// into it, free to copy, and live as long as the document does. The text is not needed after reading.
#pragma once

#include "vela/arena.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace vela {

// As wide as the length it is packed with: on Windows only bit fields of one width share their storage.
enum class JsonKind : std::uint32_t { Null = 0, Boolean = 1, Number = 2, String = 3, Array = 4, Object = 5 };

struct JsonMember;

class JsonValue {
public:
    JsonKind kind() const noexcept { return kind_; }

    // Empty when the value is of another kind.
    std::optional<bool> boolean() const noexcept;
    std::optional<double> number() const noexcept;
    std::optional<std::wstring_view> string() const noexcept;
    std::span<const JsonValue> items() const noexcept;    // of an array
    std::span<const JsonMember> members() const noexcept; // of an object; ordered by key, each key once

    // Null when the value is not an object or has no such member.
    const JsonValue* find(std::wstring_view key) const noexcept;

    // Where the value begins in the text it was read from, in units.
    std::uint32_t offset() const noexcept { return offset_; }

private:
    friend class JsonReader;

    union Payload {
        bool boolean;
        double number;
        const wchar_t* string;
        const JsonValue* items;
        const JsonMember* members;
    };

    Payload payload_ = {};
    std::uint32_t offset_ = 0;
    std::uint32_t size_ : 29 = 0; // of the string, array or object
    JsonKind kind_ : 3 = JsonKind::Null;
};
static_assert(sizeof(JsonValue) == 16, "values are copied freely and make up most of a tree");

struct JsonMember {
    JsonValue name; // always a string
    JsonValue value;

    std::wstring_view key() const noexcept { return *name.string(); }
};

struct JsonError {
    std::uint32_t offset = 0;     // in units, at most the size of the text
    std::string_view explanation; // English, for the writer of the document; empty when there was no error
};

// Arrays and objects may lie this deep in one another; a deeper text is malformed. Bounded, although a reader
// without recursion could do without, so that whoever walks a tree may recurse as well.
inline constexpr int kMaxJsonDepth = 256;

// In units; a longer text is malformed.
inline constexpr std::size_t kMaxJsonSize = (std::size_t{1} << 29) - 1;

class JsonDocument {
public:
    // Skips white space and reads exactly one value at the cursor, which is left behind it; the text that
    // follows is not looked at. A repeated key keeps the last value: what stands later overrides, as
    // elsewhere in skins. False when the text is malformed: then the root is null and the cursor is
    // unspecified.
    bool read(std::wstring_view text, std::size_t& cursor);
    bool read(std::wstring_view text);

    const JsonValue& root() const noexcept { return root_; }
    const JsonError& error() const noexcept { return error_; }

private:
    Arena arena_;
    JsonValue root_;
    JsonError error_;
};

} // namespace vela
