// Thick glasses: obsidian, blood, amber, layered and luminous.
#include "vela/render/materials/material_layer.h"
#include "vela/render/materials/material_light.h"
#include "vela/render/materials/material_noise.h"
#include "vela/render/materials/material_terms.h"

#include <algorithm>

namespace vela {
namespace {

using simd::abs;
using simd::Float4;
using simd::load;
using simd::max;
using simd::pow;

// The sides shine from so far out.
ColumnValues sides(const MaterialInput& input, float from, float steepness, float exponent)
{
    return input.perColumn(
        [=](Float4, Float4 tx) { return pow((max(tx, 1.0F - tx) - from) * steepness, exponent); });
}

class ObsidianGlass {
public:
    explicit ObsidianGlass(const MaterialInput& input)
        : input_(input), material_(input.parameters()),
          color_(lerp({0.012F, 0.012F, 0.016F}, material_.tint, 0.42F)),
          sideReflection_(sides(input, 0.72F, 3.58F, 2.0F))
    {
    }

    void beginRow(const MaterialRow& row)
    {
        const Float4 upperCut = pow(1.0F - row.ty, 2.8F);
        const Float4 lowerBlood = pow((row.ty - 0.62F) * 2.65F, 2.0F);
        ofRow_ = upperCut * (material_.highlight * 0.10F) + lowerBlood * (material_.reflection * 0.10F);
        axis_ = input_.axisOfRow(row);
    }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 deepVeil = falloff(abs(input_.axis(axis_, column) - 0.52F), 2.4F, 3.6F);
        sums.addOverlay(color_, ofRow_ + load(&sideReflection_[column]) * (material_.reflection * 0.22F) +
                                    deepVeil * (material_.reflection * 0.12F));
    }

private:
    const MaterialInput& input_;
    const MaterialParameters& material_;
    Rgb color_;
    ColumnValues sideReflection_;
    Float4 ofRow_{};
    Float4 axis_{};
};

class BloodGloss {
public:
    explicit BloodGloss(const MaterialInput& input)
        : material_(input.parameters()), color_(lerp({0.094F, 0.0F, 0.008F}, material_.tint, 0.78F)),
          rim_(sides(input, 0.70F, 3.34F, 1.7F)), streakPhase_(input, 0.072F, 0.018F, material_.angle),
          grain_(input, material_.seed)
    {
    }

    void beginRow(const MaterialRow& row)
    {
        const Float4 wetBand = falloff(abs(row.ty - 0.30F), 4.0F, 2.2F);
        const Float4 pool = pow((row.ty - 0.60F) * 2.5F, 1.7F);
        ofRow_ = wetBand * (material_.highlight * 0.16F) + pool * (material_.reflection * 0.18F);
        streakPhase_.beginRow(row);
        grain_.beginRow(row);
    }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 streak = falloff(abs(streakPhase_.at(column)), 2.0F, 5.0F);
        sums.addOverlay(color_, ofRow_ + load(&rim_[column]) * (material_.reflection * 0.24F) +
                                    streak * grain_.at(column) * (material_.grainOpacity * 0.16F));
    }

private:
    const MaterialParameters& material_;
    Rgb color_;
    ColumnValues rim_;
    Wave streakPhase_;
    Hash21 grain_;
    Float4 ofRow_{};
};

class AmberGlass {
public:
    explicit AmberGlass(const MaterialInput& input)
        : input_(input), material_(input.parameters()),
          moltenGold_(lerp({1, 0.73F, 0}, material_.tint, 0.34F)),
          resinOrange_(lerp({1, 0.41F, 0}, material_.tint, 0.46F)),
          burntEdge_(lerp({0.41F, 0.13F, 0}, material_.tint, 0.40F)),
          deepHoney_(lerp({0.70F, 0.25F, 0}, material_.tint, 0.48F)), honeyAcross_(hump(0.48F, 2.2F, 0.42F)),
          moltenAcross_(hump(0.34F, 2.4F, 0.30F)), darkRim_(sides(input, 0.74F, 3.86F, 1.55F)),
          longPhase_(input, 0.052F, 0.027F, material_.angle), crossPhase_(input, 0.017F, -0.071F, 0),
          grain_(input, material_.seed)
    {
    }

