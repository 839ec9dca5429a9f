// What lies over a material: its finish, its edges, and the light on its grain.
#include "vela/render/materials/material_layer.h"
#include "vela/render/materials/material_noise.h"
#include "vela/render/materials/material_terms.h"

#include <cmath>
#include <utility>

namespace vela {
namespace {

using simd::abs;
using simd::Float4;
using simd::load;
using simd::pow;

Fbm finishNoise(const MaterialInput& input)
{
    const MaterialParameters& material = input.parameters();
    return Fbm::onPixels(input, std::max(2.0F, material.scale * 0.42F), material.seed * 0.067F);
}

// Parallel lines all over the material: scratches that catch the light, or grooves in the shade.
class Lines {
public:
    void beginRow(const MaterialRow& row) { wave_.beginRow(row); }
    void addTo(FourSums& sums, std::size_t column) const
    {
        sums.addOverlay(color_, falloff(abs(wave_.at(column)), steepness_, exponent_) * opacity_);
    }

protected:
    Lines(Wave wave, const Rgb& color, float steepness, float exponent, float opacity)
        : wave_(std::move(wave)), color_(color), steepness_(steepness), exponent_(exponent), opacity_(opacity)
    {
    }

private:
    Wave wave_;
    Rgb color_;
    float steepness_;
    float exponent_;
    float opacity_;
};

class Brushed : public Lines {
public:
    explicit Brushed(const MaterialInput& input)
        : Lines(Wave(input, std::cos(input.parameters().angle) * 0.74F,
                     std::sin(input.parameters().angle) * 0.74F, 0),
                input.parameters().highlightColor, 1.64F, 2.4F, input.parameters().textureOpacity * 0.12F)
    {
    }
};

class Cracked {
public:
    explicit Cracked(const MaterialInput& input)
        : material_(input.parameters()), finishNoise_(finishNoise(input)),
          columns_(input.perColumn([](Float4 pixelX, Float4) { return pixelX * 0.067F; }))
    {
    }

    void beginRow(const MaterialRow& row)
    {
        row_ = row.pixelY * 0.031F;
        finishNoise_.beginRow(row);
    }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 crackPhase = simd::sin(load(&columns_[column]) + row_ + finishNoise_.at(column) * 8.0F);
        sums.addOverlay(material_.shadowColor,
                        falloff(abs(crackPhase), 1.72F, 5.8F) *
                            (material_.textureOpacity * (0.30F + material_.ambientOcclusion * 0.36F)));
    }

private:
    const MaterialParameters& material_;
    Fbm finishNoise_;
    ColumnValues columns_;
    Float4 row_{};
};

class Hammered {
public:
    explicit Hammered(const MaterialInput& input)
        : material_(input.parameters()), finishNoise_(finishNoise(input))
    {
    }

    void beginRow(const MaterialRow& row) { finishNoise_.beginRow(row); }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 hammered = pow(abs(finishNoise_.at(column) - 0.5F) * 2.0F, 1.8F);
        sums.addEither(hammered > 0.52F, material_.highlightColor, material_.shadowColor,
                       hammered * (material_.textureOpacity * 0.18F));
    }

private:
    const MaterialParameters& material_;
    Fbm finishNoise_;
};

class Etched : public Lines {
public:
    explicit Etched(const MaterialInput& input)
        : Lines(Wave(input, 0.42F, 0.32F * 0.42F, 0), input.parameters().shadowColor, 1.62F, 4.0F,
                input.parameters().textureOpacity * 0.18F)
    {
    }
};

class Frosted {
public:
    explicit Frosted(const MaterialInput& input)
        : material_(input.parameters()), finishNoise_(finishNoise(input))
    {
    }

    void beginRow(const MaterialRow& row) { finishNoise_.beginRow(row); }
    void addTo(FourSums& sums, std::size_t column) const
    {
        sums.addOverlay(material_.highlightColor,
                        abs(finishNoise_.at(column) - 0.5F) * (material_.textureOpacity * 0.14F));
    }

private:
    const MaterialParameters& material_;
    Fbm finishNoise_;
};

class WetGloss {
public:
    explicit WetGloss(const MaterialInput& input) : material_(input.parameters()) {}

    void beginRow(const MaterialRow& row)
    {
        ofRow_ = falloff(abs(row.ty - 0.26F), 5.0F, 2.4F) * (material_.highlight * 0.36F);
    }
    void addTo(FourSums& sums, std::size_t) const { sums.addOverlay(material_.highlightColor, ofRow_); }

private:
    const MaterialParameters& material_;
    Float4 ofRow_{};
};

