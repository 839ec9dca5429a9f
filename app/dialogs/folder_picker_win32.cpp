#include "app/dialogs/folder_picker.h"

#include "app/run/paths.h"

#include "vela/com_apartment_win32.h"
#include "vela/com_pointer_win32.h"

#include <shobjidl.h>

namespace setup {
namespace {

using vela::ComPointer;

// The folder, or the nearest one above it that is there: a folder to install into often is not there yet.
ComPointer<IShellItem> nearestFolder(std::wstring path)
{
    ComPointer<IShellItem> item;
    while (!path.empty() &&
           FAILED(::SHCreateItemFromParsingName(path.c_str(), nullptr, __uuidof(IShellItem), item.putVoid())))
        path = parentFolder(path);
    return item;
}

std::optional<std::wstring> filePath(IShellItem& item)
{
    vela::OwnedTaskText path;
    if (FAILED(item.GetDisplayName(SIGDN_FILESYSPATH, path.put())) || !path)
        return std::nullopt;
    return path.get();
}

HRESULT prepare(IFileOpenDialog& dialog, const std::wstring& current)
{
    FILEOPENDIALOGOPTIONS options = 0;
    HRESULT result = dialog.GetOptions(&options);
    if (SUCCEEDED(result))
        result = dialog.SetOptions(options | FOS_PICKFOLDERS | FOS_FORCEFILESYSTEM);
    if (SUCCEEDED(result))
        result = dialog.SetTitle(L"Vyber instalacni slozku Tambere");
    // Without one the dialog opens where it last was.
    const ComPointer<IShellItem> folder = nearestFolder(current);
    if (SUCCEEDED(result) && folder)
        dialog.SetFolder(folder.get());
    return result;
}

} // namespace

std::optional<std::wstring> pickInstallFolder(HWND owner, const std::wstring& current)
{
    const vela::ComApartment apartment;
    ComPointer<IFileOpenDialog> dialog;
    HRESULT result = apartment.result();
    if (SUCCEEDED(result))
        result = ::CoCreateInstance(__uuidof(FileOpenDialog), nullptr, CLSCTX_INPROC_SERVER,
                                    __uuidof(IFileOpenDialog), dialog.putVoid());
    if (SUCCEEDED(result))
        result = prepare(*dialog.get(), current);
    if (SUCCEEDED(result))
        result = dialog->Show(owner);
    ComPointer<IShellItem> chosen;
    if (SUCCEEDED(result))
        result = dialog->GetResult(chosen.put());
    const std::optional<std::wstring> folder = SUCCEEDED(result) ? filePath(*chosen.get()) : std::nullopt;
    return folder ? std::optional(pickedInstallFolder(*folder)) : std::nullopt;
}

} // namespace setup
