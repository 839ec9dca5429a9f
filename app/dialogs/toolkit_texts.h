// What the toolkit says by itself in the setup's windows.
#pragma once

#include "vela/toolkit_texts.h"

namespace setup {

inline constexpr vela::ToolkitTexts kToolkitTexts{
    .locale = L"cs-cz",
    .close = L"Zavrit",
    .minimize = L"Minimalizovat",
    .maximize = L"Maximalizovat",
    .restore = L"Obnovit",
    .resetSize = L"Puvodni velikost",
    .undo = L"Zpet",
    .cut = L"Vyjmout",
    .copy = L"Kopirovat",
    .paste = L"Vlozit",
    .erase = L"Odstranit",
    .selectAll = L"Vybrat vse",
};

} // namespace setup
