// What a finished run tells its user: title, body and look of the notice.
#pragma once

#include "app/cli/notice.h"
#include "app/run/action_result.h"

namespace setup {

struct ResultTexts {
    std::wstring_view successTitle;
    std::wstring_view failureTitle;
    std::wstring_view successText;
};

Notice resultNotice(const SetupActionResult& result, const ResultTexts& texts);

} // namespace setup
