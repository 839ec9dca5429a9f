// Gems and stones: facets, obsidian, granite, marble.
#include "vela/render/materials/material_layer.h"
#include "vela/render/materials/material_noise.h"
#include "vela/render/materials/material_terms.h"

#include <algorithm>

namespace vela {
namespace {

using simd::abs;
using simd::Float4;
using simd::load;
using simd::pow;

// Below it a layer is not laid at all, and leaves the colour beneath as it is.
constexpr float kFaintestLayer = 0.00001F;

// How far from the middle between two slanting lines, 0 to a half; they repeat across the surface.
class Facets {
public:
    Facets(const MaterialInput& input, float perPixelX, float perPixelY, float start, float density)
        : perPixelY_(perPixelY), start_(start), density_(density),
          columns_(input.perColumn([=](Float4 pixelX, Float4) { return pixelX * perPixelX; }))
    {
    }

    void beginRow(const MaterialRow& row) noexcept { row_ = row.pixelY * perPixelY_; }
    Float4 at(std::size_t column) const noexcept
    {
        return abs(simd::frac((load(&columns_[column]) + row_ + start_) * density_) - 0.5F);
    }

private:
    float perPixelY_;
    float start_;
    float density_;
    ColumnValues columns_;
    Float4 row_{};
};

class Gemstone {
public:
    explicit Gemstone(const MaterialInput& input)
        : input_(input), material_(input.parameters()),
          deepGem_(lerp({0.003F, 0.006F, 0.006F}, material_.tint, 0.56F)),
          brightGem_(lerp(material_.tint, {1, 1, 1}, 0.20F + material_.specular * 0.16F)),
          facetA_(input, 0.036F, 0.021F, material_.seed * 0.007F, std::max(0.5F, material_.scale * 0.045F)),
          facetB_(input, -0.018F, 0.052F, material_.seed * 0.011F, std::max(0.5F, material_.scale * 0.038F)),
          fine_(input, material_.seed * 0.37F, {.factor = 1.73F}), rim_(input, 10.2F, 2.1F)
    {
    }

    void beginRow(const MaterialRow& row)
    {
        ofRow_ = pow(1.0F - row.ty, 2.3F) * (material_.highlight * 0.22F);
        axis_ = input_.axisOfRow(row);
        facetA_.beginRow(row);
        facetB_.beginRow(row);
        fine_.beginRow(row);
        rim_.beginRow(row);
    }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 facet = falloff(simd::min(facetA_.at(column), facetB_.at(column)), 3.6F, 2.4F);
        const Float4 prismPlace = 0.44F + fine_.at(column) * 0.18F;
        const Float4 prism = falloff(abs(input_.axis(axis_, column) - prismPlace), 3.0F, 2.2F);
        const Float4 alpha = ofRow_ +
                             facet * (material_.textureOpacity * (0.28F + material_.specular * 0.82F)) +
                             prism * (material_.reflection * 0.40F) +
                             rim_.at(column) * (material_.rimLight * (0.22F + material_.edgeWear * 0.36F));
        sums.addLerp(deepGem_, brightGem_, simd::saturate(facet * 0.42F + prism * 0.26F), alpha);
    }

private:
    const MaterialInput& input_;
    const MaterialParameters& material_;
    Rgb deepGem_;
    Rgb brightGem_;
    Facets facetA_;
    Facets facetB_;
    Hash21 fine_;
    Rim rim_;
    Float4 ofRow_{};
    Float4 axis_{};
};

class ObsidianRelief {
public:
    explicit ObsidianRelief(const MaterialInput& input)
        : material_(input.parameters()), blackStone_(lerp({0.002F, 0.002F, 0.004F}, material_.tint, 0.18F)),
          veinColor_(lerp({0.07F, 0.0F, 0.008F}, material_.tint, 0.62F)),
          columns_(input.perColumn([](Float4 pixelX, Float4) { return pixelX * 0.041F; })),
          fracture_(Fbm::onUv(input, 5.8F, 3.3F, material_.seed * 0.019F)),
          pit_(Fbm::onPixels(input, material_.scale, material_.seed * 0.043F)), rim_(input, 11.6F, 2.3F)
    {
    }

    void beginRow(const MaterialRow& row)
    {
        ofRow_ = pow(1.0F - row.ty, 2.6F) * (material_.highlight * 0.11F);
        row_ = row.pixelY * 0.029F + material_.angle;
        fracture_.beginRow(row);
        pit_.beginRow(row);
        rim_.beginRow(row);
    }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 fracture = fracture_.at(column);
        const Float4 veinPhase = simd::sin(load(&columns_[column]) + row_ + fracture * 5.8F);
        const Float4 vein = falloff(abs(veinPhase), 1.86F, 4.8F);
        const Float4 pit = pow(pit_.at(column), 2.4F);
        const Float4 alpha = ofRow_ + vein * (material_.textureOpacity * 0.28F) +
                             pit * (material_.textureOpacity * material_.roughness * 0.12F) +
                             rim_.at(column) * (material_.rimLight * (0.18F + material_.edgeWear * 0.42F));
        sums.addLerp(blackStone_, veinColor_, vein * 0.72F + fracture * 0.10F, alpha);
    }

private:
    const MaterialParameters& material_;
    Rgb blackStone_;
    Rgb veinColor_;
    ColumnValues columns_;
    Fbm fracture_;
    Fbm pit_;
    Rim rim_;
    Float4 ofRow_{};
    Float4 row_{};
};

