#include "app/cli/result_notice.h"

namespace setup {

Notice resultNotice(const SetupActionResult& result, const ResultTexts& texts)
{
    return {result.success ? texts.successTitle : texts.failureTitle,
            composeResultText(result, texts.successText), !result.success};
}

} // namespace setup
