#include "vela/theme/fields/record_scale.h"

#include "vela/mul_div.h"

#include <algorithm>
#include <cstddef>

namespace vela {

namespace {

void scaleField(std::byte* record, const Field& field, std::int32_t dpi)
{
    std::byte* const place = record + field.offset;
    switch (field.kind) {
    case FieldKind::Length: {
        auto& length = *reinterpret_cast<std::int32_t*>(place);
        length = scaledLength(length, dpi);
        break;
    }
    case FieldKind::Record: scaleRecord(place, tableOf(field), dpi); break;
    case FieldKind::States:
        for (int state = 0; state < kVisualStateCount; ++state)
            scaleRecord(place + static_cast<std::size_t>(state) * tableOf(field).recordSize, tableOf(field),
                        dpi);
        break;
    case FieldKind::InsetSides: scaleRecord(place, Fields<Insets>::kTable, dpi); break;
    case FieldKind::Geometry: {
        auto& geometry = *reinterpret_cast<Boxed<SurfaceGeometry>*>(place);
        if (geometry)
            scaleRecord(&geometry.ensure(), tableOf(field), dpi);
        break;
    }
    default: break;
    }
}

} // namespace

std::int32_t designLength(std::int32_t scaled, std::int32_t dpi) noexcept
{
    return dpi <= 0 ? scaled : mulDiv(scaled, kDesignDpi, dpi);
}

std::int32_t scaledLength(std::int32_t designPixels, std::int32_t dpi) noexcept
{
    if (dpi <= 0 || dpi == kDesignDpi || designPixels == 0)
        return designPixels;
    const std::int32_t scaled = mulDiv(designPixels, dpi, kDesignDpi);
    return scaled != 0 ? scaled : (designPixels < 0 ? -1 : 1);
}

void scaleRecord(void* record, const FieldTable& table, std::int32_t dpi)
{
    if (dpi <= 0 || dpi == kDesignDpi)
        return;
    // A surface cuts margins out of its bitmap, whose pixels do not grow.
    if (&table == &Fields<SurfaceStyle>::kTable)
        static_cast<SurfaceStyle*>(record)->lengthsDpi = dpi;
    // Several rows may describe one member under different keys: each member is scaled once.
    for (const Field& field : table.fields) {
        const bool described = std::any_of(table.fields.data(), &field, [&field](const Field& earlier) {
            return earlier.offset == field.offset && earlier.kind == field.kind;
        });
        if (!described && !isShapedOnly(field))
            scaleField(static_cast<std::byte*>(record), field, dpi);
    }
}

} // namespace vela
