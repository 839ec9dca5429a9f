// Pictures that a test paints, compared by value with pictures kept in the repository.
#pragma once

#include "vela/render/pixels/pixel_buffer.h"

#include <gtest/gtest.h>

#include <string>

namespace vela::testing {

// Success when no channel of any pixel differs by more than the tolerance from tests/render/golden/NAME.png.
// A failure leaves the picture and a difference picture beside the test program. With TAMBER_UPDATE_GOLDEN
// set in the environment the picture is kept as the new golden one instead.
::testing::AssertionResult matchesGolden(const std::wstring& name, const PixelView& picture, int tolerance);

} // namespace vela::testing
