// The pixel layers in megapixels a second (items), beside memset of the same bytes and beside two well-known
// rasterisers doing the nearest thing they can: cairo on a rounded rectangle without antialiasing, pixman on
// the whole rectangle. One thread; the names end in the surface's size.
#include "vela/render/layers/gradient.h"
#include "vela/render/layers/inner_shadow.h"
#include "vela/render/layers/noise.h"
#include "vela/render/layers/solid_layer.h"
#include "vela/render/layers/spatial_shading.h"
#include "vela/render/shapes/shape.h"

#include <cmath>
#include <cstring>
#include <functional>
#include <memory>
#include <numbers>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#include <cairo.h>
#include <pixman.h>

namespace {

using namespace vela;

// Pixels that every contender writes into.
class Canvas {
public:
    explicit Canvas(Size size)
        : size_(size), pixels_(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height))
    {
    }

    Size size() const { return size_; }
    std::size_t bytes() const { return pixels_.size() * sizeof(Pixel); }
    unsigned char* data() { return reinterpret_cast<unsigned char*>(pixels_.data()); }
    int stride() const { return size_.width * static_cast<int>(sizeof(Pixel)); }
    LayerTarget target() { return {{pixels_.data(), size_, size_.width}, {}}; }

private:
    Size size_;
    std::vector<Pixel> pixels_;
};

SurfaceStyle styleOf(GradientKind kind, GradientDirection direction, bool middle = false)
{
    SurfaceStyle style;
    style.gradientKind = kind;
    style.gradientDirection = direction;
    style.useGradientMid = middle;
    style.gradientStart = hexColor(0xC49452);
    style.gradientMid = hexColor(0x3355AA);
    style.gradientEnd = hexColor(0x050F14);
    style.noiseOpacity = 40;
    style.innerShadow = 120;
    style.innerShadowSize = 8;
    return style;
}

// Vela.

using Layer = std::function<void(Canvas&)>;

Layer gradientLayer(GradientKind kind, GradientDirection direction, bool middle = false)
{
    return [style = styleOf(kind, direction, middle)](Canvas& canvas) {
        fillGradient(canvas.target(), {ShapeKind::RoundedRect, canvas.size()}, style);
    };
}

Layer shadowLayer(ShapeKind shape)
{
    return [shape, style = styleOf({}, {})](Canvas& canvas) {
        fillInnerShadow(canvas.target(), {shape, canvas.size()}, style);
    };
}

void velaSolid(Canvas& canvas)
{
    fillSolid(canvas.target(), {ShapeKind::RoundedRect, canvas.size()}, hexColor(0x336699), 120);
}

void velaNoise(Canvas& canvas)
{
    fillNoise(canvas.target(), {ShapeKind::RoundedRect, canvas.size()}, styleOf({}, {}), {});
}

void velaShading(Canvas& canvas)
{
    fillSpatialShading(canvas.target(), {ShapeKind::RoundedRect, canvas.size()}, styleOf({}, {}));
}

void plainMemset(Canvas& canvas) { std::memset(canvas.data(), 0x40, canvas.bytes()); }

// Cairo.

using CairoPattern = std::unique_ptr<cairo_pattern_t, decltype(&cairo_pattern_destroy)>;
using CairoSurface = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;
using CairoContext = std::unique_ptr<cairo_t, decltype(&cairo_destroy)>;

void roundedPath(cairo_t* context, Size size, double inset)
{
    const double radius = roundedDiameter(size.width, size.height) / 2.0 - inset;
    const double right = size.width - inset - radius;
    const double bottom = size.height - inset - radius;
    const double near = inset + radius;
    const double quarter = std::numbers::pi / 2;
    cairo_new_path(context);
    cairo_arc(context, right, near, radius, -quarter, 0);
    cairo_arc(context, right, bottom, radius, 0, quarter);
    cairo_arc(context, near, bottom, radius, quarter, 2 * quarter);
    cairo_arc(context, near, near, radius, 2 * quarter, 3 * quarter);
    cairo_close_path(context);
}

CairoContext cairoOn(Canvas& canvas)
{
    const CairoSurface surface(cairo_image_surface_create_for_data(canvas.data(), CAIRO_FORMAT_ARGB32,
                                                                   canvas.size().width, canvas.size().height,
                                                                   canvas.stride()),
                               cairo_surface_destroy);
    CairoContext context(cairo_create(surface.get()), cairo_destroy);
    cairo_set_antialias(context.get(), CAIRO_ANTIALIAS_NONE);
    cairo_set_operator(context.get(), CAIRO_OPERATOR_SOURCE);
    return context;
}

