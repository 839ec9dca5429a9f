#include "vela/theme/document/skin_map.h"

#include "vela/text.h"
#include "vela/theme/document/json.h"
#include "vela/theme/records/spellings.h"

#include <algorithm>
#include <cstdint>
#include <optional>

namespace vela {
namespace {

// The longest path that a reader asks for has about a hundred units; variant names are free.
constexpr std::size_t kMaxPathLength = 192;

// Every number of a skin is an integer; one beyond any field's range only has to stay beyond it.
constexpr double kMaxNumber = 1e15;

std::wstring numberText(double number)
{
    const bool negative = number < 0;
    const double magnitude = std::min(negative ? -number : number, kMaxNumber);
    return decimalText(static_cast<std::uint64_t>(magnitude), negative);
}

// False when the value is no leaf or is null.
bool appendLeaf(std::wstring& text, const JsonValue& value)
{
    if (const std::optional<std::wstring_view> string = value.string())
        text += *string;
    else if (const std::optional<double> number = value.number())
        text += numberText(*number);
    else if (const std::optional<bool> boolean = value.boolean())
        text += *boolean ? L"true" : L"false";
    else
        return false;
    return true;
}

std::uint32_t position(std::size_t size) noexcept { return static_cast<std::uint32_t>(size); }

// The order of a normalised path and a key, which is normalised while it is read. Only the units from the
// given depth on are compared. With prefixOnly, a path that goes on with a dot after the key is equal to it.
template <typename Char>
int comparePath(std::wstring_view path, std::size_t depth, std::basic_string_view<Char> key, bool prefixOnly)
{
    path.remove_prefix(depth);
    for (const Char unit : key) {
        const auto c = static_cast<wchar_t>(unit);
        if (c == L'_' || c == L'-' || isSpace(c))
            continue;
        if (path.empty())
            return -1;
        if (path.front() != lowerAscii(c))
            return path.front() < lowerAscii(c) ? -1 : 1;
        path.remove_prefix(1);
    }
    if (!prefixOnly)
        return path.empty() ? 0 : 1;
    if (path.empty())
        return -1;
    return path.front() == L'.' ? 0 : path.front() < L'.' ? -1 : 1;
}

template <typename Char>
std::size_t normalizedLength(std::basic_string_view<Char> key) noexcept
{
    return static_cast<std::size_t>(std::count_if(key.begin(), key.end(), [](Char unit) {
        return unit != Char('_') && unit != Char('-') && !isSpace(static_cast<wchar_t>(unit));
    }));
}

} // namespace

void SkinMap::add(std::wstring_view path, const JsonValue& value)
{
    std::wstring normalized = normalizedName(path);
    addLeaves(normalized, value);
}

void SkinMap::addText(std::wstring_view path, std::wstring_view text)
{
    const std::wstring normalized = normalizedName(path);
    if (normalized.size() > kMaxPathLength)
        return;
    const std::size_t start = text_.size();
    text_ += normalized;
    text_ += text;
    settings_.push_back({position(start), position(normalized.size()), position(start + normalized.size()),
                         position(text.size())});
}

// Recursion ends with the path: every level makes it longer by a dot at least.
void SkinMap::addLeaves(std::wstring& path, const JsonValue& value)
{
    if (path.size() > kMaxPathLength)
        return;
    if (value.kind() == JsonKind::Array) {
        addArray(path, value.items());
        return;
    }
    if (value.kind() != JsonKind::Object) {
        const std::size_t start = text_.size();
        text_ += path;
        const std::size_t textStart = text_.size();
        if (appendLeaf(text_, value))
            settings_.push_back({position(start), position(path.size()), position(textStart),
                                 position(text_.size() - textStart)});
        else
            text_.resize(start);
        return;
    }
    const std::size_t length = path.size();
    for (const JsonMember& member : value.members()) {
        if (!path.empty())
            path += L'.';
        path += normalizedName(member.key());
        addLeaves(path, member.value);
        path.resize(length);
    }
}

void SkinMap::addArray(std::wstring_view path, std::span<const JsonValue> items)
{
    const std::size_t start = text_.size();
    text_ += path;
    const std::size_t textStart = text_.size();
    for (const JsonValue& item : items) {
        if (&item != items.data())
            text_ += L',';
        if (!appendLeaf(text_, item)) {
            text_.resize(start);
            return;
        }
    }
    settings_.push_back(
        {position(start), position(path.size()), position(textStart), position(text_.size() - textStart)});
}

void SkinMap::sort()
{
    std::sort(settings_.begin(), settings_.end(), [this](const Setting& left, const Setting& right) {
        const int order = pathOf(left).compare(pathOf(right));
        return order != 0 ? order < 0 : left.path < right.path;
    });
}

SkinView::SkinView(const SkinMap& map) noexcept : map_(&map), below_(map.settings_) {}

template <typename Char>
SkinView SkinView::find(std::basic_string_view<Char> key) const noexcept
{
    const auto range = [this, key](bool prefixOnly) {
        const auto order = [this, key, prefixOnly](const SkinMap::Setting& setting) {
            return comparePath(map_->pathOf(setting), depth_, key, prefixOnly);
        };
        const auto first = std::partition_point(below_.begin(), below_.end(),
                                                [&](const auto& setting) { return order(setting) < 0; });
        const auto last = std::partition_point(first, below_.end(),
                                               [&](const auto& setting) { return order(setting) == 0; });
        return Settings(first, last);
    };
    if (below_.empty())
        return {*map_, {}, {}, depth_};
    return {*map_, range(false), range(true), depth_ + normalizedLength(key) + 1};
}

SkinView SkinView::at(std::wstring_view key) const noexcept { return find(key); }
SkinView SkinView::at(std::string_view key) const noexcept { return find(key); }

std::uint32_t SkinView::initials() const noexcept
{
    std::uint32_t initials = 0;
    for (const SkinMap::Setting& setting : below_) {
        const std::wstring_view rest = map_->pathOf(setting).substr(depth_);
        initials |= rest.empty() ? 0 : initialOf(rest.front());
    }
    return initials;
}

std::uint32_t SkinView::initialOf(wchar_t c) noexcept
{
    const wchar_t lower = lowerAscii(c);
    const bool isLetter = lower >= L'a' && lower <= L'z';
    return std::uint32_t{1} << (isLetter ? lower - L'a' : 26);
}

std::vector<std::wstring_view> SkinView::childNames() const
{
    std::vector<std::wstring_view> names;
    for (const SkinMap::Setting& setting : below_) {
        const std::wstring_view rest = map_->pathOf(setting).substr(depth_);
        const std::wstring_view name = rest.substr(0, rest.find(L'.'));
        if (names.empty() || names.back() != name)
            names.push_back(name);
    }
    return names;
}

} // namespace vela
