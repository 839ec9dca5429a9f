#include "vela/controls/widgets/working_style.h"

#include "vela/render/pixels/length_limits.h"

#include <cstddef>

namespace vela {

void limitLengths(void* record, const FieldTable& table)
{
    for (const Field& field : table.fields) {
        std::byte* const place = static_cast<std::byte*>(record) + field.offset;
        if (field.kind == FieldKind::Length) {
            auto& length = *reinterpret_cast<std::int32_t*>(place);
            length = limitedLength(length);
        } else if ((field.kind == FieldKind::Record || field.kind == FieldKind::States) &&
                   !isShapedOnly(field)) {
            const FieldTable& inner = tableOf(field);
            const std::size_t count = field.kind == FieldKind::States ? kVisualStateCount : 1;
            for (std::size_t i = 0; i < count; ++i)
                limitLengths(place + i * inner.recordSize, inner);
        }
    }
}

} // namespace vela
