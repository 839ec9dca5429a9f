#include "vela/render/shapes/icons.h"

#include "vela/mul_div.h"
#include "vela/render/shapes/antialias_fill.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace vela {
namespace {

using simd::Float4;

// An icon's pen moves through points of a unit square; a lift starts a new line, and a line of one point is a
// dot.
struct Move {
    float x;
    float y;
    bool lift = false;
};

constexpr Move kCheck[] = {{0.17F, 0.53F, true}, {0.41F, 0.77F}, {0.84F, 0.26F}};
constexpr Move kChevronUp[] = {{0.18F, 0.66F, true}, {0.5F, 0.34F}, {0.82F, 0.66F}};
constexpr Move kChevronDown[] = {{0.18F, 0.34F, true}, {0.5F, 0.66F}, {0.82F, 0.34F}};
constexpr Move kChevronLeft[] = {{0.66F, 0.18F, true}, {0.34F, 0.5F}, {0.66F, 0.82F}};
constexpr Move kChevronRight[] = {{0.34F, 0.18F, true}, {0.66F, 0.5F}, {0.34F, 0.82F}};
constexpr Move kMinimize[] = {{0, 0.5F, true}, {1, 0.5F}};
constexpr Move kMaximize[] = {{0, 0, true}, {1, 0}, {1, 1}, {0, 1}, {0, 0}};
constexpr Move kRestore[] = {{0, 0.22F, true},     {0.78F, 0.22F}, {0.78F, 1}, {0, 1},     {0, 0.22F},
                             {0.22F, 0.22F, true}, {0.22F, 0},     {1, 0},     {1, 0.78F}, {0.78F, 0.78F}};
// The corners of a frame around a small window: back to the size it was made for.
constexpr Move kResetSize[] = {
    {0, 0.22F, true},     {0, 0},         {0.22F, 0},     {0.78F, 0, true}, {1, 0},        {1, 0.22F},
    {1, 0.78F, true},     {1, 1},         {0.78F, 1},     {0.22F, 1, true}, {0, 1},        {0, 0.78F},
    {0.33F, 0.33F, true}, {0.67F, 0.33F}, {0.67F, 0.67F}, {0.33F, 0.67F},   {0.33F, 0.33F}};
constexpr Move kClose[] = {{0, 0, true}, {1, 1}, {1, 0, true}, {0, 1}};
constexpr Move kInfo[] = {{0.5F, 0.12F, true}, {0.5F, 0.42F, true}, {0.5F, 0.9F}};
constexpr Move kWarning[] = {{0.5F, 0.1F, true}, {0.5F, 0.58F}, {0.5F, 0.88F, true}};
constexpr Move kFailure[] = {{0.16F, 0.16F, true}, {0.84F, 0.84F}, {0.84F, 0.16F, true}, {0.16F, 0.84F}};

struct Design {
    std::span<const Move> moves;
    float pen;  // pixels at 96 DPI
    bool crisp; // its lines lie along rows and columns: pen and points are kept on whole pixels
};

constexpr Design kDesigns[kIconCount] = {
    {kCheck, 1.9F, false},       {kChevronUp, 1.5F, false},    {kChevronDown, 1.5F, false},
    {kChevronLeft, 1.5F, false}, {kChevronRight, 1.5F, false}, {kMinimize, 1, true},
    {kMaximize, 1, true},        {kRestore, 1, true},          {kResetSize, 1, true},
    {kClose, 1.1F, false},       {kInfo, 2.2F, false},         {kWarning, 2.2F, false},
    {kFailure, 2.2F, false},
};

struct Segment {
    float x;
    float y;
    float alongX;
    float alongY;
    float perLength; // 1 over the squared length; 0 for a dot
};

constexpr std::size_t kMostSegments = 16;

// Where the icon's points lie on the surface.
class Placement {
public:
    Placement(const Rect& box, float pen, bool crisp) : pen_(pen), crisp_(crisp)
    {
        const std::int32_t side = std::min(box.width, box.height);
        const std::int32_t left = box.x + (box.width - side) / 2; // whole pixels keep straight lines crisp
        const std::int32_t top = box.y + (box.height - side) / 2;
        left_ = static_cast<float>(left);
        top_ = static_cast<float>(top);
        extent_ = std::max(static_cast<float>(side) - pen, 0.0F); // the pen stays inside the box
    }
    float x(float unit) const { return left_ + along(unit); }
    float y(float unit) const { return top_ + along(unit); }

private:
    float along(float unit) const
    {
        const float at = unit * extent_;
        return (crisp_ ? std::floor(at + 0.5F) : at) + pen_ / 2;
    }

    float pen_;
    bool crisp_;
    float left_ = 0;
    float top_ = 0;
    float extent_ = 0;
};

class IconLines {
public:
    IconLines(const Design& design, const Placement& placement)
    {
        for (std::size_t i = 0; i < design.moves.size(); ++i) {
            const Move& to = design.moves[i];
            const bool dot = to.lift && (i + 1 == design.moves.size() || design.moves[i + 1].lift);
            if (to.lift && !dot)
                continue;
            const Move& from = dot ? to : design.moves[i - 1];
            add({placement.x(from.x), placement.y(from.y)}, {placement.x(to.x), placement.y(to.y)});
        }
    }

    // To the nearest line's middle, squared.
    Float4 squaredDistance(Float4 x, float y) const noexcept
    {
        Float4 nearest = simd::splat(1e12F);
        for (std::size_t i = 0; i < count_; ++i) {
            const Segment& line = segments_[i];
            const Float4 dx = x - simd::splat(line.x);
            const Float4 dy = simd::splat(y - line.y);
            const Float4 along =
                (dx * simd::splat(line.alongX) + dy * simd::splat(line.alongY)) * simd::splat(line.perLength);
            const Float4 clamped = simd::min(simd::max(along, Float4{}), simd::splat(1.0F));
            const Float4 offX = dx - clamped * simd::splat(line.alongX);
            const Float4 offY = dy - clamped * simd::splat(line.alongY);
            nearest = simd::min(nearest, offX * offX + offY * offY);
        }
        return nearest;
    }

private:
    struct At {
        float x;
        float y;
    };
    void add(At from, At to) noexcept
    {
        const float alongX = to.x - from.x;
        const float alongY = to.y - from.y;
        const float squared = alongX * alongX + alongY * alongY;
        segments_[count_++] = {from.x, from.y, alongX, alongY, squared > 0 ? 1 / squared : 0};
    }

    std::array<Segment, kMostSegments> segments_{};
    std::size_t count_ = 0;
};

float penOf(const Design& design, std::int32_t dpi) noexcept
{
    const float pen = design.pen * static_cast<float>(dpi) / kDesignDpi;
    // At 150 % a line of one pixel still looks finer than one of two.
    return design.crisp ? std::max(std::floor(pen + 0.25F), 1.0F) : pen;
}

} // namespace

std::int32_t captionIconSize(std::int32_t dpi) noexcept { return mulDiv(10, dpi, kDesignDpi); }

void drawIcon(const LayerTarget& target, Icon icon, const Rect& box, std::int32_t dpi, Color color,
              std::uint8_t alpha)
{
    const Design& design = kDesigns[static_cast<std::size_t>(icon)];
    const float pen = penOf(design, dpi);
    const IconLines lines(design, Placement(box, pen, design.crisp));
    antialias::fill(target, color, alpha, [&](Float4 x, float y) {
        return antialias::coverageAt(simd::splat(pen / 2) - simd::sqrt(lines.squaredDistance(x, y)));
    });
}

} // namespace vela
