// A material overlay is a sum of layers: light, texture, finish, edges, relief. The shader's addOverlay lays
// each over those before it so that their opacities add up; multiplied by opacity, the colours then simply
// add up too. So each layer adds its share to the sums of a row, and nothing is divided on the way.
#pragma once

#include "vela/render/materials/material_input.h"

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

    void addOverlay(const Rgb& color, simd::Float4 layerAlpha) noexcept
    {
        red += layerAlpha * color.red;
        green += layerAlpha * color.green;
        blue += layerAlpha * color.blue;
        alpha += layerAlpha;
    }
    // The one colour where the mask is set, the other elsewhere.
    void addEither(simd::Int4 mask, const Rgb& color, const Rgb& elsewhere, simd::Float4 layerAlpha) noexcept
    {
        const simd::Float4 within = mask ? layerAlpha : simd::Float4{};
        addOverlay(color, within);
        addOverlay(elsewhere, layerAlpha - within);
    }
    // A colour between two, 0 to 1 of the way.
    void addLerp(const Rgb& from, const Rgb& to, simd::Float4 amount, simd::Float4 layerAlpha) noexcept
    {
        addOverlay(to, layerAlpha * amount);
        addOverlay(from, layerAlpha * (1.0F - amount));
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

class MaterialLayer {
public:
    MaterialLayer() = default;
    MaterialLayer(const MaterialLayer&) = delete;
    MaterialLayer& operator=(const MaterialLayer&) = delete;
    virtual ~MaterialLayer() = default;

    virtual void addRow(const MaterialRow& row, RowSums& sums) = 0;
};

// A layer made of its terms: a class with a constructor from an input, beginRow(row) and addTo(sums, column).
// It borrows the input.
template <typename Terms>
class LayerOf final : public MaterialLayer {
public:
    explicit LayerOf(const MaterialInput& input) : terms_(input) {}

    void addRow(const MaterialRow& row, RowSums& sums) override
    {
        terms_.beginRow(row);
        for (std::size_t column = 0; column < sums.columnCount(); column += simd::kLanes)
            terms_.addTo(sums.at(column), column);
    }

private:
    Terms terms_;
};

using LayerPointer = std::unique_ptr<MaterialLayer>;

template <typename Terms>
LayerPointer makeLayer(const MaterialInput& input)
{
    return std::make_unique<LayerOf<Terms>>(input);
}

// The texture of each preset.
LayerPointer makeGlass(const MaterialInput& input);
LayerPointer makeFrostedGlass(const MaterialInput& input);
LayerPointer makeGloss(const MaterialInput& input); // and plastic
LayerPointer makeMetal(const MaterialInput& input);
LayerPointer makeBrushedMetal(const MaterialInput& input);
LayerPointer makeRubber(const MaterialInput& input);
LayerPointer makePaper(const MaterialInput& input);
LayerPointer makeCarbonFiber(const MaterialInput& input);
LayerPointer makeObsidianGlass(const MaterialInput& input);
LayerPointer makeBloodGloss(const MaterialInput& input);
LayerPointer makeAmberGlass(const MaterialInput& input);
LayerPointer makeLuminousGlass(const MaterialInput& input);
LayerPointer makeLayeredGlass(const MaterialInput& input);
LayerPointer makeGemstone(const MaterialInput& input);
LayerPointer makeObsidianRelief(const MaterialInput& input);
LayerPointer makeGranite(const MaterialInput& input);
LayerPointer makeMarble(const MaterialInput& input);

// What a finish lays over it.
LayerPointer makeBrushed(const MaterialInput& input);
LayerPointer makeCracked(const MaterialInput& input);
LayerPointer makeHammered(const MaterialInput& input);
LayerPointer makeEtched(const MaterialInput& input);
LayerPointer makeFrosted(const MaterialInput& input);
LayerPointer makeWetGloss(const MaterialInput& input);

// Shade and wear along the edges, and the light on the grain.
LayerPointer makeContactShade(const MaterialInput& input);
LayerPointer makeEdgeWear(const MaterialInput& input);
LayerPointer makeRelief(const MaterialInput& input);

} // namespace vela
