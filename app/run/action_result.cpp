#include "app/run/action_result.h"

#include "vela/text.h"

namespace setup {

std::wstring composeResultText(const SetupActionResult& result, std::wstring_view successText)
{
    if (result.success)
        return std::wstring(successText);
    std::wstring text = L"Akce selhala ve fazi: " + result.phase + L"\n";
    if (result.exitCode != 0)
        text += L"Windows Installer exit code: " + vela::decimalText(result.exitCode) + L"\n";
    if (!result.message.empty())
        text += result.message + L"\n";
    if (!result.logPath.empty())
        text += L"\nLog: " + result.logPath;
    return text;
}

SetupActionResult unexpectedFailure()
{
    SetupActionResult result;
    result.phase = L"setup";
    result.message = L"Setup narazil na neocekavanou chybu. Zkus ho prosim spustit znovu.";
    return result;
}

} // namespace setup
