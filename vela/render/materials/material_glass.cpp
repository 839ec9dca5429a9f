// Thick glasses: obsidian, blood, amber, layered and luminous.
#include "vela/render/materials/material_light.h"
#include "vela/render/materials/material_noise.h"
#include "vela/render/materials/material_stage.h"
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
ColumnValues sideLight(const MaterialScene& scene, float from, float steepness, float exponent)
{
    return scene.perColumn([=](Float4, Float4 texture) {
        return pow((max(texture, 1.0F - texture) - from) * steepness, exponent);
    });
}

class ObsidianGlass {
public:
    explicit ObsidianGlass(const MaterialScene& scene)
        : scene_(scene), look_(scene.look()), color_(mixed({0.012F, 0.012F, 0.016F}, look_.tint, 0.42F)),
          sides_(sideLight(scene, 0.72F, 3.58F, 2.0F))
    {
    }

    void beginRow(const MaterialRow& row)
    {
        const Float4 upperCut = pow(1.0F - row.texture, 2.8F);
        const Float4 lowerGlow = pow((row.texture - 0.62F) * 2.65F, 2.0F);
        ofRow_ = upperCut * (look_.highlight * 0.10F) + lowerGlow * (look_.reflection * 0.10F);
        axis_ = scene_.axisOfRow(row);
    }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 deepVeil = fallingOff(abs(scene_.axis(axis_, column) - 0.52F), 2.4F, 3.6F);
        sums.add(color_, ofRow_ + load(&sides_[column]) * (look_.reflection * 0.22F) +
                             deepVeil * (look_.reflection * 0.12F));
    }

private:
    const MaterialScene& scene_;
    const MaterialLook& look_;
    Rgb color_;
    ColumnValues sides_;
    Float4 ofRow_{};
    Float4 axis_{};
};

class BloodGloss {
public:
    explicit BloodGloss(const MaterialScene& scene)
        : look_(scene.look()), color_(mixed({0.094F, 0.0F, 0.008F}, look_.tint, 0.78F)),
          sides_(sideLight(scene, 0.70F, 3.34F, 1.7F)), wave_(scene, 0.072F, 0.018F, look_.angle),
          grain_(scene, look_.seed)
    {
    }

    void beginRow(const MaterialRow& row)
    {
        const Float4 wetBand = fallingOff(abs(row.texture - 0.30F), 4.0F, 2.2F);
        const Float4 pool = pow((row.texture - 0.60F) * 2.5F, 1.7F);
        ofRow_ = wetBand * (look_.highlight * 0.16F) + pool * (look_.reflection * 0.18F);
        wave_.beginRow(row);
        grain_.beginRow(row);
    }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 streak = fallingOff(abs(wave_.at(column)), 2.0F, 5.0F);
        sums.add(color_, ofRow_ + load(&sides_[column]) * (look_.reflection * 0.24F) +
                             streak * grain_.at(column) * (look_.grain * 0.16F));
    }

private:
    const MaterialLook& look_;
    Rgb color_;
    ColumnValues sides_;
    Wave wave_;
    Grain grain_;
    Float4 ofRow_{};
};

class AmberGlass {
public:
    explicit AmberGlass(const MaterialScene& scene)
        : scene_(scene), look_(scene.look()), moltenGold_(mixed({1, 0.73F, 0}, look_.tint, 0.34F)),
          resinOrange_(mixed({1, 0.41F, 0}, look_.tint, 0.46F)),
          burntEdge_(mixed({0.41F, 0.13F, 0}, look_.tint, 0.40F)),
          deepHoney_(mixed({0.70F, 0.25F, 0}, look_.tint, 0.48F)), honeyAcross_(hump(0.48F, 2.2F, 0.42F)),
          moltenAcross_(hump(0.34F, 2.4F, 0.30F)), darkRim_(sideLight(scene, 0.74F, 3.86F, 1.55F)),
          longWave_(scene, 0.052F, 0.027F, look_.angle), crossWave_(scene, 0.017F, -0.071F, 0),
          grain_(scene, look_.seed)
    {
    }

    void beginRow(const MaterialRow& row)
    {
        honey_ = fallingOff(abs(row.texture - 0.58F), 1.72F, 1.85F);
        molten_ = pow(1.0F - row.texture, 2.35F);
        axis_ = scene_.axisOfRow(row);
        longWave_.beginRow(row);
        crossWave_.beginRow(row);
        grain_.beginRow(row);
    }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 fireCore = fallingOff(abs(scene_.axis(axis_, column) - 0.52F), 1.55F, 2.35F);
        const Float4 honeyBody = honey_ * load(&honeyAcross_[column]);
        const Float4 moltenTop = molten_ * load(&moltenAcross_[column]);
        const Float4 darkRim = load(&darkRim_[column]);
        const Float4 wave = longWave_.at(column) + 0.55F * crossWave_.at(column);
        const Float4 shard = fallingOff(abs(wave), 1.58F, 6.0F);
        const Float4 grain = grain_.at(column);
        const Float4 glint = max(Float4{}, grain - 0.64F) / 0.36F;
        Float4 opacity = fireCore * (look_.reflection * 0.24F) + honeyBody * (look_.reflection * 0.34F) +
                         moltenTop * (look_.highlight * 0.36F) + darkRim * (look_.reflection * 0.25F) +
                         shard * (0.38F + grain * 0.62F) * (look_.grain * 1.55F) +
                         glint * glint * (look_.grain * 0.72F);
        const auto addWhere = [&](simd::Int4 mask, const Rgb& color) {
            const Float4 within = mask ? opacity : Float4{};
            sums.add(color, within);
            opacity -= within;
        };
        addWhere(darkRim > 0.36F, burntEdge_);
        addWhere((shard > 0.30F) & (grain > 0.42F), resinOrange_);
        addWhere((honeyBody > 0.32F) | (moltenTop > 0.24F), moltenGold_);
        sums.add(deepHoney_, opacity);
    }

