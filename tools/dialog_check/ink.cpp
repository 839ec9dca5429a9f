#include "tools/dialog_check/ink.h"

#include "vela/theme/color/contrast.h"

#include <algorithm>

namespace dialog_check {

using vela::PixelView;
using vela::Rect;
using vela::Size;

namespace {

constexpr std::int32_t kLargePoints = 18;
constexpr std::int32_t kLargeBoldPoints = 14;
constexpr std::int32_t kBold = 700;
constexpr std::size_t kGrainsPerHundred = 2;

std::wstring quoted(const Ink& ink)
{
    constexpr std::size_t kLongest = 32;
    return L"\"" + (ink.text.size() > kLongest ? ink.text.substr(0, kLongest) + L"..." : ink.text) + L"\"";
}

std::wstring sizeText(Size size) { return std::to_wstring(size.width) + L"x" + std::to_wstring(size.height); }

bool meet(const Rect& one, const Rect& other) noexcept
{
    return !vela::isEmpty(vela::sizeOf(intersection(one, other)));
}

bool isInside(const Rect& inner, const Rect& outer) noexcept { return intersection(inner, outer) == inner; }

bool hasCentre(const Rect& outer, const Rect& inner) noexcept
{
    const Rect centre{inner.x + inner.width / 2, inner.y + inner.height / 2, 1, 1};
    return isInside(centre, outer);
}

vela::Color colorOf(vela::Pixel pixel) noexcept { return vela::hexColor(pixel & 0xFFFFFF); }

// Calls visit(before, after) for the pixels inside the rectangle that differ.
template <typename Visit>
void visitChanges(const Rect& rect, const PixelView& before, const PixelView& after, const Visit& visit)
{
    const Rect part = intersection(rect, {0, 0, before.size.width, before.size.height});
    for (std::int32_t y = part.y; y < part.y + part.height; ++y) {
        const vela::Pixel* const old = before.row(y);
        const vela::Pixel* const now = after.row(y);
        for (std::int32_t x = part.x; x < part.x + part.width; ++x) {
            if (((old[x] ^ now[x]) & 0xFFFFFF) != 0)
                visit(colorOf(old[x]), colorOf(now[x]));
        }
    }
}

} // namespace

bool isLargeText(const vela::FontSpec& font) noexcept
{
    return font.pointSize >= kLargePoints || (font.pointSize >= kLargeBoldPoints && font.weight >= kBold);
}

Rect placeInRoom(const Rect& room, Size needed, Side side, vela::TextWrap wrap) noexcept
{
    const Size size{std::min(needed.width, room.width), std::min(needed.height, room.height)};
    const std::int32_t spare = room.width - size.width;
    const std::int32_t left = side == Side::Left ? 0 : side == Side::Centre ? spare / 2 : spare;
    const std::int32_t top = wrap == vela::TextWrap::Words ? 0 : (room.height - size.height) / 2;
    return {room.x + left, room.y + top, size.width, size.height};
}

const Box* ownerOf(const Ink& ink, std::span<const Box> boxes) noexcept
{
    const auto owner = std::find_if(boxes.begin(), boxes.end(),
                                    [&ink](const Box& box) { return hasCentre(box.bounds, ink.room); });
    return owner == boxes.end() ? nullptr : &*owner;
}

std::vector<std::wstring> geometryFindings(std::span<const Ink> inks, std::span<const Box> boxes, Size window)
{
    std::vector<std::wstring> found;
    for (std::size_t i = 0; i < inks.size(); ++i) {
        const Ink& ink = inks[i];
        if (ink.needed.width > ink.room.width || ink.needed.height > ink.room.height)
            found.push_back(quoted(ink) + L" is cut: it needs " + sizeText(ink.needed) + L" and has " +
                            sizeText(vela::sizeOf(ink.room)));
        if (!isInside(ink.place, {0, 0, window.width, window.height}))
            found.push_back(quoted(ink) + L" leaves the window");
        for (const Ink& other : inks.subspan(i + 1)) {
            if (meet(ink.place, other.place))
                found.push_back(quoted(ink) + L" lies over " + quoted(other));
        }
        for (const Box& box : boxes) {
            if (box.solid && meet(ink.place, box.bounds) && !isInside(ink.place, box.bounds))
                found.push_back(quoted(ink) + L" lies across the edge of " + box.id);
        }
    }
    return found;
}

float reachedContrast(const Ink& ink, const PixelView& with, const PixelView& without)
{
    std::vector<float> ratios;
    visitChanges(ink.place, without, with, [&](vela::Color ground, vela::Color) {
        ratios.push_back(vela::contrastRatio(ink.color, ground));
    });
    if (ratios.empty())
        return 1;
    const auto least = ratios.begin() + static_cast<std::ptrdiff_t>(ratios.size() * kGrainsPerHundred / 100);
    std::nth_element(ratios.begin(), least, ratios.end());
    return *least;
}

float requiredContrast(const Ink& ink, bool enabled) noexcept
{
    if (!enabled)
        return vela::kDisabledTextContrast;
    return ink.kind == InkKind::Mark || ink.large ? vela::kMarkContrast : vela::kTextContrast;
}

std::size_t strikingChanges(const Rect& rect, const PixelView& before, const PixelView& after)
{
    std::size_t count = 0;
    visitChanges(rect, before, after, [&count](vela::Color old, vela::Color now) {
        count += vela::contrastRatio(old, now) >= vela::kMarkContrast;
    });
    return count;
}

std::size_t leastFocusChange(const Rect& control) noexcept
{
    const std::int32_t line = 2 * (control.width + control.height);
    return static_cast<std::size_t>(std::max(line * 3 / 4, 0));
}

} // namespace dialog_check
