// The shell: links, the notification after a change.
#include "app/windows/setup_effects_win32.h"

#include "app/run/paths.h"

#include "vela/com_apartment_win32.h"
#include "vela/com_pointer_win32.h"

#include <objbase.h>
#include <shlobj.h>

namespace setup {
namespace {

HRESULT describeLink(IShellLinkW& shellLink, const ShellLink& link)
{
    const std::wstring arguments(link.arguments);
    const std::wstring description(link.description);
    HRESULT result = shellLink.SetPath(link.target.c_str());
    if (SUCCEEDED(result))
        result = shellLink.SetArguments(arguments.c_str());
    if (SUCCEEDED(result))
        result = shellLink.SetWorkingDirectory(link.workingFolder.c_str());
    if (SUCCEEDED(result))
        result = shellLink.SetDescription(description.c_str());
    if (SUCCEEDED(result))
        result = shellLink.SetIconLocation(link.target.c_str(), 0);
    return result;
}

HRESULT writeLink(const ShellLink& link)
{
    vela::ComPointer<IShellLinkW> shellLink;
    HRESULT result = ::CoCreateInstance(__uuidof(::ShellLink), nullptr, CLSCTX_INPROC_SERVER,
                                        __uuidof(IShellLinkW), shellLink.putVoid());
    if (SUCCEEDED(result))
        result = describeLink(*shellLink.get(), link);
    vela::ComPointer<IPersistFile> file;
    if (SUCCEEDED(result))
        result = shellLink.queryTo(file);
    if (SUCCEEDED(result))
        result = file->Save(link.link.c_str(), TRUE);
    return result;
}

} // namespace

std::int32_t WindowsEffects::createShellLink(const ShellLink& link)
{
    const vela::ComApartment apartment;
    if (FAILED(apartment.result()))
        return static_cast<std::int32_t>(apartment.result());
    createFolders(parentFolder(link.link)); // without it, saving the link fails and says why
    return static_cast<std::int32_t>(writeLink(link));
}

void WindowsEffects::notifyShellChanged()
{
    ::SHChangeNotify(SHCNE_ASSOCCHANGED, SHCNF_IDLIST, nullptr, nullptr);
}

} // namespace setup
