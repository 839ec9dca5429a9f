// The plainer materials: window glass, gloss, metals, rubber, paper, carbon fibre.
#include "vela/render/materials/material_layer.h"
#include "vela/render/materials/material_noise.h"
#include "vela/render/materials/material_terms.h"

#include <cmath>

namespace vela {
namespace {

using simd::abs;
using simd::Float4;
using simd::max;
using simd::pow;

class Glass {
public:
    explicit Glass(const MaterialInput& input) : input_(input), material_(input.parameters()) {}

    void beginRow(const MaterialRow& row)
    {
        const Float4 topGlow = pow(1.0F - row.ty, 2.2F);
        const Float4 lowerReflection = max(Float4{}, row.ty - 0.58F) * 1.75F;
        ofRow_ = topGlow * material_.highlight + lowerReflection * material_.reflection;
        row_ = row;
    }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 offDiagonal = abs(input_.tx(column) - row_.ty - 0.12F);
        const Float4 diagonalSheen = max(Float4{}, 1.0F - offDiagonal * 6.0F);
        sums.addOverlay(material_.highlightColor, ofRow_ + diagonalSheen * (material_.reflection * 0.55F));
    }

private:
    const MaterialInput& input_;
    const MaterialParameters& material_;
    MaterialRow row_{};
    Float4 ofRow_{};
};

class FrostedGlass {
public:
    explicit FrostedGlass(const MaterialInput& input)
        : material_(input.parameters()), glass_(input), grain_(input, material_.seed)
    {
    }

    void beginRow(const MaterialRow& row)
    {
        glass_.beginRow(row);
        grain_.beginRow(row);
    }
    void addTo(FourSums& sums, std::size_t column) const
    {
        glass_.addTo(sums, column);
        sums.addOverlay(material_.highlightColor, grain_.at(column) * material_.grainOpacity);
    }

private:
    const MaterialParameters& material_;
    Glass glass_;
    Hash21 grain_;
};

class Gloss {
public:
    explicit Gloss(const MaterialInput& input) : material_(input.parameters()) {}

    void beginRow(const MaterialRow& row)
    {
        const Float4 band = falloff(abs(row.ty - 0.22F), 5.2F, 1.25F);
        ofRow_ = band * material_.highlight + max(Float4{}, 1.0F - row.ty) * (material_.reflection * 0.45F);
    }
    void addTo(FourSums& sums, std::size_t) const { sums.addOverlay(material_.highlightColor, ofRow_); }

private:
    const MaterialParameters& material_;
    Float4 ofRow_{};
};

class Metal {
public:
    explicit Metal(const MaterialInput& input) : Metal(input, 0.22F, 0.035F) {}

    void beginRow(const MaterialRow& row)
    {
        axis_ = input_.axisOfRow(row);
        ofRow_ = pow(1.0F - row.ty, 1.65F) * (material_.highlight * 0.08F);
        grain_.beginRow(row);
    }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 axis = input_.axis(axis_, column);
        const Float4 diagonalSheen = falloff(abs(axis - sheenPlace_), 1.15F, 2.4F);
        const Float4 edgeSheen = pow((axis - 0.78F) * 2.2F, 1.6F);
        sums.addOverlay(material_.highlightColor,
                        ofRow_ + diagonalSheen * (material_.reflection * sheen_) +
                            edgeSheen * (material_.highlight * 0.06F) +
                            abs(grain_.at(column) - 0.5F) * (material_.grainOpacity * grainShare_));
    }

protected:
    Metal(const MaterialInput& input, float sheen, float grainShare)
        : input_(input), material_(input.parameters()), sheen_(sheen), grainShare_(grainShare),
          sheenPlace_(0.42F + std::fmod(std::abs(material_.angle * 57.2957795F), 90.0F) / 90 * 0.08F),
          grain_(input, material_.seed)
    {
    }

private:
    const MaterialInput& input_;
    const MaterialParameters& material_;
    float sheen_;
    float grainShare_;
    float sheenPlace_;
    Hash21 grain_;
    Float4 axis_{};
    Float4 ofRow_{};
};

class BrushedMetal : public Metal {
public:
    explicit BrushedMetal(const MaterialInput& input) : Metal(input, 0.14F, 0.06F) {}
};

class Rubber {
public:
    explicit Rubber(const MaterialInput& input) : material_(input.parameters()), grain_(input, material_.seed)
    {
    }

    void beginRow(const MaterialRow& row)
    {
        ofRow_ = (0.35F + row.ty * 0.35F) * (material_.strength * 0.12F);
        grain_.beginRow(row);
    }
    void addTo(FourSums& sums, std::size_t column) const
    {
        sums.addOverlay(material_.shadowColor, ofRow_ + grain_.at(column) * material_.grainOpacity);
    }

private:
    const MaterialParameters& material_;
    Hash21 grain_;
    Float4 ofRow_{};
};

class Paper {
public:
    explicit Paper(const MaterialInput& input) : material_(input.parameters()), grain_(input, material_.seed)
    {
    }

    void beginRow(const MaterialRow& row) { grain_.beginRow(row); }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 grain = grain_.at(column);
        sums.addEither(grain >= 0.5F, material_.highlightColor, material_.shadowColor,
                       abs(grain - 0.5F) * (2 * material_.grainOpacity));
    }

private:
    const MaterialParameters& material_;
    Hash21 grain_;
};

class CarbonFiber {
public:
    explicit CarbonFiber(const MaterialInput& input)
        : input_(input), material_(input.parameters()),
          along_(0.45F * material_.grainOpacity + material_.reflection * 0.22F),
          across_(0.72F * material_.grainOpacity + material_.reflection * 0.22F)
    {
    }

    void beginRow(const MaterialRow& row) { row_ = row; }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 x = input_.pixelX(column);
        const simd::Int4 sameWeave = weave(x + row_.pixelY) == weave(x - row_.pixelY);
        sums.addEither(sameWeave, material_.highlightColor, material_.shadowColor,
                       sameWeave ? simd::splat(along_) : simd::splat(across_));
    }

private:
    // Of the weave's cell: 0 or 1, and -1 for odd ones before the first, as the shader's remainder is.
    Float4 weave(Float4 position) const noexcept
    {
        const Float4 cell = simd::floor((position + material_.angle * 31.0F) / material_.scale);
        return cell - 2.0F * simd::toFloat(simd::truncated(cell * 0.5F));
    }

    const MaterialInput& input_;
    const MaterialParameters& material_;
    float along_;
    float across_;
    MaterialRow row_{};
};

} // namespace

LayerPointer makeGlass(const MaterialInput& input) { return makeLayer<Glass>(input); }
LayerPointer makeFrostedGlass(const MaterialInput& input) { return makeLayer<FrostedGlass>(input); }
LayerPointer makeGloss(const MaterialInput& input) { return makeLayer<Gloss>(input); }
LayerPointer makeMetal(const MaterialInput& input) { return makeLayer<Metal>(input); }
LayerPointer makeBrushedMetal(const MaterialInput& input) { return makeLayer<BrushedMetal>(input); }
LayerPointer makeRubber(const MaterialInput& input) { return makeLayer<Rubber>(input); }
LayerPointer makePaper(const MaterialInput& input) { return makeLayer<Paper>(input); }
LayerPointer makeCarbonFiber(const MaterialInput& input) { return makeLayer<CarbonFiber>(input); }

} // namespace vela
