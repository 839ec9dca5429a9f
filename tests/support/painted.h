// What a control paints, as the recorder notes it. Only natively: on Windows the product's own renderer
// paints.
#pragma once

#include "vela/controls/tree/control.h"
#include "vela/render/paint/paint_recorder.h"

#include <vector>

namespace vela::testing {

// All that it paints now, or the calls of one kind.
inline std::vector<PaintCall> paintedBy(Control& control)
{
    const PaintRecorder recorder;
    control.paint(nullptr, {});
    return recorder.calls();
}

template <typename Call>
std::vector<Call> paintedBy(Control& control)
{
    const PaintRecorder recorder;
    control.paint(nullptr, {});
    return recorder.all<Call>();
}

} // namespace vela::testing