class ContactShade {
public:
    explicit ContactShade(const MaterialInput& input)
        : material_(input.parameters()), contact_(input, 8.8F, 2.0F)
    {
    }

    void beginRow(const MaterialRow& row) { contact_.beginRow(row); }
    void addTo(FourSums& sums, std::size_t column) const
    {
        sums.addOverlay(material_.shadowColor, contact_.at(column) * (material_.ambientOcclusion * 0.16F));
    }

private:
    const MaterialParameters& material_;
    Rim contact_;
};

class EdgeWear {
public:
    explicit EdgeWear(const MaterialInput& input) : material_(input.parameters()), rim_(input, 12.0F, 2.35F)
    {
    }

    void beginRow(const MaterialRow& row) { rim_.beginRow(row); }
    void addTo(FourSums& sums, std::size_t column) const
    {
        sums.addOverlay(material_.highlightColor,
                        rim_.at(column) * (material_.edgeWear * material_.specular * 0.10F));
    }

private:
    const MaterialParameters& material_;
    Rim rim_;
};

// Slopes of a height field made of the grain. The shader's field has a dome and stripes too, but takes them
// at the same place for all neighbours, so that they cancel out.
class Relief {
public:
    explicit Relief(const MaterialInput& input)
        : material_(input.parameters()), left_(input, material_.seed, {.stepX = -1}),
          right_(input, material_.seed, {.stepX = 1}), up_(input, material_.seed, {.stepY = -1}),
          down_(input, material_.seed, {.stepY = 1}),
          materialTexture_(Fbm::onPixels(input, material_.scale, material_.seed * 0.021F)),
          lightX_(std::cos(material_.lightElevation) * std::cos(material_.lightAngle)),
          lightY_(std::cos(material_.lightElevation) * std::sin(material_.lightAngle)),
          lightZ_(std::sin(material_.lightElevation)),
          lit_(material_.highlight * (0.85F + material_.depth * 1.35F) * (1.8F + material_.specular)),
          shaded_(material_.reflection * (0.85F + material_.depth * 1.35F) *
                  (1.36F + material_.ambientOcclusion * 0.92F))
    {
    }

    void beginRow(const MaterialRow& row)
    {
        left_.beginRow(row);
        right_.beginRow(row);
        up_.beginRow(row);
        down_.beginRow(row);
        materialTexture_.beginRow(row);
    }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 steepness = (3.2F + materialTexture_.at(column) * (material_.textureOpacity * 0.22F)) *
                                 (0.08F * material_.depth);
        const Float4 slopeX = (left_.at(column) - right_.at(column)) * steepness;
        const Float4 slopeY = (up_.at(column) - down_.at(column)) * steepness;
        const Float4 length = simd::sqrt(slopeX * slopeX + slopeY * slopeY + 1.0F);
        const Float4 shade = (slopeX * lightX_ + slopeY * lightY_ + lightZ_) / length - lightZ_;
        sums.addOverlay(material_.highlightColor, shade > kDeadZone ? shade * lit_ : Float4{});
        sums.addOverlay(material_.shadowColor, shade < -kDeadZone ? -shade * shaded_ : Float4{});
    }

private:
    static constexpr float kDeadZone = 0.006F;

    const MaterialParameters& material_;
    Hash21 left_;
    Hash21 right_;
    Hash21 up_;
    Hash21 down_;
    Fbm materialTexture_;
    float lightX_; // the light's direction
    float lightY_;
    float lightZ_;
    float lit_;
    float shaded_;
};

} // namespace

LayerPointer makeBrushed(const MaterialInput& input) { return makeLayer<Brushed>(input); }
LayerPointer makeCracked(const MaterialInput& input) { return makeLayer<Cracked>(input); }
LayerPointer makeHammered(const MaterialInput& input) { return makeLayer<Hammered>(input); }
LayerPointer makeEtched(const MaterialInput& input) { return makeLayer<Etched>(input); }
LayerPointer makeFrosted(const MaterialInput& input) { return makeLayer<Frosted>(input); }
LayerPointer makeWetGloss(const MaterialInput& input) { return makeLayer<WetGloss>(input); }
LayerPointer makeContactShade(const MaterialInput& input) { return makeLayer<ContactShade>(input); }
LayerPointer makeEdgeWear(const MaterialInput& input) { return makeLayer<EdgeWear>(input); }
LayerPointer makeRelief(const MaterialInput& input) { return makeLayer<Relief>(input); }

} // namespace vela