void cairoFill(Canvas& canvas, cairo_pattern_t* pattern)
{
    const CairoContext context = cairoOn(canvas);
    cairo_set_source(context.get(), pattern);
    roundedPath(context.get(), canvas.size(), 0);
    cairo_fill(context.get());
}

void cairoSolid(Canvas& canvas)
{
    cairoFill(canvas,
              CairoPattern(cairo_pattern_create_rgba(0.2, 0.4, 0.6, 0.47), cairo_pattern_destroy).get());
}

void cairoGradient(Canvas& canvas, cairo_pattern_t* created)
{
    const CairoPattern pattern(created, cairo_pattern_destroy);
    cairo_pattern_add_color_stop_rgb(pattern.get(), 0, 0.77, 0.58, 0.32);
    cairo_pattern_add_color_stop_rgb(pattern.get(), 1, 0.02, 0.06, 0.08);
    cairoFill(canvas, pattern.get());
}

Layer cairoLinear(double alongX, double alongY)
{
    return [=](Canvas& canvas) {
        cairoGradient(canvas, cairo_pattern_create_linear(0, 0, alongX * canvas.size().width,
                                                          alongY * canvas.size().height));
    };
}

void cairoRadial(Canvas& canvas)
{
    const double x = canvas.size().width / 2.0;
    const double y = canvas.size().height / 2.0;
    cairoGradient(canvas, cairo_pattern_create_radial(x, y, 0, x, y, std::hypot(x, y)));
}

// A tile of ready noise, repeated: cairo has no noise of its own.
void cairoNoise(Canvas& canvas)
{
    static Canvas tile({256, 256});
    static const bool drawn = (velaNoise(tile), true);
    benchmark::DoNotOptimize(drawn);
    const CairoSurface surface(
        cairo_image_surface_create_for_data(tile.data(), CAIRO_FORMAT_ARGB32, 256, 256, tile.stride()),
        cairo_surface_destroy);
    const CairoPattern pattern(cairo_pattern_create_for_surface(surface.get()), cairo_pattern_destroy);
    cairo_pattern_set_extend(pattern.get(), CAIRO_EXTEND_REPEAT);
    cairoFill(canvas, pattern.get());
}

// Strokes within each other, each a little fainter and darker towards one corner, as the layer is, on pixels
// cleared before: a layer leaves none unwritten.
void cairoInnerShadow(Canvas& canvas)
{
    std::memset(canvas.data(), 0, canvas.bytes());
    const CairoContext context = cairoOn(canvas);
    for (int ring = 0; ring < 8; ++ring) {
        const double strength = 0.47 * std::pow(1 - ring / 8.0, 1.42);
        const CairoPattern shade(cairo_pattern_create_linear(0, 0, canvas.size().width, canvas.size().height),
                                 cairo_pattern_destroy);
        cairo_pattern_add_color_stop_rgba(shade.get(), 0, 0, 0, 0, 0.78 * strength);
        cairo_pattern_add_color_stop_rgba(shade.get(), 1, 0, 0, 0, 0.88 * strength);
        cairo_set_source(context.get(), shade.get());
        roundedPath(context.get(), canvas.size(), ring + 0.5);
        cairo_set_line_width(context.get(), 1);
        cairo_stroke(context.get());
    }
}

// Pixman.

using PixmanImage = std::unique_ptr<pixman_image_t, decltype(&pixman_image_unref)>;

void pixmanPaint(Canvas& canvas, pixman_image_t* created)
{
    const PixmanImage source(created, pixman_image_unref);
    const PixmanImage target(
        pixman_image_create_bits(PIXMAN_a8r8g8b8, canvas.size().width, canvas.size().height,
                                 reinterpret_cast<std::uint32_t*>(canvas.data()), canvas.stride()),
        pixman_image_unref);
    pixman_image_composite32(PIXMAN_OP_SRC, source.get(), nullptr, target.get(), 0, 0, 0, 0, 0, 0,
                             canvas.size().width, canvas.size().height);
}

constexpr pixman_gradient_stop_t kPixmanStops[] = {{0, {0xC4C4, 0x9494, 0x5252, 0xFFFF}},
                                                   {pixman_fixed_1, {0x0505, 0x0F0F, 0x1414, 0xFFFF}}};

pixman_point_fixed_t fixedPoint(double x, double y)
{
    return {pixman_double_to_fixed(x), pixman_double_to_fixed(y)};
}

