#include "vela/theme/document/json.h"

#include "vela/text.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

namespace vela {

namespace {

struct Escape {
    wchar_t letter;
    wchar_t unit;
};

constexpr Escape kEscapes[] = {
    {L'"', L'"'},  {L'\\', L'\\'}, {L'/', L'/'},  {L'b', L'\b'},
    {L'f', L'\f'}, {L'n', L'\n'},  {L'r', L'\r'}, {L't', L'\t'},
};

struct Word {
    std::wstring_view text;
    JsonKind kind;
    bool boolean;
};

constexpr Word kWords[] = {
    {L"true", JsonKind::Boolean, true},
    {L"false", JsonKind::Boolean, false},
    {L"null", JsonKind::Null, false},
};

// The C library's conversion without its locale: the point, which a locale may spell otherwise, is left out
// and the exponent lowered by the digits behind it. (std::from_chars knows no locale either, but adds 33 KB
// to a static program where this adds 14.)
double toDouble(std::wstring_view scanned)
{
    if (scanned.size() <= 9 && std::all_of(scanned.begin(), scanned.end(), isDigit))
        return *leadingInteger(scanned);
    std::string decimal;
    std::int64_t exponent = 0;
    const std::size_t mantissaEnd = std::min(scanned.find_first_of(L"eE"), scanned.size());
    bool behindPoint = false;
    for (const wchar_t c : scanned.substr(0, mantissaEnd)) {
        if (c == L'.') {
            behindPoint = true;
            continue;
        }
        decimal.push_back(static_cast<char>(c));
        exponent -= behindPoint ? 1 : 0;
    }
    if (mantissaEnd < scanned.size())
        exponent += leadingInteger(scanned.substr(mantissaEnd + 1)).value_or(0);
    decimal += 'e';
    const std::wstring digits = decimalText(exponent);
    decimal.append(digits.begin(), digits.end());
    return std::strtod(decimal.c_str(), nullptr);
}

} // namespace

std::optional<bool> JsonValue::boolean() const noexcept
{
    return kind_ == JsonKind::Boolean ? std::optional(payload_.boolean) : std::nullopt;
}

std::optional<double> JsonValue::number() const noexcept
{
    return kind_ == JsonKind::Number ? std::optional(payload_.number) : std::nullopt;
}

std::optional<std::wstring_view> JsonValue::string() const noexcept
{
    return kind_ == JsonKind::String ? std::optional(std::wstring_view(payload_.string, size_))
                                     : std::nullopt;
}

std::span<const JsonValue> JsonValue::items() const noexcept
{
    return kind_ == JsonKind::Array ? std::span(payload_.items, size_) : std::span<const JsonValue>();
}

std::span<const JsonMember> JsonValue::members() const noexcept
{
    return kind_ == JsonKind::Object ? std::span(payload_.members, size_) : std::span<const JsonMember>();
}

const JsonValue* JsonValue::find(std::wstring_view key) const noexcept
{
    const auto all = members();
    const auto found =
        std::lower_bound(all.begin(), all.end(), key, [](const JsonMember& member, std::wstring_view wanted) {
            return member.key() < wanted;
        });
    return found != all.end() && found->key() == key ? &found->value : nullptr;
}

// One pass over the text. The items and members of containers that are still open wait on two stacks; a
// container that closes moves its own into the arena in one piece.
class JsonReader {
public:
    JsonReader(std::wstring_view text, std::size_t cursor, Arena& arena)
        : begin_(text.data()), at_(begin_ + std::min(cursor, text.size())), end_(begin_ + text.size()),
          arena_(arena)
    {
    }

    std::size_t cursor() const noexcept { return static_cast<std::size_t>(at_ - begin_); }
    const JsonError& error() const noexcept { return error_; }

    bool readValue(JsonValue& value, int depth = 0)
    {
        skip(isSpace);
        value.offset_ = offset();
        switch (at_ != end_ ? *at_ : L'\0') {
        case L'"': return readString(value);
        case L'{': return readObject(value, depth);
        case L'[': return readArray(value, depth);
        case L't':
        case L'f':
        case L'n': return readWord(value);
        default: return readNumber(value);
        }
    }

private:
    std::uint32_t offset() const noexcept { return static_cast<std::uint32_t>(cursor()); }

    static void setKind(JsonValue& value, JsonKind kind, std::size_t size = 0) noexcept
    {
        value.kind_ = kind;
        value.size_ = size & kMaxJsonSize; // nothing is larger than the text it came from
    }

    bool fail(std::string_view explanation) noexcept
    {
        error_ = {offset(), explanation};
        return false;
    }

    void skip(bool (*belongs)(wchar_t)) noexcept
    {
        while (at_ != end_ && belongs(*at_))
            ++at_;
    }

    bool take(wchar_t expected) noexcept
    {
        const bool found = at_ != end_ && *at_ == expected;
        at_ += found ? 1 : 0;
        return found;
    }

    bool readWord(JsonValue& value) noexcept
    {
        const std::wstring_view rest(at_, static_cast<std::size_t>(end_ - at_));
        for (const Word& word : kWords) {
            if (!rest.starts_with(word.text))
                continue;
            at_ += word.text.size();
            setKind(value, word.kind);
            value.payload_.boolean = word.boolean;
            return true;
        }
        return fail("expected true, false or null");
    }

