#include "vela/toolkit_texts.h"

#include <cassert>

namespace vela {

namespace {

constexpr ToolkitTexts kNoWords;
const ToolkitTexts* given = nullptr;

} // namespace

void setToolkitTexts(const ToolkitTexts& texts) noexcept { given = &texts; }

const ToolkitTexts& toolkitTexts() noexcept
{
    assert(given);
    return given ? *given : kNoWords;
}

} // namespace vela
