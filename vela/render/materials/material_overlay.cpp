#include "vela/render/materials/material_overlay.h"

#include "vela/render/materials/material_layer.h"

#include <algorithm>
#include <array>

namespace vela {
namespace {

using simd::Float4;

using MakeLayer = LayerPointer (*)(const MaterialInput&);

// In the order of MaterialPreset. What is none of them is marble, as in the shader.
constexpr MakeLayer kMaterials[] = {
    makeMarble,        makeGlass,          makeFrostedGlass, makeGloss,         makeMetal,
    makeBrushedMetal,  makeGloss,          makeRubber,       makePaper,         makeCarbonFiber,
    makeObsidianGlass, makeBloodGloss,     makeAmberGlass,   makeLuminousGlass, makeLayeredGlass,
    makeGemstone,      makeObsidianRelief, makeGranite,      makeMarble,
};
static_assert(std::size(kMaterials) == static_cast<std::size_t>(MaterialPreset::StoneMarble) + 1);

// In the order of MaterialFinish; some are told by their shading alone.
constexpr MakeLayer kFinishes[] = {
    nullptr,     nullptr,      makeBrushed, nullptr,     nullptr,      nullptr,
    makeCracked, makeHammered, makeEtched,  makeFrosted, makeWetGloss,
};
static_assert(std::size(kFinishes) == static_cast<std::size_t>(MaterialFinish::WetGloss) + 1);

// The layers of one surface, from the material upwards.
class Layers {
public:
    Layers(const MaterialConstants& constants, const MaterialInput& input)
    {
        const MaterialParameters& material = input.parameters();
        const auto kind = static_cast<std::size_t>(constants.material0.x);
        const auto finish = static_cast<std::size_t>(constants.material7.y);
        add(kMaterials[std::min(kind, std::size(kMaterials) - 1)], input);
        if (finish < std::size(kFinishes) && kFinishes[finish])
            add(kFinishes[finish], input);
        if (material.ambientOcclusion > 0)
            add(makeContactShade, input);
        if (material.edgeWear > 0)
            add(makeEdgeWear, input);
        if (material.depth > 0)
            add(makeRelief, input);
    }

    void addRow(const MaterialRow& row, RowSums& sums)
    {
        std::for_each_n(layers_.begin(), count_,
                        [&](const LayerPointer& layer) { layer->addRow(row, sums); });
    }

private:
    void add(MakeLayer make, const MaterialInput& input) { layers_[count_++] = make(input); }

    std::array<LayerPointer, 5> layers_;
    std::size_t count_ = 0;
};

// The sums as pixels. Opacity is cut at 1 and the colour, which carries it, with it.
simd::UInt4 pixelsOf(const FourSums& sums, float strength) noexcept
{
    const Float4 alpha = sums.alpha * strength;
    const Float4 levels = 255.0F * (alpha > 1.0F ? 1.0F / sums.alpha : simd::splat(strength));
    return simd::packedPixels(sums.blue * levels, sums.green * levels, sums.red * levels,
                              sums.alpha * levels);
}

} // namespace

void renderMaterialOverlay(const MaterialConstants& constants, const LayerTarget& target)
{
    const Rect visible = target.visible();
    if (isEmpty(visible))
        return;
    const MaterialInput input(constants, {visible.x, visible.x + visible.width});
    Layers layers(constants, input);
    RowSums sums(input.columnCount());
    const float strength = input.parameters().strength * input.parameters().opacity;
    for (std::int32_t row = 0; row < visible.height; ++row) {
        sums.clear();
        layers.addRow(input.rowAt(visible.y + row), sums);
        simd::writeInFours(target.view.row(row), 0, visible.width, [&](std::int32_t column) {
            return pixelsOf(sums.at(static_cast<std::size_t>(column)), strength);
        });
    }
}

} // namespace vela
