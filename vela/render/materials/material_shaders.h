// The texts of the material shaders as they lie beside this file, put into the program byte for byte when it
// is built. Both have the entry point "main".
#pragma once

#include <string_view>

namespace vela {

std::string_view materialVertexShader() noexcept;
std::string_view materialPixelShader() noexcept;

} // namespace vela
