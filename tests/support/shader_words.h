// The words of the shader language that the material shader uses, and the functions before its main one, in
// plain C++.
#pragma once

#include <algorithm>
#include <cmath>

namespace vela::shader {

struct Float2 {
    float x, y;
};

struct Float3 {
    float x, y, z;
};

inline Float2 operator+(Float2 a, Float2 b) { return {a.x + b.x, a.y + b.y}; }
inline Float2 operator-(Float2 a, Float2 b) { return {a.x - b.x, a.y - b.y}; }
inline Float2 operator*(Float2 a, Float2 b) { return {a.x * b.x, a.y * b.y}; }
inline Float2 operator+(Float2 a, float b) { return {a.x + b, a.y + b}; }
inline Float2 operator*(Float2 a, float b) { return {a.x * b, a.y * b}; }
inline Float2 operator/(Float2 a, float b) { return {a.x / b, a.y / b}; }

inline float frac(float value) { return value - std::floor(value); }
inline Float2 floor2(Float2 value) { return {std::floor(value.x), std::floor(value.y)}; }
inline Float2 frac2(Float2 value) { return {frac(value.x), frac(value.y)}; }
inline float saturate(float value) { return std::min(std::max(value, 0.0F), 1.0F); }
inline float step(float edge, float value) { return value >= edge ? 1.0F : 0.0F; }
inline float lerp(float a, float b, float t) { return a + t * (b - a); }
inline Float3 lerp(Float3 a, Float3 b, float t)
{
    return {lerp(a.x, b.x, t), lerp(a.y, b.y, t), lerp(a.z, b.z, t)};
}
inline float length(Float2 value) { return std::sqrt(value.x * value.x + value.y * value.y); }
inline float dot(Float2 a, Float2 b) { return a.x * b.x + a.y * b.y; }

inline float hash21(Float2 p)
{
    Float3 p3{frac(p.x * 0.1031F), frac(p.y * 0.1031F), frac(p.x * 0.1031F)};
    // x and z are equal, and so drivers factor this.
    const float sum = (p3.x + p3.y) * (p3.x + 33.33F) + p3.x * (p3.y + 33.33F);
    p3 = {p3.x + sum, p3.y + sum, p3.z + sum};
    return frac((p3.x + p3.y) * p3.z);
}

inline float smoothNoise(Float2 p)
{
    const Float2 i = floor2(p);
    const Float2 f = frac2(p);
    const float a = hash21(i);
    const float b = hash21(i + Float2{1, 0});
    const float c = hash21(i + Float2{0, 1});
    const float d = hash21(i + Float2{1, 1});
    const Float2 u{f.x * f.x * (3 - 2 * f.x), f.y * f.y * (3 - 2 * f.y)};
    return lerp(lerp(a, b, u.x), lerp(c, d, u.x), u.y);
}

inline float fbm(Float2 p)
{
    float value = 0;
    float amplitude = 0.55F;
    value += smoothNoise(p) * amplitude;
    p = p * 2.17F + Float2{13.1F, 7.7F};
    amplitude *= 0.48F;
    value += smoothNoise(p) * amplitude;
    p = p * 2.03F + Float2{5.9F, 17.3F};
    amplitude *= 0.46F;
    value += smoothNoise(p) * amplitude;
    return saturate(value);
}

inline float mirroredModulo(float value, float extent)
{
    const float period = std::max(1.0F, extent * 2);
    const float wrapped = value - std::floor(value / period) * period;
    return wrapped > extent ? period - wrapped : wrapped;
}

inline float gradientAxis(Float2 uv, float direction)
{
    if (direction < 0.5F)
        return uv.y;
    if (direction < 1.5F)
        return 1 - uv.y;
    if (direction < 2.5F)
        return uv.x;
    if (direction < 3.5F)
        return 1 - uv.x;
    if (direction < 4.5F)
        return (uv.x + uv.y) * 0.5F;
    if (direction < 5.5F)
        return 1 - (uv.x + uv.y) * 0.5F;
    if (direction < 6.5F)
        return (uv.x + (1 - uv.y)) * 0.5F;
    return 1 - (uv.x + (1 - uv.y)) * 0.5F;
}

} // namespace vela::shader
