#include "vela/render/text/text_places.h"

#include "vela/render/text/text_lines.h"
#include "vela/text_clusters.h"

#include <algorithm>
#include <cmath>

namespace vela {
namespace {

std::int32_t toPixels(float x) noexcept
{
    constexpr auto kLimit = static_cast<float>(kWidestText);
    return static_cast<std::int32_t>(std::lround(std::clamp(x, -kLimit, kLimit)));
}

struct UnitPlace {
    float left = 0;
    float right = 0;
    bool runsLeft = false;
    bool isKnown = false;
};

bool isCaretStop(std::wstring_view text, std::size_t index) noexcept
{
    return nearestCaretStop(text, index) == index;
}

// Takes down where each unit of a run stands.
class RunReader {
public:
    RunReader(std::wstring_view text, const GlyphRunPlaces& run, std::vector<UnitPlace>& units)
        : text_(text), run_(run), units_(units), pen_(run.x)
    {
    }

    void read()
    {
        const std::size_t room = run_.begin < text_.size() ? text_.size() - run_.begin : 0;
        const std::size_t count = std::min(run_.clusters.size(), room);
        for (std::size_t first = 0; first < count;) {
            std::size_t next = first + 1;
            while (next < count && run_.clusters[next] == run_.clusters[first])
                ++next;
            const std::size_t last = next < count ? run_.clusters[next] : run_.advances.size();
            placeCluster(run_.begin + first, run_.begin + next, run_.clusters[first], last);
            first = next;
        }
    }

private:
    float widthOf(std::size_t glyph, std::size_t end) const noexcept
    {
        float width = 0;
        for (; glyph < std::min(end, run_.advances.size()); ++glyph)
            width += run_.advances[glyph];
        return width;
    }

    // Letters that a font joins to one glyph get as much of its width each.
    void placeCluster(std::size_t first, std::size_t next, std::size_t glyph, std::size_t endGlyph)
    {
        std::size_t letters = 1;
        for (std::size_t unit = first + 1; unit < next; ++unit)
            letters += isCaretStop(text_, unit);
        const bool hasOwnGlyphs = glyph + letters == endGlyph;
        const float share = widthOf(glyph, endGlyph) / static_cast<float>(letters);
        for (std::size_t unit = first; unit < next;) {
            const float width = hasOwnGlyphs ? widthOf(glyph, glyph + 1) : share;
            const float end = run_.runsLeft ? pen_ - width : pen_ + width;
            do
                units_[unit] = {std::min(pen_, end), std::max(pen_, end), run_.runsLeft, true};
            while (++unit < next && !isCaretStop(text_, unit));
            pen_ = end;
            ++glyph;
        }
    }

    std::wstring_view text_;
    const GlyphRunPlaces& run_;
    std::vector<UnitPlace>& units_;
    float pen_;
};

// Around all units of a cluster; one without glyphs takes no room behind the cluster before it.
UnitPlace joined(const std::vector<UnitPlace>& units, std::size_t begin, std::size_t end,
                 const UnitPlace& before)
{
    const float edge = before.runsLeft ? before.left : before.right;
    UnitPlace all{edge, edge, before.runsLeft, false};
    for (std::size_t unit = begin; unit < end; ++unit) {
        const UnitPlace& one = units[unit];
        if (!one.isKnown)
            continue;
        all = all.isKnown ? UnitPlace{std::min(all.left, one.left), std::max(all.right, one.right),
                                      all.runsLeft, true}
                          : one;
    }
    return all;
}

} // namespace

TextPlaces::TextPlaces(std::wstring_view text, const std::vector<GlyphRunPlaces>& runs) : length_(text.size())
{
    std::vector<UnitPlace> units(text.size());
    for (const GlyphRunPlaces& run : runs)
        RunReader(text, run, units).read();
    UnitPlace place;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = nextCaretStop(text, begin);
        place = joined(units, begin, end, place);
        places_.push_back({begin, toPixels(place.left), toPixels(place.right), place.runsLeft});
        begin = end;
    }
}

TextPlaces::TextPlaces(std::wstring_view text, const std::vector<std::int32_t>& ends) : length_(text.size())
{
    std::int32_t left = 0;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = nextCaretStop(text, begin);
        const std::int32_t right = std::clamp(ends[end - 1], left, kWidestText);
        places_.push_back({begin, left, right, false});
        left = right;
        begin = end;
    }
}

std::int32_t TextPlaces::width() const noexcept
{
    std::int32_t width = 0;
    for (const Place& place : places_)
        width = std::max(width, place.right);
    return width;
}

std::int32_t TextPlaces::caretX(std::size_t index) const noexcept
{
    if (places_.empty())
        return 0;
    if (index >= length_)
        return places_.back().runsLeft ? places_.back().left : places_.back().right;
    const auto next =
        std::upper_bound(places_.begin(), places_.end(), index,
                         [](std::size_t unit, const Place& place) { return unit < place.begin; });
    const Place& place = *std::prev(next);
    return place.runsLeft ? place.right : place.left;
}

std::size_t TextPlaces::endOf(const Place& place) const noexcept
{
    return &place == &places_.back() ? length_ : (&place)[1].begin;
}

std::size_t TextPlaces::indexAt(std::int32_t x) const noexcept
{
    const auto distance = [x](const Place& place) {
        return x < place.left     ? std::int64_t{place.left} - x
               : x >= place.right ? std::int64_t{x} - place.right + 1
                                  : 0;
    };
    const Place* nearest = nullptr;
    for (const Place& place : places_) {
        if (place.left < place.right && (!nearest || distance(place) < distance(*nearest)))
            nearest = &place;
    }
    if (!nearest)
        return 0;
    const bool isInLeftHalf = std::int64_t{nearest->left} + nearest->right > 2 * std::int64_t{x};
    return isInLeftHalf != nearest->runsLeft ? nearest->begin : endOf(*nearest);
}

std::vector<TextSpan> TextPlaces::spans(std::size_t begin, std::size_t end) const
{
    std::vector<TextSpan> covered;
    for (const Place& place : places_) {
        if (place.begin < end && endOf(place) > begin && place.left < place.right)
            covered.push_back({place.left, place.right});
    }
    std::sort(covered.begin(), covered.end(),
              [](const TextSpan& a, const TextSpan& b) { return a.left < b.left; });
    std::vector<TextSpan> spans;
    for (const TextSpan& span : covered) {
        if (!spans.empty() && span.left <= spans.back().right)
            spans.back().right = std::max(spans.back().right, span.right);
        else
            spans.push_back(span);
    }
    return spans;
}

} // namespace vela