void pixmanSolid(Canvas& canvas)
{
    const pixman_color_t color{0x3333, 0x6666, 0x9999, 0x7878};
    pixmanPaint(canvas, pixman_image_create_solid_fill(&color));
}

Layer pixmanLinear(double alongX, double alongY)
{
    return [=](Canvas& canvas) {
        const auto from = fixedPoint(0, 0);
        const auto to = fixedPoint(alongX * canvas.size().width, alongY * canvas.size().height);
        pixmanPaint(canvas, pixman_image_create_linear_gradient(&from, &to, kPixmanStops, 2));
    };
}

void pixmanRadial(Canvas& canvas)
{
    const auto middle = fixedPoint(canvas.size().width / 2.0, canvas.size().height / 2.0);
    const double radius = std::hypot(canvas.size().width, canvas.size().height) / 2;
    pixmanPaint(canvas, pixman_image_create_radial_gradient(&middle, &middle, 0,
                                                            pixman_double_to_fixed(radius), kPixmanStops, 2));
}

void pixmanConic(Canvas& canvas)
{
    const auto middle = fixedPoint(canvas.size().width / 2.0, canvas.size().height / 2.0);
    pixmanPaint(canvas, pixman_image_create_conical_gradient(&middle, 0, kPixmanStops, 2));
}

struct Contender {
    const char* name;
    Layer paint;
};

std::vector<Contender> contenders()
{
    using enum GradientKind;
    using enum GradientDirection;
    return {
        {"memset", plainMemset},
        {"solid/vela", velaSolid},
        {"solid/cairo", cairoSolid},
        {"solid/pixman", pixmanSolid},
        {"linearVertical/vela", gradientLayer(Linear, Vertical)},
        {"linearVertical/cairo", cairoLinear(0, 1)},
        {"linearVertical/pixman", pixmanLinear(0, 1)},
        {"linearHorizontal/vela", gradientLayer(Linear, Horizontal)},
        {"linearHorizontal/cairo", cairoLinear(1, 0)},
        {"linearHorizontal/pixman", pixmanLinear(1, 0)},
        {"linearDiagonal/vela", gradientLayer(Linear, DiagonalDown)},
        {"linearDiagonalThree/vela", gradientLayer(Linear, DiagonalDown, true)},
        {"linearDiagonal/cairo", cairoLinear(1, 1)},
        {"linearDiagonal/pixman", pixmanLinear(1, 1)},
        {"reflectedDiagonal/vela", gradientLayer(Reflected, DiagonalUp)},
        {"radial/vela", gradientLayer(Radial, Vertical)},
        {"radial/cairo", cairoRadial},
        {"radial/pixman", pixmanRadial},
        {"diamond/vela", gradientLayer(GradientKind::Diamond, Vertical)},
        {"conic/vela", gradientLayer(Conic, Vertical)},
        {"conic/pixman", pixmanConic},
        {"noise/vela", velaNoise},
        {"noise/cairoTile", cairoNoise},
        {"innerShadow/vela", shadowLayer(ShapeKind::RoundedRect)},
        {"innerShadow/cairo", cairoInnerShadow},
        {"spatialShading/vela", velaShading},
    };
}

void measure(benchmark::State& state, const Layer& paint, Size size)
{
    Canvas canvas(size);
    for (auto round : state) {
        paint(canvas);
        benchmark::ClobberMemory();
    }
    state.counters["Mpix/s"] =
        benchmark::Counter(static_cast<double>(state.iterations()) * size.width * size.height / 1e6,
                           benchmark::Counter::kIsRate);
}

std::string nameOf(const std::string& name, Size size)
{
    return name + '/' + std::to_string(size.width) + 'x' + std::to_string(size.height);
}

const bool registered = [] {
    for (const Contender& contender : contenders())
        for (const Size size : {Size{690, 420}, Size{1920, 1080}})
            benchmark::RegisterBenchmark(nameOf(contender.name, size).c_str(), measure, contender.paint,
                                         size);
    // A button: the inner shadow follows its outline.
    const Size button{200, 40};
    benchmark::RegisterBenchmark(nameOf("innerShadowPill/vela", button).c_str(), measure,
                                 shadowLayer(ShapeKind::Pill), button);
    benchmark::RegisterBenchmark(nameOf("innerShadowPill/cairo", button).c_str(), measure, cairoInnerShadow,
                                 button);
    return true;
}();

} // namespace
