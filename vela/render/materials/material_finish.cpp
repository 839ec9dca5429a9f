// What lies over a material: its finish, its edges, and the light on its grain.
#include "vela/render/materials/material_noise.h"
#include "vela/render/materials/material_stage.h"
#include "vela/render/materials/material_terms.h"

#include <cmath>
#include <utility>

namespace vela {
namespace {

using simd::abs;
using simd::Float4;
using simd::load;
using simd::pow;

Clouds finishClouds(const MaterialScene& scene)
{
    const MaterialLook& look = scene.look();
    return Clouds::onPixels(scene, std::max(2.0F, look.scale * 0.42F), look.seed * 0.067F);
}

// Parallel lines all over the material: scratches that catch the light, or grooves in the shade.
class Lines {
public:
    void beginRow(const MaterialRow& row) { waves_.beginRow(row); }
    void addTo(FourSums& sums, std::size_t column) const
    {
        sums.add(color_, fallingOff(abs(waves_.at(column)), steepness_, exponent_) * opacity_);
    }

protected:
    Lines(Wave waves, const Rgb& color, float steepness, float exponent, float opacity)
        : waves_(std::move(waves)), color_(color), steepness_(steepness), exponent_(exponent),
          opacity_(opacity)
    {
    }

private:
    Wave waves_;
    Rgb color_;
    float steepness_;
    float exponent_;
    float opacity_;
};

class Brushed : public Lines {
public:
    explicit Brushed(const MaterialScene& scene)
        : Lines(Wave(scene, std::cos(scene.look().angle) * 0.74F, std::sin(scene.look().angle) * 0.74F, 0),
                scene.look().light, 1.64F, 2.4F, scene.look().texture * 0.12F)
    {
    }
};

class Cracked {
public:
    explicit Cracked(const MaterialScene& scene)
        : look_(scene.look()), clouds_(finishClouds(scene)),
          columns_(scene.perColumn([](Float4 pixel, Float4) { return pixel * 0.067F; }))
    {
    }

    void beginRow(const MaterialRow& row)
    {
        row_ = row.pixel * 0.031F;
        clouds_.beginRow(row);
    }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 wave = simd::sin(load(&columns_[column]) + row_ + clouds_.at(column) * 8.0F);
        sums.add(look_.shade,
                 fallingOff(abs(wave), 1.72F, 5.8F) * (look_.texture * (0.30F + look_.occlusion * 0.36F)));
    }

private:
    const MaterialLook& look_;
    Clouds clouds_;
    ColumnValues columns_;
    Float4 row_{};
};

class Hammered {
public:
    explicit Hammered(const MaterialScene& scene) : look_(scene.look()), clouds_(finishClouds(scene)) {}

    void beginRow(const MaterialRow& row) { clouds_.beginRow(row); }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 dent = pow(abs(clouds_.at(column) - 0.5F) * 2.0F, 1.8F);
        sums.addEither(dent > 0.52F, look_.light, look_.shade, dent * (look_.texture * 0.18F));
    }

private:
    const MaterialLook& look_;
    Clouds clouds_;
};

class Etched : public Lines {
public:
    explicit Etched(const MaterialScene& scene)
        : Lines(Wave(scene, 0.42F, 0.32F * 0.42F, 0), scene.look().shade, 1.62F, 4.0F,
                scene.look().texture * 0.18F)
    {
    }
};

class Frosted {
public:
    explicit Frosted(const MaterialScene& scene) : look_(scene.look()), clouds_(finishClouds(scene)) {}

    void beginRow(const MaterialRow& row) { clouds_.beginRow(row); }
    void addTo(FourSums& sums, std::size_t column) const
    {
        sums.add(look_.light, abs(clouds_.at(column) - 0.5F) * (look_.texture * 0.14F));
    }

private:
    const MaterialLook& look_;
    Clouds clouds_;
};

class WetGloss {
public:
    explicit WetGloss(const MaterialScene& scene) : look_(scene.look()) {}

    void beginRow(const MaterialRow& row)
    {
        ofRow_ = fallingOff(abs(row.texture - 0.26F), 5.0F, 2.4F) * (look_.highlight * 0.36F);
    }
    void addTo(FourSums& sums, std::size_t) const { sums.add(look_.light, ofRow_); }

private:
    const MaterialLook& look_;
    Float4 ofRow_{};
};

