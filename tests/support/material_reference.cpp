#include "tests/support/material_reference.h"

#include "tests/support/shader_words.h"

#include <algorithm>
#include <cmath>

namespace vela {
namespace {

using namespace shader;

// One run of the shader's main function.
class Shader {
public:
    Shader(const MaterialConstants& constants, Float2 inputUv);

    ReferenceColor run();

private:
    Float2 materialUv() const;
    void addOverlay(Float3 layerColor, float layerAlpha);
    void addGlassToPlastic();
    void addRubberToCarbon();
    void addDarkGlasses();
    void addAmber();
    void addLuminousGlass();
    void addLayeredGlass();
    void addGemstone();
    void addObsidianRelief();
    void addGranite();
    void addMarble();
    void addMaterial();
    void addFinish();
    void addEdges();
    void addRelief();

    const MaterialConstants& c;
    Float2 pixel;
    Float2 uv;
    float tx, ty, axis;
    Float3 tint, backlight;
    float kind, strength, highlight, reflection;
    float grainOpacity, depth, scale, angle;
    float backlightOpacity, innerGlow, rimLight, seed, opacity;
    float roughness, specular, ambientOcclusion, edgeWear, textureOpacity, finish;
    float grain, fine, stripe, dome, edgeDistance;
    Float3 highlightColor, shadowColor;
    Float3 color;
    float alpha = 0;
};

Shader::Shader(const MaterialConstants& constants, Float2 inputUv)
    : c(constants), pixel(inputUv * Float2{c.geometry.x, c.geometry.y}), uv(materialUv()), tx(uv.x), ty(uv.y),
      axis(gradientAxis(uv, c.material5.y)), tint{c.tint.x, c.tint.y, c.tint.z}, backlight{c.backlight.x,
                                                                                           c.backlight.y,
                                                                                           c.backlight.z},
      kind(c.material0.x), strength(c.material0.y / 180), highlight(c.material0.z / 255),
      reflection(c.material0.w / 255), grainOpacity(c.material1.x / 255), depth(c.material1.y / 255),
      scale(std::max(2.0F, c.material1.z)), angle(c.material1.w), backlightOpacity(c.material4.z / 255),
      innerGlow(c.material4.w / 255), rimLight(c.material5.x / 255), seed(c.material5.z),
      opacity(c.material5.w / 255), roughness(c.material6.x / 255), specular(c.material6.y / 255),
      ambientOcclusion(c.material6.z / 255), edgeWear(c.material6.w / 255),
      textureOpacity(c.material7.x / 255), finish(c.material7.y)
{
    grain = hash21(pixel + seed);
    fine = hash21(pixel * 1.73F + seed * 0.37F);
    const float direction = (pixel.x * std::cos(angle) + pixel.y * std::sin(angle)) / scale;
    stripe = 0.5F + 0.5F * std::sin(direction * 6.2831853F);
    dome = std::pow(std::max(0.0F, 1 - length(uv - Float2{0.5F, 0.5F}) * 1.82F), 1.55F);
    edgeDistance = std::min(std::min(tx, 1 - tx), std::min(ty, 1 - ty));
    highlightColor = lerp(Float3{1, 1, 1}, tint, 0.28F);
    shadowColor = lerp(Float3{0, 0, 0}, tint, 0.10F);
    color = highlightColor;
}

Float2 Shader::materialUv() const
{
    if (c.material3.x < 0.5F)
        return {saturate(pixel.x / std::max(1.0F, c.geometry.x - 1)),
                saturate(pixel.y / std::max(1.0F, c.geometry.y - 1))};
    const float tile = std::max(8.0F, c.material3.y);
    return {mirroredModulo(c.geometry.z + pixel.x + c.material3.z, tile) / tile,
            mirroredModulo(c.geometry.w + pixel.y + c.material3.w, tile) / tile};
}

void Shader::addOverlay(Float3 layerColor, float layerAlpha)
{
    layerAlpha = std::max(0.0F, layerAlpha);
    if (layerAlpha <= 0.00001F)
        return;
    const float total = std::max(0.00001F, alpha + layerAlpha);
    color = lerp(color, layerColor, saturate(layerAlpha / total));
    alpha = total;
}

void Shader::addGlassToPlastic()
{
    if (kind > 0.5F && kind < 2.5F) {
        const float topGlow = std::pow(std::max(0.0F, 1 - ty), 2.2F);
        const float lowerReflection = std::max(0.0F, ty - 0.58F) * 1.75F;
        const float diagonalSheen = std::max(0.0F, 1 - std::abs((tx - ty) - 0.12F) * 6);
        alpha = topGlow * highlight + lowerReflection * reflection + diagonalSheen * reflection * 0.55F;
        if (kind > 1.5F)
            alpha += grain * grainOpacity;
    } else if (kind < 3.5F || kind > 5.5F) {
        const float band = std::pow(std::max(0.0F, 1 - std::abs(ty - 0.22F) * 5.2F), 1.25F);
        alpha = band * highlight + std::max(0.0F, 1 - ty) * reflection * 0.45F;
    } else {
        const float angleOffset = std::fmod(std::abs(angle * 57.2957795F), 90.0F) / 90;
        const float topSheen = std::pow(std::max(0.0F, 1 - ty), 1.65F);
        const float diagonalSheen =
            std::pow(std::max(0.0F, 1 - std::abs(axis - (0.42F + angleOffset * 0.08F)) * 1.15F), 2.4F);
        const float edgeSheen = std::pow(std::max(0.0F, axis - 0.78F) * 2.2F, 1.6F);
        alpha = topSheen * highlight * 0.08F + diagonalSheen * reflection * (kind > 4.5F ? 0.14F : 0.22F) +
                edgeSheen * highlight * 0.06F +
                std::abs(grain - 0.5F) * grainOpacity * (kind > 4.5F ? 0.06F : 0.035F);
    }
}

void Shader::addRubberToCarbon()
{
    if (kind < 7.5F) {
        color = shadowColor;
        alpha = grain * grainOpacity + (0.35F + ty * 0.35F) * strength * 0.12F;
    } else if (kind < 8.5F) {
        color = grain >= 0.5F ? highlightColor : shadowColor;
        alpha = std::abs(grain - 0.5F) * 2 * grainOpacity;
    } else {
        const float weaveA = std::fmod(std::floor((pixel.x + pixel.y + angle * 31) / scale), 2.0F);
        const float weaveB = std::fmod(std::floor((pixel.x - pixel.y + angle * 31) / scale), 2.0F);
        const bool sameWeave = std::abs(weaveA - weaveB) < 0.5F;
        color = sameWeave ? highlightColor : shadowColor;
        alpha = (sameWeave ? 0.45F : 0.72F) * grainOpacity + reflection * 0.22F;
    }
}

void Shader::addDarkGlasses()
{
    if (kind < 10.5F) {
        const float upperCut = std::pow(std::max(0.0F, 1 - ty), 2.8F);
        const float sideReflection = std::pow(std::max(0.0F, std::max(tx, 1 - tx) - 0.72F) * 3.58F, 2.0F);
        const float deepVeil = std::pow(std::max(0.0F, 1 - std::abs(axis - 0.52F) * 2.4F), 3.6F);
        const float lowerBlood = std::pow(std::max(0.0F, ty - 0.62F) * 2.65F, 2.0F);
        color = lerp(Float3{0.012F, 0.012F, 0.016F}, tint, 0.42F);
        alpha = upperCut * highlight * 0.10F + sideReflection * reflection * 0.22F +
                deepVeil * reflection * 0.12F + lowerBlood * reflection * 0.10F;
    } else {
        const float wetBand = std::pow(std::max(0.0F, 1 - std::abs(ty - 0.30F) * 4), 2.2F);
        const float rim = std::pow(std::max(0.0F, std::max(tx, 1 - tx) - 0.70F) * 3.34F, 1.7F);
        const float pool = std::pow(std::max(0.0F, ty - 0.60F) * 2.5F, 1.7F);
        const float streakPhase = std::sin(pixel.x * 0.072F + pixel.y * 0.018F + angle);
        const float streak = std::pow(std::max(0.0F, 1 - std::abs(streakPhase) * 2), 5.0F);
        color = lerp(Float3{0.094F, 0.0F, 0.008F}, tint, 0.78F);
        alpha = wetBand * highlight * 0.16F + rim * reflection * 0.24F + pool * reflection * 0.18F +
                streak * grain * grainOpacity * 0.16F;
    }
}

void Shader::addAmber()
{
    const float fireCore = std::pow(std::max(0.0F, 1 - std::abs(axis - 0.52F) * 1.55F), 2.35F);
    const float honeyBody = std::pow(std::max(0.0F, 1 - std::abs(ty - 0.58F) * 1.72F), 1.85F) *
                            (0.42F + std::max(0.0F, 1 - std::abs(tx - 0.48F) * 2.2F) * 0.58F);
    const float moltenTop = std::pow(std::max(0.0F, 1 - ty), 2.35F) *
                            (0.30F + std::max(0.0F, 1 - std::abs(tx - 0.34F) * 2.4F) * 0.70F);
    const float darkRim = std::pow(std::max(0.0F, std::max(tx, 1 - tx) - 0.74F) * 3.86F, 1.55F);
    const float shardPhase = std::sin(pixel.x * 0.052F + pixel.y * 0.027F + angle) +
                             0.55F * std::sin(pixel.x * 0.017F - pixel.y * 0.071F);
    const float shard = std::pow(std::max(0.0F, 1 - std::abs(shardPhase) * 1.58F), 6.0F);
    const Float3 moltenGold = lerp(Float3{1, 0.73F, 0}, tint, 0.34F);
    const Float3 resinOrange = lerp(Float3{1, 0.41F, 0}, tint, 0.46F);
    const Float3 burntEdge = lerp(Float3{0.41F, 0.13F, 0}, tint, 0.40F);
    const Float3 deepHoney = lerp(Float3{0.70F, 0.25F, 0}, tint, 0.48F);
    color = darkRim > 0.36F                          ? burntEdge
            : shard > 0.30F && grain > 0.42F         ? resinOrange
            : honeyBody > 0.32F || moltenTop > 0.24F ? moltenGold
                                                     : deepHoney;
    alpha = fireCore * reflection * 0.24F + honeyBody * reflection * 0.34F + moltenTop * highlight * 0.36F +
            darkRim * reflection * 0.25F + shard * (0.38F + grain * 0.62F) * grainOpacity * 1.55F +
            std::pow(std::max(0.0F, grain - 0.64F) / 0.36F, 2.0F) * grainOpacity * 0.72F;
}

void Shader::addLuminousGlass()
{
    const float blobAngle = c.material2.w;
    const float phase = c.material4.x;
    const Float2 lightAxis{std::cos(blobAngle), std::sin(blobAngle)};
    const float phaseRadians = phase * 6.2831853F;
    const float motion = phase > 0 ? 1.0F : 0.0F;
    const Float2 center{0.30F + motion * 0.16F * std::cos(phaseRadians),
                        0.62F + motion * 0.12F * std::sin(phaseRadians * 0.83F + 0.8F)};
    const Float2 delta = uv - center;
    const float along = dot(delta, lightAxis);
    const float across = dot(delta, Float2{-lightAxis.y, lightAxis.x});
    const float scaleRatio =
        std::max(24.0F, c.material2.z) / std::max(64.0F, std::max(c.geometry.x, c.geometry.y));
    const float blob =
        std::exp(-((along * along) / std::pow(std::clamp(scaleRatio * 0.62F, 0.26F, 1.25F), 2.0F) +
                   (across * across) / std::pow(std::clamp(scaleRatio * 0.24F, 0.12F, 0.64F), 2.0F)));
    const float lowerBlob =
        std::exp(-(((tx - 0.72F) * (tx - 0.72F)) / 0.20F + ((ty - 0.86F) * (ty - 0.86F)) / 0.055F));
    const float rim = std::pow(std::max(0.0F, 1 - edgeDistance * 13.5F), 2.7F);
    const float innerField = std::pow(std::max(0.0F, 1 - std::abs(axis - 0.50F) * 1.75F), 2.2F);
    const Float3 innerColor = lerp(tint, backlight, 0.72F);
    const Float3 rimColor = lerp(backlight, Float3{1, 0.886F, 0.745F}, 0.16F);
    color = lerp(Float3{0.02F, 0.02F, 0.032F}, backlight, 0.36F);
    if (c.material4.y > 0.5F) {
        color = innerColor;
        alpha = innerField * backlightOpacity * 0.16F + rim * rimLight * 0.10F;
        return;
    }
    addOverlay(backlight, blob * backlightOpacity * 0.70F);
    addOverlay(innerColor, lowerBlob * innerGlow * 0.54F);
    addOverlay(innerColor, innerField * innerGlow * 0.12F);
    addOverlay(rimColor, rim * rimLight * 0.34F);
    addOverlay(lerp(Float3{0, 0, 0}, backlight, 0.34F), std::abs(grain - 0.5F) * grainOpacity * 0.08F);
}

void Shader::addLayeredGlass()
{
    const float strata = fbm(uv * Float2{3.7F, 2.4F} + seed * 0.013F);
    const float micro = fbm(pixel / std::max(3.0F, scale * 0.62F) + seed * 0.031F);
    const float caustic =
        std::pow(std::max(0.0F, 1 - std::abs(std::sin((axis + strata * 0.16F) * 9.4F)) * 1.16F), 3.2F);
    const float side = std::pow(std::max(0.0F, std::max(tx, 1 - tx) - 0.68F) * 3.12F, 1.8F);
    const float topLens = std::pow(std::max(0.0F, 1 - ty), 2.0F);
    const float lowerLens = std::pow(std::max(0.0F, ty - 0.56F) * 2.27F, 2.0F);
    const Float3 coolGlass = lerp(Float3{0.018F, 0.020F, 0.027F}, tint, 0.44F);
    color = lerp(coolGlass, backlight, 0.18F + strata * 0.24F);
    alpha = topLens * highlight * (0.30F + specular * 0.72F) + lowerLens * reflection * 0.34F +
            caustic * textureOpacity * 0.34F + side * rimLight * (0.18F + edgeWear * 0.38F) +
            std::abs(micro - 0.5F) * textureOpacity * (0.12F + roughness * 0.18F);
}

void Shader::addGemstone()
{
    const float facetA = std::abs(
        frac((pixel.x * 0.036F + pixel.y * 0.021F + seed * 0.007F) * std::max(0.5F, scale * 0.045F)) - 0.5F);
    const float facetB = std::abs(
        frac((pixel.x * -0.018F + pixel.y * 0.052F + seed * 0.011F) * std::max(0.5F, scale * 0.038F)) - 0.5F);
    const float facet = std::pow(1 - saturate(std::min(facetA, facetB) * 3.6F), 2.4F);
    const float prism = std::pow(std::max(0.0F, 1 - std::abs(axis - (0.44F + fine * 0.18F)) * 3), 2.2F);
    const float rim = std::pow(std::max(0.0F, 1 - edgeDistance * 10.2F), 2.1F);
    const Float3 deepGem = lerp(Float3{0.003F, 0.006F, 0.006F}, tint, 0.56F);
    const Float3 brightGem = lerp(tint, Float3{1, 1, 1}, 0.20F + specular * 0.16F);
    color = lerp(deepGem, brightGem, saturate(facet * 0.42F + prism * 0.26F));
    alpha = facet * textureOpacity * (0.28F + specular * 0.82F) + prism * reflection * 0.40F +
            rim * rimLight * (0.22F + edgeWear * 0.36F) +
            std::pow(std::max(0.0F, 1 - ty), 2.3F) * highlight * 0.22F;
}

void Shader::addObsidianRelief()
{
    const float fracture = fbm(uv * Float2{5.8F, 3.3F} + seed * 0.019F);
    const float veinPhase = std::sin(pixel.x * 0.041F + pixel.y * 0.029F + fracture * 5.8F + angle);
    const float vein = std::pow(std::max(0.0F, 1 - std::abs(veinPhase) * 1.86F), 4.8F);
    const float pit = std::pow(fbm(pixel / std::max(2.0F, scale) + seed * 0.043F), 2.4F);
    const float rim = std::pow(std::max(0.0F, 1 - edgeDistance * 11.6F), 2.3F);
    const Float3 blackStone = lerp(Float3{0.002F, 0.002F, 0.004F}, tint, 0.18F);
    const Float3 veinColor = lerp(Float3{0.07F, 0.0F, 0.008F}, tint, 0.62F);
    color = lerp(blackStone, veinColor, vein * 0.72F + fracture * 0.10F);
    alpha = vein * textureOpacity * 0.28F + pit * textureOpacity * roughness * 0.12F +
            rim * rimLight * (0.18F + edgeWear * 0.42F) +
            std::pow(std::max(0.0F, 1 - ty), 2.6F) * highlight * 0.11F;
}

void Shader::addGranite()
{
    const float mineralA = fbm(pixel / std::max(4.0F, scale * 0.72F) + seed * 0.027F);
    const float mineralB = fbm(pixel / std::max(2.0F, scale * 0.34F) + seed * 0.051F);
    const float feldspar = step(0.64F, mineralA) * (0.58F + mineralB * 0.42F);
    const float mica = std::pow(
        std::max(0.0F,
                 1 - std::abs(frac((pixel.x * 0.031F - pixel.y * 0.024F + seed * 0.013F) * scale * 0.035F) -
                              0.5F) *
                         3.4F),
        3.2F);
    const float pit = std::pow(mineralB, 2.4F);
    const Float3 darkMineral = lerp(Float3{0.02F, 0.018F, 0.017F}, tint, 0.28F);
    const Float3 lightMineral = lerp(Float3{0.70F, 0.68F, 0.64F}, tint, 0.52F);
    const Float3 micaColor = lerp(Float3{0.92F, 0.90F, 0.82F}, tint, 0.26F);
    color = lerp(darkMineral, lightMineral, saturate(feldspar * 0.72F + mineralA * 0.24F));
    addOverlay(micaColor, mica * textureOpacity * (0.14F + specular * 0.28F));
    alpha += feldspar * textureOpacity * 0.22F + pit * textureOpacity * roughness * 0.10F;
}

void Shader::addMarble()
{
    const float marble = fbm(uv * Float2{3.4F, 1.7F} + seed * 0.023F);
    const float veinPhase = std::sin((axis + marble * 0.36F) * 15 + std::sin(ty * 9 + seed * 0.01F) * 0.8F);
    const float vein = std::pow(std::max(0.0F, 1 - std::abs(veinPhase) * 1.36F), 5.2F);
    const float softCloud = fbm(uv * Float2{1.2F, 0.9F} + seed * 0.017F);
    const Float3 baseStone = lerp(Float3{0.62F, 0.60F, 0.56F}, tint, 0.56F);
    const Float3 veinColor = lerp(Float3{0.10F, 0.09F, 0.085F}, tint, 0.24F);
    const Float3 crystal = lerp(Float3{1, 0.96F, 0.88F}, tint, 0.28F);
    color = lerp(baseStone, crystal, softCloud * 0.26F);
    addOverlay(veinColor, vein * textureOpacity * (0.30F + roughness * 0.14F));
    alpha += softCloud * textureOpacity * 0.08F + std::pow(std::max(0.0F, 1 - ty), 2.2F) * highlight * 0.10F;
}

void Shader::addMaterial()
{
    if (kind > 0.5F && kind < 6.5F)
        addGlassToPlastic();
    else if (kind > 6.5F && kind < 9.5F)
        addRubberToCarbon();
    else if (kind > 9.5F && kind < 11.5F)
        addDarkGlasses();
    else if (kind > 11.5F && kind < 12.5F)
        addAmber();
    else if (kind > 12.5F && kind < 13.5F)
        addLuminousGlass();
    else if (kind > 13.5F && kind < 14.5F)
        addLayeredGlass();
    else if (kind > 14.5F && kind < 15.5F)
        addGemstone();
    else if (kind > 15.5F && kind < 16.5F)
        addObsidianRelief();
    else if (kind > 16.5F && kind < 17.5F)
        addGranite();
    else
        addMarble();
}

void Shader::addFinish()
{
    const float finishNoise = fbm(pixel / std::max(2.0F, scale * 0.42F) + seed * 0.067F);
    if (finish > 1.5F && finish < 2.5F) {
        const float lines = std::sin((pixel.x * std::cos(angle) + pixel.y * std::sin(angle)) * 0.74F);
        const float brush = std::pow(std::max(0.0F, 1 - std::abs(lines) * 1.64F), 2.4F);
        addOverlay(highlightColor, brush * textureOpacity * 0.12F);
    } else if (finish > 5.5F && finish < 6.5F) {
        const float crackPhase = std::sin(pixel.x * 0.067F + pixel.y * 0.031F + finishNoise * 8);
        const float crack = std::pow(std::max(0.0F, 1 - std::abs(crackPhase) * 1.72F), 5.8F);
        addOverlay(shadowColor, crack * textureOpacity * (0.30F + ambientOcclusion * 0.36F));
    } else if (finish > 6.5F && finish < 7.5F) {
        const float hammered = std::pow(std::abs(finishNoise - 0.5F) * 2, 1.8F);
        addOverlay(hammered > 0.52F ? highlightColor : shadowColor, hammered * textureOpacity * 0.18F);
    } else if (finish > 7.5F && finish < 8.5F) {
        const float lines = std::sin((pixel.x + pixel.y * 0.32F) * 0.42F);
        const float etched = std::pow(std::max(0.0F, 1 - std::abs(lines) * 1.62F), 4.0F);
        addOverlay(shadowColor, etched * textureOpacity * 0.18F);
    } else if (finish > 8.5F && finish < 9.5F) {
        addOverlay(highlightColor, std::abs(finishNoise - 0.5F) * textureOpacity * 0.14F);
    } else if (finish > 9.5F && finish < 10.5F) {
        const float wetBand = std::pow(std::max(0.0F, 1 - std::abs(ty - 0.26F) * 5), 2.4F);
        addOverlay(highlightColor, wetBand * highlight * 0.36F);
    }
}

void Shader::addEdges()
{
    if (ambientOcclusion > 0) {
        const float contact = std::pow(std::max(0.0F, 1 - edgeDistance * 8.8F), 2.0F);
        addOverlay(shadowColor, contact * ambientOcclusion * 0.16F);
    }
    if (edgeWear > 0) {
        const float rim = std::pow(std::max(0.0F, 1 - edgeDistance * 12), 2.35F);
        addOverlay(highlightColor, rim * edgeWear * specular * 0.10F);
    }
}

void Shader::addRelief()
{
    if (depth <= 0)
        return;
    const float lightAngle = c.material2.x;
    const float lightElevation = c.material2.y;
    const float lightX = std::cos(lightElevation) * std::cos(lightAngle);
    const float lightY = std::cos(lightElevation) * std::sin(lightAngle);
    const float lightZ = std::sin(lightElevation);
    const float hL = dome + hash21(pixel + Float2{-1, 0} + seed) * 0.08F + stripe * 0.08F;
    const float hR = dome + hash21(pixel + Float2{1, 0} + seed) * 0.08F + stripe * 0.08F;
    const float hU = dome + hash21(pixel + Float2{0, -1} + seed) * 0.08F + stripe * 0.08F;
    const float hD = dome + hash21(pixel + Float2{0, 1} + seed) * 0.08F + stripe * 0.08F;
    const float materialTexture = fbm(pixel / std::max(2.0F, scale) + seed * 0.021F) * textureOpacity * 0.22F;
    const Float3 slope{(hL - hR) * depth * (3.2F + materialTexture),
                       (hU - hD) * depth * (3.2F + materialTexture), 1};
    const float steepness = std::sqrt(slope.x * slope.x + slope.y * slope.y + 1);
    const float shade = (slope.x * lightX + slope.y * lightY + lightZ) / steepness - lightZ;
    if (shade > 0.006F)
        addOverlay(highlightColor, shade * highlight * (0.85F + depth * 1.35F) * (1.8F + specular));
    else if (shade < -0.006F)
        addOverlay(shadowColor,
                   -shade * reflection * (0.85F + depth * 1.35F) * (1.36F + ambientOcclusion * 0.92F));
}

ReferenceColor Shader::run()
{
    addMaterial();
    addFinish();
    addEdges();
    addRelief();
    alpha = saturate(alpha * strength * opacity);
    return {saturate(color.x * alpha), saturate(color.y * alpha), saturate(color.z * alpha), alpha};
}

} // namespace

ReferenceColor referenceMaterialAt(const MaterialConstants& constants, std::int32_t x, std::int32_t y)
{
    // Texture coordinates as rasterisers interpolate and round them.
    const float width = constants.geometry.x;
    const float height = constants.geometry.y;
    const float perArea = 1 / (4 * width * height);
    const float perColumn = 2 * (2 * height * perArea);
    const float perRow = 2 * (2 * width * perArea);
    const float u = (static_cast<float>(x) + 0.5F) * perColumn;
    const auto v = static_cast<float>((1 - (height - 0.5F) * perRow) + static_cast<double>(perRow) * y);
    return Shader(constants, {u, v}).run();
}

void renderReferenceMaterial(const MaterialConstants& constants, const LayerTarget& target)
{
    const auto level = [](float value) { return static_cast<unsigned>(value * 255 + 0.5F); };
    for (std::int32_t row = 0; row < target.view.size.height; ++row)
        for (std::int32_t column = 0; column < target.view.size.width; ++column) {
            const ReferenceColor color =
                referenceMaterialAt(constants, target.origin.x + column, target.origin.y + row);
            target.view.row(row)[column] =
                makePixel(level(color.red), level(color.green), level(color.blue), level(color.alpha));
        }
}

} // namespace vela
