#include "vela/render/bitmaps/tinted_bitmap.h"

#include "vela/render/bitmaps/bitmap_tint.h"
#include "vela/render/pixels/insets.h"
#include "vela/render/pixels/length_limits.h"
#include "vela/theme/fields/record_scale.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace vela {
namespace {

Pixel premultiplied(const Channels& c) noexcept
{
    return pixelOf({c.red * c.alpha / 255, c.green * c.alpha / 255, c.blue * c.alpha / 255, c.alpha});
}

bool isOpaque(const BitmapImage& image) noexcept
{
    return std::all_of(image.pixels.begin(), image.pixels.end(),
                       [](Pixel pixel) { return alphaOf(pixel) == 255; });
}

const Pixel* rowOf(const BitmapImage& image, std::int32_t y) noexcept
{
    return image.pixels.data() + static_cast<std::ptrdiff_t>(y) * image.size.width;
}

// Both pixels' channels weighed against each other, two at a time. The weight is the second one's, 0 to 256.
Pixel lerp(Pixel first, Pixel second, unsigned weight) noexcept
{
    const auto mix = [weight](Pixel a, Pixel b) { return a * (256 - weight) + b * weight; };
    const Pixel redBlue = mix(first & 0xFF00FF, second & 0xFF00FF) >> 8 & 0xFF00FF;
    const Pixel alphaGreen = mix(first >> 8 & 0xFF00FF, second >> 8 & 0xFF00FF) & 0xFF00FF00;
    return redBlue | alphaGreen;
}

BitmapImage halved(const BitmapImage& image)
{
    BitmapImage half{{(image.size.width + 1) / 2, (image.size.height + 1) / 2}, {}};
    half.pixels.reserve(static_cast<std::size_t>(half.size.width) *
                        static_cast<std::size_t>(half.size.height));
    for (std::int32_t y = 0; y < image.size.height; y += 2) {
        const Pixel* const upper = rowOf(image, y);
        const Pixel* const lower = rowOf(image, std::min(y + 1, image.size.height - 1));
        for (std::int32_t x = 0; x < image.size.width; x += 2) {
            const std::int32_t next = std::min(x + 1, image.size.width - 1);
            half.pixels.push_back(
                lerp(lerp(upper[x], upper[next], 128), lerp(lower[x], lower[next], 128), 128));
        }
    }
    return half;
}

// Which two pixels of the bitmap make one of the surface, along one axis.
struct AxisSample {
    std::int32_t first;
    std::int32_t second;
    unsigned weight; // of the second, 0 to 256
};

// One axis of the bitmap laid over a length of the surface, with margins at both ends that only grow with the
// DPI. They shrink together when the surface is shorter than both.
class AxisMap {
public:
    AxisMap(std::int32_t source, std::int32_t painted, std::int32_t nearMargin, std::int32_t farMargin,
            std::int32_t dpi) noexcept
        : source_(source), painted_(painted), near_(std::clamp(nearMargin, 0, source)),
          far_(std::clamp(farMargin, 0, source - near_)), paintedNear_(scaledLength(near_, dpi)),
          paintedFar_(scaledLength(far_, dpi))
    {
        const std::int64_t both = std::int64_t{paintedNear_} + paintedFar_;
        if (both > painted) {
            paintedNear_ = static_cast<std::int32_t>(std::int64_t{painted} * paintedNear_ / both);
            paintedFar_ = painted - paintedNear_;
        }
    }