class ContactShade {
public:
    explicit ContactShade(const MaterialScene& scene) : look_(scene.look()), edge_(scene, 8.8F, 2.0F) {}

    void beginRow(const MaterialRow& row) { edge_.beginRow(row); }
    void addTo(FourSums& sums, std::size_t column) const
    {
        sums.add(look_.shade, edge_.at(column) * (look_.occlusion * 0.16F));
    }

private:
    const MaterialLook& look_;
    EdgeLight edge_;
};

class EdgeWear {
public:
    explicit EdgeWear(const MaterialScene& scene) : look_(scene.look()), edge_(scene, 12.0F, 2.35F) {}

    void beginRow(const MaterialRow& row) { edge_.beginRow(row); }
    void addTo(FourSums& sums, std::size_t column) const
    {
        sums.add(look_.light, edge_.at(column) * (look_.edgeWear * look_.specular * 0.10F));
    }

private:
    const MaterialLook& look_;
    EdgeLight edge_;
};

// Slopes of a height field made of the grain. The shader's field has a dome and stripes too, but takes them
// at the same place for all neighbours, so that they cancel out.
class Relief {
public:
    explicit Relief(const MaterialScene& scene)
        : look_(scene.look()), left_(scene, look_.seed, {.stepX = -1}),
          right_(scene, look_.seed, {.stepX = 1}), up_(scene, look_.seed, {.stepY = -1}),
          down_(scene, look_.seed, {.stepY = 1}),
          clouds_(Clouds::onPixels(scene, look_.scale, look_.seed * 0.021F)),
          towardsX_(std::cos(look_.lightElevation) * std::cos(look_.lightAngle)),
          towardsY_(std::cos(look_.lightElevation) * std::sin(look_.lightAngle)),
          towardsZ_(std::sin(look_.lightElevation)),
          lit_(look_.highlight * (0.85F + look_.depth * 1.35F) * (1.8F + look_.specular)),
          shaded_(look_.reflection * (0.85F + look_.depth * 1.35F) * (1.36F + look_.occlusion * 0.92F))
    {
    }

    void beginRow(const MaterialRow& row)
    {
        left_.beginRow(row);
        right_.beginRow(row);
        up_.beginRow(row);
        down_.beginRow(row);
        clouds_.beginRow(row);
    }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 steepness =
            (3.2F + clouds_.at(column) * (look_.texture * 0.22F)) * (0.08F * look_.depth);
        const Float4 slopeX = (left_.at(column) - right_.at(column)) * steepness;
        const Float4 slopeY = (up_.at(column) - down_.at(column)) * steepness;
        const Float4 length = simd::sqrt(slopeX * slopeX + slopeY * slopeY + 1.0F);
        const Float4 shade = (slopeX * towardsX_ + slopeY * towardsY_ + towardsZ_) / length - towardsZ_;
        sums.add(look_.light, shade > kDeadZone ? shade * lit_ : Float4{});
        sums.add(look_.shade, shade < -kDeadZone ? -shade * shaded_ : Float4{});
    }

private:
    static constexpr float kDeadZone = 0.006F;

    const MaterialLook& look_;
    Grain left_;
    Grain right_;
    Grain up_;
    Grain down_;
    Clouds clouds_;
    float towardsX_; // the light's direction
    float towardsY_;
    float towardsZ_;
    float lit_;
    float shaded_;
};

} // namespace

StagePointer makeBrushed(const MaterialScene& scene) { return makeStage<Brushed>(scene); }
StagePointer makeCracked(const MaterialScene& scene) { return makeStage<Cracked>(scene); }
StagePointer makeHammered(const MaterialScene& scene) { return makeStage<Hammered>(scene); }
StagePointer makeEtched(const MaterialScene& scene) { return makeStage<Etched>(scene); }
StagePointer makeFrosted(const MaterialScene& scene) { return makeStage<Frosted>(scene); }
StagePointer makeWetGloss(const MaterialScene& scene) { return makeStage<WetGloss>(scene); }
StagePointer makeContactShade(const MaterialScene& scene) { return makeStage<ContactShade>(scene); }
StagePointer makeEdgeWear(const MaterialScene& scene) { return makeStage<EdgeWear>(scene); }
StagePointer makeRelief(const MaterialScene& scene) { return makeStage<Relief>(scene); }

} // namespace vela
