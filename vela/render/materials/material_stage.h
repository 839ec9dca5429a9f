// A material overlay is a sum of layers: light, texture, finish, edges, relief. The shader lays each over
// those before it so that their opacities add up; multiplied by opacity, the colours then simply add up too.
// So each layer is a stage that adds its share to the sums of a row, and nothing is divided on the way.
#pragma once

#include "vela/render/materials/material_scene.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace vela {

// What four pixels have gathered, colours multiplied by opacity.
struct FourSums {
    simd::Float4 red{};
    simd::Float4 green{};
    simd::Float4 blue{};
    simd::Float4 alpha{};

    void add(const Rgb& color, simd::Float4 opacity) noexcept
    {
        red += opacity * color.red;
        green += opacity * color.green;
        blue += opacity * color.blue;
        alpha += opacity;
    }
    // The one colour where the mask is set, the other elsewhere.
    void addEither(simd::Int4 mask, const Rgb& color, const Rgb& elsewhere, simd::Float4 opacity) noexcept
    {
        const simd::Float4 within = mask ? opacity : simd::Float4{};
        add(color, within);
        add(elsewhere, opacity - within);
    }
    // A colour between two, 0 to 1 of the way.
    void addMixed(const Rgb& from, const Rgb& to, simd::Float4 amount, simd::Float4 opacity) noexcept
    {
        add(to, opacity * amount);
        add(from, opacity * (1.0F - amount));
    }
};

class RowSums {
public:
    explicit RowSums(std::size_t columnCount) : values_(columnCount / simd::kLanes) {}

    void clear() noexcept { std::fill(values_.begin(), values_.end(), FourSums{}); }
    // The group of four that begins at that column.
    FourSums& at(std::size_t column) noexcept { return values_[column / simd::kLanes]; }
    std::size_t columnCount() const noexcept { return values_.size() * simd::kLanes; }

private:
    std::vector<FourSums> values_;
};

class MaterialStage {
public:
    MaterialStage() = default;
    MaterialStage(const MaterialStage&) = delete;
    MaterialStage& operator=(const MaterialStage&) = delete;
    virtual ~MaterialStage() = default;

    virtual void addRow(const MaterialRow& row, RowSums& sums) = 0;
};

// The stage of a layer, which has a constructor from a scene, beginRow(row) and addTo(sums, column). It
// borrows the scene.
template <typename Layer>
class StageOf final : public MaterialStage {
public:
    explicit StageOf(const MaterialScene& scene) : layer_(scene) {}

    void addRow(const MaterialRow& row, RowSums& sums) override
    {
        layer_.beginRow(row);
        for (std::size_t column = 0; column < sums.columnCount(); column += simd::kLanes)
            layer_.addTo(sums.at(column), column);
    }

private:
    Layer layer_;
};

using StagePointer = std::unique_ptr<MaterialStage>;

template <typename Layer>
StagePointer makeStage(const MaterialScene& scene)
{
    return std::make_unique<StageOf<Layer>>(scene);
}

// The texture of each preset.
StagePointer makeGlass(const MaterialScene& scene);
StagePointer makeFrostedGlass(const MaterialScene& scene);
StagePointer makeGloss(const MaterialScene& scene); // and plastic
StagePointer makeMetal(const MaterialScene& scene);
StagePointer makeBrushedMetal(const MaterialScene& scene);
StagePointer makeRubber(const MaterialScene& scene);
StagePointer makePaper(const MaterialScene& scene);
StagePointer makeCarbonFiber(const MaterialScene& scene);
StagePointer makeObsidianGlass(const MaterialScene& scene);
StagePointer makeBloodGloss(const MaterialScene& scene);
StagePointer makeAmberGlass(const MaterialScene& scene);
StagePointer makeLuminousGlass(const MaterialScene& scene);
StagePointer makeLayeredGlass(const MaterialScene& scene);
StagePointer makeGemstone(const MaterialScene& scene);
StagePointer makeObsidianRelief(const MaterialScene& scene);
StagePointer makeGranite(const MaterialScene& scene);
StagePointer makeMarble(const MaterialScene& scene);

// What a finish lays over it.
StagePointer makeBrushed(const MaterialScene& scene);
StagePointer makeCracked(const MaterialScene& scene);
StagePointer makeHammered(const MaterialScene& scene);
StagePointer makeEtched(const MaterialScene& scene);
StagePointer makeFrosted(const MaterialScene& scene);
StagePointer makeWetGloss(const MaterialScene& scene);

// Shade and wear along the edges, and the light on the grain.
StagePointer makeContactShade(const MaterialScene& scene);
StagePointer makeEdgeWear(const MaterialScene& scene);
StagePointer makeRelief(const MaterialScene& scene);

} // namespace vela
