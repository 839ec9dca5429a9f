#include "app/run/embedded_package.h"

namespace setup {
namespace {

struct PackageSentence {
    PackageFault fault;
    std::wstring_view text;
    bool namesFile; // followed by the path of the package file
};

constexpr PackageSentence kPackageSentences[] = {
    {PackageFault::Absent, L"Setup nema vlozeny MSI balicek. Stahni setup znovu.", false},
    {PackageFault::Unreadable, L"Vlozeny MSI balicek nejde nacist. Stahni setup znovu.", false},
    {PackageFault::NotCreated, L"Setup nedokazal vytvorit docasny MSI soubor: ", true},
    {PackageFault::NotWritten, L"Setup nedokazal zapsat cely docasny MSI soubor: ", true},
};

std::wstring packageSentence(PackageFault fault, const std::wstring& package)
{
    for (const PackageSentence& row : kPackageSentences) {
        if (row.fault == fault)
            return std::wstring(row.text).append(row.namesFile ? package : std::wstring());
    }
    return {};
}

} // namespace

bool extractEmbeddedPackage(SetupEffects& effects, const std::wstring& package, std::wstring& message)
{
    const PackageOutcome extracted = effects.extractPackage(package);
    if (noteStep(effects, L"extract package", extracted.error, package))
        return true;
    message = packageSentence(extracted.fault, package);
    return false;
}

std::unique_ptr<PackagePin> preparePackage(SetupEffects& effects, const std::wstring& package,
                                           std::wstring& message)
{
    if (!extractEmbeddedPackage(effects, package, message))
        return nullptr;
    PinOutcome pinned = effects.pinPackage(package);
    if (!noteStep(effects, L"pin package", pinned.error))
        message = packageSentence(PackageFault::NotWritten, package);
    return std::move(pinned.pin);
}

} // namespace setup
