#include "app/run/temp_file.h"

#include "app/run/paths.h"

#include "vela/text.h"

namespace setup {

std::wstring tempSetupFile(SetupEffects& effects, std::wstring_view name)
{
    const std::wstring fileName = std::wstring(L"TamberSetup-")
                                      .append(vela::decimalText(effects.ownProcessId()))
                                      .append(L"-")
                                      .append(name);
    return joinPath(effects.tempFolder(), fileName);
}

} // namespace setup