    AxisSample at(std::int32_t pixel) const noexcept
    {
        if (pixel < paintedNear_)
            return sample(pixel, paintedNear_, 0, near_);
        const std::int32_t farStart = painted_ - paintedFar_;
        if (pixel >= farStart)
            return sample(pixel - farStart, paintedFar_, source_ - far_, far_);
        return sample(pixel - paintedNear_, farStart - paintedNear_, near_, source_ - near_ - far_);
    }

private:
    // Samples stay within their part, so a stretched middle does not bleed into a margin.
    AxisSample sample(std::int32_t pixel, std::int32_t painted, std::int32_t start,
                      std::int32_t length) const noexcept
    {
        if (length < 1) {
            const std::int32_t only = std::max(start - 1, 0);
            return {only, only, 0};
        }
        // 24.8 fixed point: the place of the pixel's centre, counted from the centre of the part's first
        // pixel.
        const std::int64_t halves = (2 * std::int64_t{pixel} + 1) * length;
        const std::int64_t centre = halves / painted * 128 + halves % painted * 128 / painted - 128;
        const std::int64_t place = std::clamp<std::int64_t>(centre, 0, (std::int64_t{length} - 1) * 256);
        const auto first = static_cast<std::int32_t>(place >> 8);
        return {start + first, start + std::min(first + 1, length - 1), static_cast<unsigned>(place & 255)};
    }

    std::int32_t source_;
    std::int32_t painted_;
    std::int32_t near_;
    std::int32_t far_;
    std::int32_t paintedNear_;
    std::int32_t paintedFar_;
};

bool isPlain(const Insets& margins) noexcept { return margins == Insets{}; }

// Produces the bitmap's pixels as they lie on the surface, row by row.
class BitmapSampler {
public:
    BitmapSampler(const TintedBitmap& bitmap, const BitmapPlacement& placement, Span columns)
        : image_(isPlain(placement.fixedMargins) ? bitmap.levelFor(sizeOf(placement.rect))
                                                 : bitmap.original()),
          rect_(placement.rect),
          columns_(intersect(columns, {rect_.x, saturated(std::int64_t{rect_.x} + rect_.width)})),
          rows_(image_.size.height, rect_.height, placement.fixedMargins.top, placement.fixedMargins.bottom,
                placement.dpi)
    {
        const AxisMap across(image_.size.width, rect_.width, placement.fixedMargins.left,
                             placement.fixedMargins.right, placement.dpi);
        samples_.reserve(static_cast<std::size_t>(columns_.length()));
        for (std::int32_t x = columns_.begin; x < columns_.end; ++x)
            samples_.push_back(across.at(x - rect_.x));
    }

    Span columns() const noexcept { return columns_; } // where the bitmap lies
    bool hasRow(std::int32_t y) const noexcept
    {
        return y >= rect_.y && y < std::int64_t{rect_.y} + rect_.height;
    }

    // The run must lie within columns(), the row within the placement.
    void sampleRow(Pixel* out, Span run, std::int32_t y) const
    {
        const AxisSample row = rows_.at(y - rect_.y);
        const Pixel* const upper = rowOf(image_, row.first);
        const Pixel* const lower = rowOf(image_, row.second);
        const AxisSample* sample = samples_.data() + (run.begin - columns_.begin);
        for (std::int32_t i = 0; i < run.length(); ++i, ++sample)
            out[i] = lerp(lerp(upper[sample->first], upper[sample->second], sample->weight),
                          lerp(lower[sample->first], lower[sample->second], sample->weight), row.weight);
    }

private:
    const BitmapImage& image_;
    Rect rect_;
    Span columns_;
    AxisMap rows_;
    std::vector<AxisSample> samples_;
};

} // namespace

TintedBitmap::TintedBitmap(BitmapImage image, const BitmapTint& tint)
{
    for (Pixel& pixel : image.pixels)
        pixel = premultiplied(tinted(channelsOf(pixel), tint));
    cover_ = isOpaque(image) ? BitmapCover::Full : BitmapCover::Partial;
    levels_.push_back(std::move(image));
    while (levels_.back().size.width > 1 && levels_.back().size.height > 1)
        levels_.push_back(halved(levels_.back()));
}

TintedBitmap TintedBitmap::fromMask(BitmapImage image)
{
    BitmapTint stencil;
    stencil.mode = TintMode::Monochrome;
    stencil.maskChannel = isOpaque(image) ? MaskChannel::Brightness : MaskChannel::Alpha;
    return {std::move(image), stencil};
}

std::size_t TintedBitmap::weight() const noexcept
{
    return std::accumulate(
        levels_.begin(), levels_.end(), std::size_t{0},
        [](std::size_t sum, const BitmapImage& level) { return sum + level.pixels.size(); });
}