    void beginRow(const MaterialRow& row)
    {
        honey_ = falloff(abs(row.ty - 0.58F), 1.72F, 1.85F);
        molten_ = pow(1.0F - row.ty, 2.35F);
        axis_ = input_.axisOfRow(row);
        longPhase_.beginRow(row);
        crossPhase_.beginRow(row);
        grain_.beginRow(row);
    }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 fireCore = falloff(abs(input_.axis(axis_, column) - 0.52F), 1.55F, 2.35F);
        const Float4 honeyBody = honey_ * load(&honeyAcross_[column]);
        const Float4 moltenTop = molten_ * load(&moltenAcross_[column]);
        const Float4 darkRim = load(&darkRim_[column]);
        const Float4 shardPhase = longPhase_.at(column) + 0.55F * crossPhase_.at(column);
        const Float4 shard = falloff(abs(shardPhase), 1.58F, 6.0F);
        const Float4 grain = grain_.at(column);
        const Float4 glint = max(Float4{}, grain - 0.64F) / 0.36F;
        Float4 alpha = fireCore * (material_.reflection * 0.24F) +
                       honeyBody * (material_.reflection * 0.34F) +
                       moltenTop * (material_.highlight * 0.36F) + darkRim * (material_.reflection * 0.25F) +
                       shard * (0.38F + grain * 0.62F) * (material_.grainOpacity * 1.55F) +
                       glint * glint * (material_.grainOpacity * 0.72F);
        const auto addWhere = [&](simd::Int4 mask, const Rgb& color) {
            const Float4 within = mask ? alpha : Float4{};
            sums.addOverlay(color, within);
            alpha -= within;
        };
        addWhere(darkRim > 0.36F, burntEdge_);
        addWhere((shard > 0.30F) & (grain > 0.42F), resinOrange_);
        addWhere((honeyBody > 0.32F) | (moltenTop > 0.24F), moltenGold_);
        sums.addOverlay(deepHoney_, alpha);
    }

private:
    ColumnValues hump(float middle, float steepness, float least) const
    {
        return input_.perColumn([=](Float4, Float4 tx) {
            return least + max(Float4{}, 1.0F - abs(tx - middle) * steepness) * (1 - least);
        });
    }

    const MaterialInput& input_;
    const MaterialParameters& material_;
    Rgb moltenGold_;
    Rgb resinOrange_;
    Rgb burntEdge_;
    Rgb deepHoney_;
    ColumnValues honeyAcross_;
    ColumnValues moltenAcross_;
    ColumnValues darkRim_;
    Wave longPhase_;
    Wave crossPhase_;
    Hash21 grain_;
    Float4 honey_{};
    Float4 molten_{};
    Float4 axis_{};
};

class LayeredGlass {
public:
    explicit LayeredGlass(const MaterialInput& input)
        : input_(input), material_(input.parameters()),
          coolGlass_(lerp({0.018F, 0.020F, 0.027F}, material_.tint, 0.44F)),
          side_(sides(input, 0.68F, 3.12F, 1.8F)),
          strata_(Fbm::onUv(input, 3.7F, 2.4F, material_.seed * 0.013F)),
          micro_(Fbm::onPixels(input, std::max(3.0F, material_.scale * 0.62F), material_.seed * 0.031F))
    {
    }

