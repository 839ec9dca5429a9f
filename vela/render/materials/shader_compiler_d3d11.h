// The compiler of shader texts that Windows brings along, looked for once in the life of the process.
#pragma once

#include "vela/com_pointer_win32.h"

#include <cstddef>
#include <string_view>

#include <d3dcommon.h>

namespace vela {

// Byte code of the text's function "main" for a profile such as "ps_4_0"; empty where there is no compiler or
// it refuses the text. UI thread only.
ComPointer<ID3DBlob> compileShader(std::string_view text, const char* profile);

// For tests: how many texts there were since the start.
std::size_t shadersCompiled() noexcept;

} // namespace vela
