#include "app/setup_actions.h"

#include <algorithm>

namespace setup {

const ActionTexts* textsOf(SetupAction action) noexcept
{
    const auto* const row = std::find_if(std::begin(kActionTexts), std::end(kActionTexts),
                                         [action](const ActionTexts& each) { return each.action == action; });
    return row == std::end(kActionTexts) ? nullptr : row;
}

} // namespace setup