const BitmapImage& TintedBitmap::levelFor(Size painted) const noexcept
{
    const auto stillLarge = [painted](const BitmapImage& level) {
        return level.size.width >= painted.width && level.size.height >= painted.height;
    };
    const auto first = std::find_if_not(levels_.begin(), levels_.end(), stillLarge);
    return first == levels_.begin() ? *first : *std::prev(first);
}

BitmapPlacement bitmapPlacement(const SurfaceStyle& style, Size surface) noexcept
{
    const Insets paintInsets = style.geometry ? limitedInsets(style.geometry->paintInsets) : Insets{};
    Insets margins = style.useNineSlice ? style.nineSlice : Insets{};
    for (std::int32_t Insets::*const side : {&Insets::left, &Insets::top, &Insets::right, &Insets::bottom})
        margins.*side = designLength(margins.*side, style.lengthsDpi);
    return {insetBy({0, 0, surface.width, surface.height}, paintInsets), margins, style.lengthsDpi};
}

BitmapCover coverOn(const TintedBitmap& bitmap, const BitmapPlacement& placement, Size surface) noexcept
{
    const Rect whole{0, 0, surface.width, surface.height};
    return intersection(placement.rect, whole) == whole ? bitmap.cover() : BitmapCover::Partial;
}

void fillBitmap(const LayerTarget& target, const Coverage& coverage, const TintedBitmap& bitmap,
                const BitmapPlacement& placement)
{
    const Rect visible = target.visible();
    if (isEmpty(placement.rect))
        return clearLayer(target);
    const BitmapSampler sampler(bitmap, placement, {visible.x, visible.x + visible.width});
    paintCovered(target, coverage, [&](Pixel* first, Span run, std::int32_t y) {
        const Span painted = sampler.hasRow(y) ? intersect(run, sampler.columns()) : Span{};
        if (painted.empty())
            return simd::fillPixels(first, run.length(), 0);
        simd::fillPixels(first, painted.begin - run.begin, 0);
        sampler.sampleRow(first + (painted.begin - run.begin), painted, y);
        simd::fillPixels(first + (painted.end - run.begin), run.end - painted.end, 0);
    });
}

RunMask alphaRuns(const TintedBitmap& bitmap, const BitmapPlacement& placement, Size surface,
                  std::uint8_t threshold)
{
    RunMask mask(surface);
    if (isEmpty(placement.rect))
        return mask;
    const BitmapSampler sampler(bitmap, placement, {0, surface.width});
    const Span columns = sampler.columns();
    std::vector<Pixel> row(static_cast<std::size_t>(columns.length()));
    for (std::int32_t y = 0; y < surface.height; ++y, mask.endRow()) {
        if (!sampler.hasRow(y) || columns.empty())
            continue;
        sampler.sampleRow(row.data(), columns, y);
        const auto dense = [threshold](Pixel pixel) { return alphaOf(pixel) >= threshold; };
        for (auto at = row.begin(); at != row.end();) {
            const auto begin = std::find_if(at, row.end(), dense);
            at = std::find_if_not(begin, row.end(), dense);
            if (begin != at)
                mask.addRun({columns.begin + static_cast<std::int32_t>(begin - row.begin()),
                             columns.begin + static_cast<std::int32_t>(at - row.begin())});
        }
    }
    return mask;
}

std::uint8_t alphaAt(const TintedBitmap& bitmap, const BitmapPlacement& placement, Point point)
{
    const Rect& rect = placement.rect;
    if (isEmpty(intersection(rect, {point.x, point.y, 1, 1})))
        return 0;
    const Point inside{point.x - rect.x, point.y - rect.y};
    const BitmapPlacement own{{0, 0, rect.width, rect.height}, placement.fixedMargins, placement.dpi};
    const Span column{inside.x, inside.x + 1};
    Pixel pixel = 0;
    BitmapSampler(bitmap, own, column).sampleRow(&pixel, column, inside.y);
    return static_cast<std::uint8_t>(alphaOf(pixel));
}

} // namespace vela
