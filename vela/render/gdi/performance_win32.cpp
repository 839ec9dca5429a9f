#include "vela/render/gdi/performance_win32.h"

#include <windows.h>

namespace vela {
namespace {

bool areAnimationsOff() noexcept
{
    BOOL on = TRUE;
    return ::SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &on, 0) && !on;
}

bool isSavingBattery() noexcept
{
    SYSTEM_POWER_STATUS power{};
    // The byte was reserved before Windows 10, so the toolchain's headers may not name it.
    constexpr BYTE kBatterySaverOn = 1;
    static_assert(sizeof power == 12);
    return ::GetSystemPowerStatus(&power) && reinterpret_cast<const BYTE*>(&power)[3] == kBatterySaverOn;
}

} // namespace

PerformanceProfile performanceProfile() noexcept
{
    const bool reduced = ::GetSystemMetrics(SM_REMOTESESSION) || areAnimationsOff() || isSavingBattery();
    return reduced ? PerformanceProfile::Reduced : PerformanceProfile::Full;
}

} // namespace vela