private:
    ColumnValues hump(float middle, float steepness, float least) const
    {
        return scene_.perColumn([=](Float4, Float4 texture) {
            return least + max(Float4{}, 1.0F - abs(texture - middle) * steepness) * (1 - least);
        });
    }

    const MaterialScene& scene_;
    const MaterialLook& look_;
    Rgb moltenGold_;
    Rgb resinOrange_;
    Rgb burntEdge_;
    Rgb deepHoney_;
    ColumnValues honeyAcross_;
    ColumnValues moltenAcross_;
    ColumnValues darkRim_;
    Wave longWave_;
    Wave crossWave_;
    Grain grain_;
    Float4 honey_{};
    Float4 molten_{};
    Float4 axis_{};
};

class LayeredGlass {
public:
    explicit LayeredGlass(const MaterialScene& scene)
        : scene_(scene), look_(scene.look()), coolGlass_(mixed({0.018F, 0.020F, 0.027F}, look_.tint, 0.44F)),
          sides_(sideLight(scene, 0.68F, 3.12F, 1.8F)),
          strata_(Clouds::onTexture(scene, 3.7F, 2.4F, look_.seed * 0.013F)),
          micro_(Clouds::onPixels(scene, std::max(3.0F, look_.scale * 0.62F), look_.seed * 0.031F))
    {
    }

    void beginRow(const MaterialRow& row)
    {
        const Float4 topLens = pow(1.0F - row.texture, 2.0F);
        const Float4 lowerLens = pow((row.texture - 0.56F) * 2.27F, 2.0F);
        ofRow_ = topLens * (look_.highlight * (0.30F + look_.specular * 0.72F)) +
                 lowerLens * (look_.reflection * 0.34F);
        axis_ = scene_.axisOfRow(row);
        strata_.beginRow(row);
        micro_.beginRow(row);
    }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 strata = strata_.at(column);
        const Float4 wave = simd::sin((scene_.axis(axis_, column) + strata * 0.16F) * 9.4F);
        const Float4 caustic = fallingOff(abs(wave), 1.16F, 3.2F);
        const Float4 opacity =
            ofRow_ + caustic * (look_.texture * 0.34F) +
            load(&sides_[column]) * (look_.rimLight * (0.18F + look_.edgeWear * 0.38F)) +
            abs(micro_.at(column) - 0.5F) * (look_.texture * (0.12F + look_.roughness * 0.18F));
        sums.addMixed(coolGlass_, look_.backlight, 0.18F + strata * 0.24F, opacity);
    }

private:
    const MaterialScene& scene_;
    const MaterialLook& look_;
    Rgb coolGlass_;
    ColumnValues sides_;
    Clouds strata_;
    Clouds micro_;
    Float4 ofRow_{};
    Float4 axis_{};
};

// With the reduced look the glass has its field and rim, but no lights behind it.
class LuminousGlass {
public:
    explicit LuminousGlass(const MaterialScene& scene)
        : scene_(scene), look_(scene.look()), innerColor_(mixed(look_.tint, look_.backlight, 0.72F)),
          rimColor_(mixed(look_.backlight, {1, 0.886F, 0.745F}, 0.16F)),
          grainColor_(mixed({0, 0, 0}, look_.backlight, 0.34F)), light_(scene),
          lowerAcross_(scene.perColumn([](Float4, Float4 x) { return fading(x - 0.72F, 0.20F); })),
          rim_(scene, 13.5F, 2.7F), grain_(scene, look_.seed)
    {
    }

    void beginRow(const MaterialRow& row)
    {
        lower_ = fading(row.texture - 0.86F, 0.055F);
        axis_ = scene_.axisOfRow(row);
        light_.beginRow(row);
        rim_.beginRow(row);
        grain_.beginRow(row);
    }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 innerField = fallingOff(abs(scene_.axis(axis_, column) - 0.50F), 1.75F, 2.2F);
        const Float4 rim = rim_.at(column);
        if (look_.reduced)
            return sums.add(innerColor_,
                            innerField * (look_.backlightOpacity * 0.16F) + rim * (look_.rimLight * 0.10F));
        sums.add(look_.backlight, light_.at(column));
        sums.add(innerColor_, lower_ * load(&lowerAcross_[column]) * (look_.innerGlow * 0.54F) +
                                  innerField * (look_.innerGlow * 0.12F));
        sums.add(rimColor_, rim * (look_.rimLight * 0.34F));
        sums.add(grainColor_, abs(grain_.at(column) - 0.5F) * (look_.grain * 0.08F));
    }

private:
    static Float4 fading(Float4 distance, float spread) noexcept
    {
        return simd::exp(-(distance * distance) / spread);
    }

    const MaterialScene& scene_;
    const MaterialLook& look_;
    Rgb innerColor_;
    Rgb rimColor_;
    Rgb grainColor_;
    Backlight light_;
    ColumnValues lowerAcross_;
    EdgeLight rim_;
    Grain grain_;
    Float4 lower_{};
    Float4 axis_{};
};

} // namespace

StagePointer makeObsidianGlass(const MaterialScene& scene) { return makeStage<ObsidianGlass>(scene); }
StagePointer makeBloodGloss(const MaterialScene& scene) { return makeStage<BloodGloss>(scene); }
StagePointer makeAmberGlass(const MaterialScene& scene) { return makeStage<AmberGlass>(scene); }
StagePointer makeLuminousGlass(const MaterialScene& scene) { return makeStage<LuminousGlass>(scene); }
StagePointer makeLayeredGlass(const MaterialScene& scene) { return makeStage<LayeredGlass>(scene); }

} // namespace vela
