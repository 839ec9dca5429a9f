// Gems and stones: facets, obsidian, granite, marble.
#include "vela/render/materials/material_noise.h"
#include "vela/render/materials/material_stage.h"
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
    Facets(const MaterialScene& scene, float perPixelX, float perPixelY, float start, float density)
        : perPixelY_(perPixelY), start_(start), density_(density),
          columns_(scene.perColumn([=](Float4 pixel, Float4) { return pixel * perPixelX; }))
    {
    }

    void beginRow(const MaterialRow& row) noexcept { row_ = row.pixel * perPixelY_; }
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
    explicit Gemstone(const MaterialScene& scene)
        : scene_(scene), look_(scene.look()), deepGem_(mixed({0.003F, 0.006F, 0.006F}, look_.tint, 0.56F)),
          brightGem_(mixed(look_.tint, {1, 1, 1}, 0.20F + look_.specular * 0.16F)),
          steep_(scene, 0.036F, 0.021F, look_.seed * 0.007F, std::max(0.5F, look_.scale * 0.045F)),
          flat_(scene, -0.018F, 0.052F, look_.seed * 0.011F, std::max(0.5F, look_.scale * 0.038F)),
          sparkle_(scene, look_.seed * 0.37F, {.factor = 1.73F}), rim_(scene, 10.2F, 2.1F)
    {
    }

    void beginRow(const MaterialRow& row)
    {
        ofRow_ = pow(1.0F - row.texture, 2.3F) * (look_.highlight * 0.22F);
        axis_ = scene_.axisOfRow(row);
        steep_.beginRow(row);
        flat_.beginRow(row);
        sparkle_.beginRow(row);
        rim_.beginRow(row);
    }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 facet = fallingOff(simd::min(steep_.at(column), flat_.at(column)), 3.6F, 2.4F);
        const Float4 prismPlace = 0.44F + sparkle_.at(column) * 0.18F;
        const Float4 prism = fallingOff(abs(scene_.axis(axis_, column) - prismPlace), 3.0F, 2.2F);
        const Float4 opacity = ofRow_ + facet * (look_.texture * (0.28F + look_.specular * 0.82F)) +
                               prism * (look_.reflection * 0.40F) +
                               rim_.at(column) * (look_.rimLight * (0.22F + look_.edgeWear * 0.36F));
        sums.addMixed(deepGem_, brightGem_, simd::saturate(facet * 0.42F + prism * 0.26F), opacity);
    }

private:
    const MaterialScene& scene_;
    const MaterialLook& look_;
    Rgb deepGem_;
    Rgb brightGem_;
    Facets steep_;
    Facets flat_;
    Grain sparkle_;
    EdgeLight rim_;
    Float4 ofRow_{};
    Float4 axis_{};
};

class ObsidianRelief {
public:
    explicit ObsidianRelief(const MaterialScene& scene)
        : look_(scene.look()), blackStone_(mixed({0.002F, 0.002F, 0.004F}, look_.tint, 0.18F)),
          veinColor_(mixed({0.07F, 0.0F, 0.008F}, look_.tint, 0.62F)),
          columns_(scene.perColumn([](Float4 pixel, Float4) { return pixel * 0.041F; })),
          fracture_(Clouds::onTexture(scene, 5.8F, 3.3F, look_.seed * 0.019F)),
          pits_(Clouds::onPixels(scene, look_.scale, look_.seed * 0.043F)), rim_(scene, 11.6F, 2.3F)
    {
    }

    void beginRow(const MaterialRow& row)
    {
        ofRow_ = pow(1.0F - row.texture, 2.6F) * (look_.highlight * 0.11F);
        row_ = row.pixel * 0.029F + look_.angle;
        fracture_.beginRow(row);
        pits_.beginRow(row);
        rim_.beginRow(row);
    }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 fracture = fracture_.at(column);
        const Float4 wave = simd::sin(load(&columns_[column]) + row_ + fracture * 5.8F);
        const Float4 vein = fallingOff(abs(wave), 1.86F, 4.8F);
        const Float4 pit = pow(pits_.at(column), 2.4F);
        const Float4 opacity = ofRow_ + vein * (look_.texture * 0.28F) +
                               pit * (look_.texture * look_.roughness * 0.12F) +
                               rim_.at(column) * (look_.rimLight * (0.18F + look_.edgeWear * 0.42F));
        sums.addMixed(blackStone_, veinColor_, vein * 0.72F + fracture * 0.10F, opacity);
    }

private:
    const MaterialLook& look_;
    Rgb blackStone_;
    Rgb veinColor_;
    ColumnValues columns_;
    Clouds fracture_;
    Clouds pits_;
    EdgeLight rim_;
    Float4 ofRow_{};
    Float4 row_{};
};

