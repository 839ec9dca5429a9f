// What the setup asks of the shell.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace setup {

struct ShellLink {
    std::wstring link; // full path of the .lnk file
    std::wstring target;
    std::wstring_view arguments;
    std::wstring workingFolder;
    std::wstring_view description;
};

class ShellEffects {
public:
    ShellEffects() = default;
    ShellEffects(const ShellEffects&) = delete;
    ShellEffects& operator=(const ShellEffects&) = delete;

    virtual std::int32_t createShellLink(const ShellLink& link) = 0; // an HRESULT
    virtual void notifyShellChanged() = 0;

protected:
    ~ShellEffects() = default; // borrowed by whoever uses it, never owned
};

} // namespace setup