class Granite {
public:
    explicit Granite(const MaterialInput& input)
        : material_(input.parameters()), darkMineral_(lerp({0.02F, 0.018F, 0.017F}, material_.tint, 0.28F)),
          lightMineral_(lerp({0.70F, 0.68F, 0.64F}, material_.tint, 0.52F)),
          micaColor_(lerp({0.92F, 0.90F, 0.82F}, material_.tint, 0.26F)),
          mineralA_(Fbm::onPixels(input, std::max(4.0F, material_.scale * 0.72F), material_.seed * 0.027F)),
          mineralB_(Fbm::onPixels(input, std::max(2.0F, material_.scale * 0.34F), material_.seed * 0.051F)),
          flakes_(input, 0.031F, -0.024F, material_.seed * 0.013F, material_.scale * 0.035F)
    {
    }

    void beginRow(const MaterialRow& row)
    {
        mineralA_.beginRow(row);
        mineralB_.beginRow(row);
        flakes_.beginRow(row);
    }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 mineralA = mineralA_.at(column);
        const Float4 mineralB = mineralB_.at(column);
        const Float4 feldspar = mineralA >= 0.64F ? 0.58F + mineralB * 0.42F : Float4{};
        const Float4 mica = falloff(flakes_.at(column), 3.4F, 3.2F) *
                            (material_.textureOpacity * (0.14F + material_.specular * 0.28F));
        const Float4 pit = pow(mineralB, 2.4F);
        const Float4 alpha = mica + feldspar * (material_.textureOpacity * 0.22F) +
                             pit * (material_.textureOpacity * material_.roughness * 0.10F);
        const Float4 shining = mica > kFaintestLayer ? alpha : Float4{};
        sums.addOverlay(micaColor_, shining);
        sums.addLerp(darkMineral_, lightMineral_, simd::saturate(feldspar * 0.72F + mineralA * 0.24F),
                     alpha - shining);
    }

private:
    const MaterialParameters& material_;
    Rgb darkMineral_;
    Rgb lightMineral_;
    Rgb micaColor_;
    Fbm mineralA_;
    Fbm mineralB_;
    Facets flakes_;
};

class Marble {
public:
    explicit Marble(const MaterialInput& input)
        : input_(input), material_(input.parameters()),
          baseStone_(lerp({0.62F, 0.60F, 0.56F}, material_.tint, 0.56F)),
          veinColor_(lerp({0.10F, 0.09F, 0.085F}, material_.tint, 0.24F)),
          crystal_(lerp({1, 0.96F, 0.88F}, material_.tint, 0.28F)),
          marble_(Fbm::onUv(input, 3.4F, 1.7F, material_.seed * 0.023F)),
          softCloud_(Fbm::onUv(input, 1.2F, 0.9F, material_.seed * 0.017F))
    {
    }

    void beginRow(const MaterialRow& row)
    {
        ofRow_ = pow(1.0F - row.ty, 2.2F) * (material_.highlight * 0.10F);
        sway_ = simd::sin(row.ty * 9.0F + material_.seed * 0.01F) * 0.8F;
        axis_ = input_.axisOfRow(row);
        marble_.beginRow(row);
        softCloud_.beginRow(row);
    }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 veinPhase =
            simd::sin((input_.axis(axis_, column) + marble_.at(column) * 0.36F) * 15.0F + sway_);
        const Float4 vein = falloff(abs(veinPhase), 1.36F, 5.2F) *
                            (material_.textureOpacity * (0.30F + material_.roughness * 0.14F));
        const Float4 softCloud = softCloud_.at(column);
        const Float4 alpha = vein + softCloud * (material_.textureOpacity * 0.08F) + ofRow_;
        const Float4 veined = vein > kFaintestLayer ? alpha : Float4{};
        sums.addOverlay(veinColor_, veined);
        sums.addLerp(baseStone_, crystal_, softCloud * 0.26F, alpha - veined);
    }

private:
    const MaterialInput& input_;
    const MaterialParameters& material_;
    Rgb baseStone_;
    Rgb veinColor_;
    Rgb crystal_;
    Fbm marble_;
    Fbm softCloud_;
    Float4 ofRow_{};
    Float4 sway_{};
    Float4 axis_{};
};

} // namespace

LayerPointer makeGemstone(const MaterialInput& input) { return makeLayer<Gemstone>(input); }
LayerPointer makeObsidianRelief(const MaterialInput& input) { return makeLayer<ObsidianRelief>(input); }
LayerPointer makeGranite(const MaterialInput& input) { return makeLayer<Granite>(input); }
LayerPointer makeMarble(const MaterialInput& input) { return makeLayer<Marble>(input); }

} // namespace vela