    // Takes more than JSON allows ("007", "1.", "-"); what the scan took is what the C library makes of it.
    bool readNumber(JsonValue& value)
    {
        const wchar_t* const start = at_;
        take(L'-');
        skip(isDigit);
        if (take(L'.'))
            skip(isDigit);
        if (take(L'e') || take(L'E')) {
            if (!take(L'+'))
                take(L'-');
            skip(isDigit);
        }
        if (at_ == start)
            return fail("expected a value");
        setKind(value, JsonKind::Number);
        value.payload_.number = toDouble({start, static_cast<std::size_t>(at_ - start)});
        return true;
    }

    bool readString(JsonValue& value)
    {
        if (!take(L'"'))
            return fail("expected a string in double quotes");
        const wchar_t* close = at_;
        while (close != end_ && *close != L'"')
            close += *close == L'\\' && close + 1 != end_ ? 2 : 1;
        if (close == end_) {
            at_ = end_;
            return fail("the closing double quote is missing");
        }
        // An escape is never shorter than what it stands for.
        const auto room = static_cast<std::size_t>(close - at_);
        auto* const units = static_cast<wchar_t*>(arena_.allocate(room * sizeof(wchar_t)));
        wchar_t* last = units;
        while (at_ != close) {
            const wchar_t* const escape = std::find(at_, close, L'\\');
            last = std::copy(at_, escape, last);
            at_ = escape;
            if (take(L'\\') && !readEscape(*last++))
                return false;
        }
        ++at_;
        value.payload_.string = units;
        setKind(value, JsonKind::String, static_cast<std::size_t>(last - units));
        return true;
    }

    // The cursor stands behind the backslash; the string's closing quote is known to follow.
    bool readEscape(wchar_t& unit) noexcept
    {
        for (const Escape& escape : kEscapes) {
            if (take(escape.letter)) {
                unit = escape.unit;
                return true;
            }
        }
        if (!take(L'u'))
            return fail("unknown escape");
        // One unit, wherever wchar_t has 32 bits too: a pair of surrogates stays two.
        std::uint32_t code = 0;
        for (int digit = 0; digit < 4; ++digit, ++at_) {
            const auto value = hexDigit(*at_);
            if (!value)
                return fail("expected four hexadecimal digits");
            code = code * 16 + *value;
        }
        unit = static_cast<wchar_t>(code);
        return true;
    }

    bool readArray(JsonValue& array, int depth)
    {
        if (depth == kMaxJsonDepth)
            return fail("nested too deep");
        take(L'[');
        const std::size_t first = items_.size();
        skip(isSpace);
        if (!take(L']')) {
            do {
                JsonValue item;
                if (!readValue(item, depth + 1))
                    return false;
                items_.push_back(item);
                skip(isSpace);
            } while (take(L','));
            if (!take(L']'))
                return fail("expected \",\" or \"]\"");
        }
        setKind(array, JsonKind::Array, items_.size() - first);
        array.payload_.items = store(items_, first);
        return true;
    }

    bool readObject(JsonValue& object, int depth)
    {
        if (depth == kMaxJsonDepth)
            return fail("nested too deep");
        take(L'{');
        const std::size_t first = members_.size();
        skip(isSpace);
        if (!take(L'}')) {
            do {
                if (!readMember(depth + 1))
                    return false;
                skip(isSpace);
            } while (take(L','));
            if (!take(L'}'))
                return fail("expected \",\" or \"}\"");
        }
        sortMembers(first);
        setKind(object, JsonKind::Object, members_.size() - first);
        object.payload_.members = store(members_, first);
        return true;
    }

    bool readMember(int depth)
    {
        JsonMember member;
        skip(isSpace);
        member.name.offset_ = offset();
        if (!readString(member.name))
            return false;
        skip(isSpace);
        if (!take(L':'))
            return fail("expected \":\"");
        if (!readValue(member.value, depth))
            return false;
        members_.push_back(member);
        return true;
    }

    // Of members with the same key the one that stands last in the text comes first and alone stays.
    void sortMembers(std::size_t first)
    {
        const auto begin = members_.begin() + static_cast<std::ptrdiff_t>(first);
        std::sort(begin, members_.end(), [](const JsonMember& left, const JsonMember& right) {
            const int order = left.key().compare(right.key());
            return order != 0 ? order < 0 : left.name.offset() > right.name.offset();
        });
        const auto sameKey = [](const JsonMember& left, const JsonMember& right) {
            return left.key() == right.key();
        };
        members_.erase(std::unique(begin, members_.end(), sameKey), members_.end());
    }

    template <typename Element>
    const Element* store(std::vector<Element>& waiting, std::size_t first)
    {
        const std::size_t count = waiting.size() - first;
        auto* const stored = static_cast<Element*>(arena_.allocate(count * sizeof(Element)));
        std::uninitialized_copy_n(waiting.begin() + static_cast<std::ptrdiff_t>(first), count, stored);
        waiting.resize(first);
        return stored;
    }

    const wchar_t* begin_;
    const wchar_t* at_;
    const wchar_t* end_;
    Arena& arena_;
    JsonError error_;
    std::vector<JsonValue> items_;
    std::vector<JsonMember> members_;
};

bool JsonDocument::read(std::wstring_view text, std::size_t& cursor)
{
    *this = {};
    JsonReader reader(text, cursor, arena_);
    if (text.size() > kMaxJsonSize) {
        error_ = {0, "the text is too long"};
        return false;
    }
    JsonValue value;
    if (!reader.readValue(value)) {
        error_ = reader.error();
        return false;
    }
    root_ = value;
    cursor = reader.cursor();
    return true;
}

bool JsonDocument::read(std::wstring_view text)
{
    std::size_t cursor = 0;
    return read(text, cursor);
}

} // namespace vela
