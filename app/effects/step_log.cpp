#include "app/effects/step_log.h"

#include "vela/text.h"

namespace setup {
namespace {

std::wstring errorText(WindowsError error)
{
    constexpr WindowsError kFailureBit = 0x80000000;
    if ((error & kFailureBit) == 0)
        return vela::decimalText(error);
    std::wstring text = L"0x";
    for (int shift = 28; shift >= 0; shift -= 4)
        text += L"0123456789ABCDEF"[error >> shift & 0xF];
    return text;
}

} // namespace

std::wstring stepLine(std::wstring_view step, WindowsError error, std::wstring_view about)
{
    std::wstring line(step);
    line += error == kNoError ? L": ok" : L": failed, error " + errorText(error);
    if (!about.empty())
        line.append(L" (").append(about).append(L")");
    return line;
}

bool noteStep(StepLog& log, std::wstring_view step, WindowsError error, std::wstring_view about)
{
    log.writeLogLine(stepLine(step, error, about));
    return error == kNoError;
}

} // namespace setup
