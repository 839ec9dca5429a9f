// The plainer materials: window glass, gloss, metals, rubber, paper, carbon fibre.
#include "vela/render/materials/material_noise.h"
#include "vela/render/materials/material_stage.h"
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
    explicit Glass(const MaterialScene& scene) : scene_(scene), look_(scene.look()) {}

    void beginRow(const MaterialRow& row)
    {
        const Float4 topGlow = pow(1.0F - row.texture, 2.2F);
        const Float4 lowerReflection = max(Float4{}, row.texture - 0.58F) * 1.75F;
        ofRow_ = topGlow * look_.highlight + lowerReflection * look_.reflection;
        row_ = row;
    }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 offDiagonal = abs(scene_.textureX(column) - row_.texture - 0.12F);
        const Float4 sheen = max(Float4{}, 1.0F - offDiagonal * 6.0F);
        sums.add(look_.light, ofRow_ + sheen * (look_.reflection * 0.55F));
    }

private:
    const MaterialScene& scene_;
    const MaterialLook& look_;
    MaterialRow row_{};
    Float4 ofRow_{};
};

class FrostedGlass {
public:
    explicit FrostedGlass(const MaterialScene& scene)
        : look_(scene.look()), glass_(scene), grain_(scene, look_.seed)
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
        sums.add(look_.light, grain_.at(column) * look_.grain);
    }

private:
    const MaterialLook& look_;
    Glass glass_;
    Grain grain_;
};

class Gloss {
public:
    explicit Gloss(const MaterialScene& scene) : look_(scene.look()) {}

    void beginRow(const MaterialRow& row)
    {
        const Float4 band = fallingOff(abs(row.texture - 0.22F), 5.2F, 1.25F);
        ofRow_ = band * look_.highlight + max(Float4{}, 1.0F - row.texture) * (look_.reflection * 0.45F);
    }
    void addTo(FourSums& sums, std::size_t) const { sums.add(look_.light, ofRow_); }

private:
    const MaterialLook& look_;
    Float4 ofRow_{};
};

class Metal {
public:
    explicit Metal(const MaterialScene& scene) : Metal(scene, 0.22F, 0.035F) {}

    void beginRow(const MaterialRow& row)
    {
        axis_ = scene_.axisOfRow(row);
        ofRow_ = pow(1.0F - row.texture, 1.65F) * (look_.highlight * 0.08F);
        grain_.beginRow(row);
    }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 axis = scene_.axis(axis_, column);
        const Float4 diagonalSheen = fallingOff(abs(axis - sheenPlace_), 1.15F, 2.4F);
        const Float4 edgeSheen = pow((axis - 0.78F) * 2.2F, 1.6F);
        sums.add(look_.light, ofRow_ + diagonalSheen * (look_.reflection * sheen_) +
                                  edgeSheen * (look_.highlight * 0.06F) +
                                  abs(grain_.at(column) - 0.5F) * (look_.grain * grainShare_));
    }

protected:
    Metal(const MaterialScene& scene, float sheen, float grainShare)
        : scene_(scene), look_(scene.look()), sheen_(sheen), grainShare_(grainShare),
          sheenPlace_(0.42F + std::fmod(std::abs(look_.angle * 57.2957795F), 90.0F) / 90 * 0.08F),
          grain_(scene, look_.seed)
    {
    }

private:
    const MaterialScene& scene_;
    const MaterialLook& look_;
    float sheen_;
    float grainShare_;
    float sheenPlace_;
    Grain grain_;
    Float4 axis_{};
    Float4 ofRow_{};
};

class BrushedMetal : public Metal {
public:
    explicit BrushedMetal(const MaterialScene& scene) : Metal(scene, 0.14F, 0.06F) {}
};

class Rubber {
public:
    explicit Rubber(const MaterialScene& scene) : look_(scene.look()), grain_(scene, look_.seed) {}

    void beginRow(const MaterialRow& row)
    {
        ofRow_ = (0.35F + row.texture * 0.35F) * (look_.strength * 0.12F);
        grain_.beginRow(row);
    }
    void addTo(FourSums& sums, std::size_t column) const
    {
        sums.add(look_.shade, ofRow_ + grain_.at(column) * look_.grain);
    }

private:
    const MaterialLook& look_;
    Grain grain_;
    Float4 ofRow_{};
};

class Paper {
public:
    explicit Paper(const MaterialScene& scene) : look_(scene.look()), grain_(scene, look_.seed) {}

    void beginRow(const MaterialRow& row) { grain_.beginRow(row); }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 grain = grain_.at(column);
        sums.addEither(grain >= 0.5F, look_.light, look_.shade, abs(grain - 0.5F) * (2 * look_.grain));
    }

private:
    const MaterialLook& look_;
    Grain grain_;
};

class CarbonFiber {
public:
    explicit CarbonFiber(const MaterialScene& scene)
        : scene_(scene), look_(scene.look()), along_(0.45F * look_.grain + look_.reflection * 0.22F),
          across_(0.72F * look_.grain + look_.reflection * 0.22F)
    {
    }

    void beginRow(const MaterialRow& row) { row_ = row; }
    void addTo(FourSums& sums, std::size_t column) const
    {
        const Float4 x = scene_.pixelX(column);
        const simd::Int4 same = parity(x + row_.pixel) == parity(x - row_.pixel);
        sums.addEither(same, look_.light, look_.shade, same ? simd::splat(along_) : simd::splat(across_));
    }

private:
    // Of the weave's cell: 0 or 1, and -1 for odd ones before the first, as the shader's remainder is.
    Float4 parity(Float4 position) const noexcept
    {
        const Float4 cell = simd::floor((position + look_.angle * 31.0F) / look_.scale);
        return cell - 2.0F * simd::toFloat(simd::truncated(cell * 0.5F));
    }

    const MaterialScene& scene_;
    const MaterialLook& look_;
    float along_;
    float across_;
    MaterialRow row_{};
};

} // namespace

StagePointer makeGlass(const MaterialScene& scene) { return makeStage<Glass>(scene); }
StagePointer makeFrostedGlass(const MaterialScene& scene) { return makeStage<FrostedGlass>(scene); }
StagePointer makeGloss(const MaterialScene& scene) { return makeStage<Gloss>(scene); }
StagePointer makeMetal(const MaterialScene& scene) { return makeStage<Metal>(scene); }
StagePointer makeBrushedMetal(const MaterialScene& scene) { return makeStage<BrushedMetal>(scene); }
StagePointer makeRubber(const MaterialScene& scene) { return makeStage<Rubber>(scene); }
StagePointer makePaper(const MaterialScene& scene) { return makeStage<Paper>(scene); }
StagePointer makeCarbonFiber(const MaterialScene& scene) { return makeStage<CarbonFiber>(scene); }

} // namespace vela