    void beginRow(const MaterialRow& row)
    {
        const Float4 topLens = pow(1.0F - row.ty, 2.0F);
        const Float4 lowerLens = pow((row.ty - 0.56F) * 2.27F, 2.0F);
        ofRow_ = topLens * (material_.highlight * (0.30F + material_.specular * 0.72F)) +
                 lowerLens * (material_.reflection * 0.34F);
        axis_ = input_.axisOfRow(row);
        strata_.beginRow(row);
        micro_.beginRow(row);
    }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 strata = strata_.at(column);
        const Float4 causticPhase = simd::sin((input_.axis(axis_, column) + strata * 0.16F) * 9.4F);
        const Float4 caustic = falloff(abs(causticPhase), 1.16F, 3.2F);
        const Float4 alpha =
            ofRow_ + caustic * (material_.textureOpacity * 0.34F) +
            load(&side_[column]) * (material_.rimLight * (0.18F + material_.edgeWear * 0.38F)) +
            abs(micro_.at(column) - 0.5F) *
                (material_.textureOpacity * (0.12F + material_.roughness * 0.18F));
        sums.addLerp(coolGlass_, material_.backlight, 0.18F + strata * 0.24F, alpha);
    }

private:
    const MaterialInput& input_;
    const MaterialParameters& material_;
    Rgb coolGlass_;
    ColumnValues side_;
    Fbm strata_;
    Fbm micro_;
    Float4 ofRow_{};
    Float4 axis_{};
};

// With the reduced look the glass has its field and rim, but no lights behind it.
class LuminousGlass {
public:
    explicit LuminousGlass(const MaterialInput& input)
        : input_(input), material_(input.parameters()),
          innerColor_(lerp(material_.tint, material_.backlight, 0.72F)),
          rimColor_(lerp(material_.backlight, {1, 0.886F, 0.745F}, 0.16F)),
          grainColor_(lerp({0, 0, 0}, material_.backlight, 0.34F)), blob_(input),
          lowerBlobAcross_(input.perColumn([](Float4, Float4 tx) { return fading(tx - 0.72F, 0.20F); })),
          rim_(input, 13.5F, 2.7F), grain_(input, material_.seed)
    {
    }

    void beginRow(const MaterialRow& row)
    {
        lowerBlob_ = fading(row.ty - 0.86F, 0.055F);
        axis_ = input_.axisOfRow(row);
        blob_.beginRow(row);
        rim_.beginRow(row);
        grain_.beginRow(row);
    }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 innerField = falloff(abs(input_.axis(axis_, column) - 0.50F), 1.75F, 2.2F);
        const Float4 rim = rim_.at(column);
        if (material_.maximumPerformance)
            return sums.addOverlay(innerColor_, innerField * (material_.backlightOpacity * 0.16F) +
                                                    rim * (material_.rimLight * 0.10F));
        sums.addOverlay(material_.backlight, blob_.at(column));
        sums.addOverlay(innerColor_,
                        lowerBlob_ * load(&lowerBlobAcross_[column]) * (material_.innerGlow * 0.54F) +
                            innerField * (material_.innerGlow * 0.12F));
        sums.addOverlay(rimColor_, rim * (material_.rimLight * 0.34F));
        sums.addOverlay(grainColor_, abs(grain_.at(column) - 0.5F) * (material_.grainOpacity * 0.08F));
    }

private:
    static Float4 fading(Float4 distance, float spread) noexcept
    {
        return simd::exp(-(distance * distance) / spread);
    }

    const MaterialInput& input_;
    const MaterialParameters& material_;
    Rgb innerColor_;
    Rgb rimColor_;
    Rgb grainColor_;
    Backlight blob_;
    ColumnValues lowerBlobAcross_;
    Rim rim_;
    Hash21 grain_;
    Float4 lowerBlob_{};
    Float4 axis_{};
};

} // namespace

LayerPointer makeObsidianGlass(const MaterialInput& input) { return makeLayer<ObsidianGlass>(input); }
LayerPointer makeBloodGloss(const MaterialInput& input) { return makeLayer<BloodGloss>(input); }
LayerPointer makeAmberGlass(const MaterialInput& input) { return makeLayer<AmberGlass>(input); }
LayerPointer makeLuminousGlass(const MaterialInput& input) { return makeLayer<LuminousGlass>(input); }
LayerPointer makeLayeredGlass(const MaterialInput& input) { return makeLayer<LayeredGlass>(input); }

} // namespace vela