class Granite {
public:
    explicit Granite(const MaterialScene& scene)
        : look_(scene.look()), darkMineral_(mixed({0.02F, 0.018F, 0.017F}, look_.tint, 0.28F)),
          lightMineral_(mixed({0.70F, 0.68F, 0.64F}, look_.tint, 0.52F)),
          micaColor_(mixed({0.92F, 0.90F, 0.82F}, look_.tint, 0.26F)),
          coarse_(Clouds::onPixels(scene, std::max(4.0F, look_.scale * 0.72F), look_.seed * 0.027F)),
          fine_(Clouds::onPixels(scene, std::max(2.0F, look_.scale * 0.34F), look_.seed * 0.051F)),
          flakes_(scene, 0.031F, -0.024F, look_.seed * 0.013F, look_.scale * 0.035F)
    {
    }

    void beginRow(const MaterialRow& row)
    {
        coarse_.beginRow(row);
        fine_.beginRow(row);
        flakes_.beginRow(row);
    }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 coarse = coarse_.at(column);
        const Float4 fine = fine_.at(column);
        const Float4 feldspar = coarse >= 0.64F ? 0.58F + fine * 0.42F : Float4{};
        const Float4 mica =
            fallingOff(flakes_.at(column), 3.4F, 3.2F) * (look_.texture * (0.14F + look_.specular * 0.28F));
        const Float4 pit = pow(fine, 2.4F);
        const Float4 opacity =
            mica + feldspar * (look_.texture * 0.22F) + pit * (look_.texture * look_.roughness * 0.10F);
        const Float4 shining = mica > kFaintestLayer ? opacity : Float4{};
        sums.add(micaColor_, shining);
        sums.addMixed(darkMineral_, lightMineral_, simd::saturate(feldspar * 0.72F + coarse * 0.24F),
                      opacity - shining);
    }

private:
    const MaterialLook& look_;
    Rgb darkMineral_;
    Rgb lightMineral_;
    Rgb micaColor_;
    Clouds coarse_;
    Clouds fine_;
    Facets flakes_;
};

class Marble {
public:
    explicit Marble(const MaterialScene& scene)
        : scene_(scene), look_(scene.look()), baseStone_(mixed({0.62F, 0.60F, 0.56F}, look_.tint, 0.56F)),
          veinColor_(mixed({0.10F, 0.09F, 0.085F}, look_.tint, 0.24F)),
          crystal_(mixed({1, 0.96F, 0.88F}, look_.tint, 0.28F)),
          layers_(Clouds::onTexture(scene, 3.4F, 1.7F, look_.seed * 0.023F)),
          softCloud_(Clouds::onTexture(scene, 1.2F, 0.9F, look_.seed * 0.017F))
    {
    }

    void beginRow(const MaterialRow& row)
    {
        ofRow_ = pow(1.0F - row.texture, 2.2F) * (look_.highlight * 0.10F);
        sway_ = simd::sin(row.texture * 9.0F + look_.seed * 0.01F) * 0.8F;
        axis_ = scene_.axisOfRow(row);
        layers_.beginRow(row);
        softCloud_.beginRow(row);
    }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 wave =
            simd::sin((scene_.axis(axis_, column) + layers_.at(column) * 0.36F) * 15.0F + sway_);
        const Float4 vein =
            fallingOff(abs(wave), 1.36F, 5.2F) * (look_.texture * (0.30F + look_.roughness * 0.14F));
        const Float4 softCloud = softCloud_.at(column);
        const Float4 opacity = vein + softCloud * (look_.texture * 0.08F) + ofRow_;
        const Float4 veined = vein > kFaintestLayer ? opacity : Float4{};
        sums.add(veinColor_, veined);
        sums.addMixed(baseStone_, crystal_, softCloud * 0.26F, opacity - veined);
    }

private:
    const MaterialScene& scene_;
    const MaterialLook& look_;
    Rgb baseStone_;
    Rgb veinColor_;
    Rgb crystal_;
    Clouds layers_;
    Clouds softCloud_;
    Float4 ofRow_{};
    Float4 sway_{};
    Float4 axis_{};
};

} // namespace

StagePointer makeGemstone(const MaterialScene& scene) { return makeStage<Gemstone>(scene); }
StagePointer makeObsidianRelief(const MaterialScene& scene) { return makeStage<ObsidianRelief>(scene); }
StagePointer makeGranite(const MaterialScene& scene) { return makeStage<Granite>(scene); }
StagePointer makeMarble(const MaterialScene& scene) { return makeStage<Marble>(scene); }

} // namespace vela
