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
    const auto extracted = effects.extractPackage(package);
    noteStep(effects, L"extract package", extracted ? kNoError : extracted.error().error, package);
    if (!extracted)
        message = packageSentence(extracted.error().fault, package);
    return static_cast<bool>(extracted);
}

vela::Outcome<std::unique_ptr<PackagePin>, std::wstring> preparePackage(SetupEffects& effects,
                                                                        const std::wstring& package)
{
    std::wstring message;
    if (!extractEmbeddedPackage(effects, package, message))
        return vela::Failure{std::move(message)};
    auto pinned = effects.pinPackage(package);
    if (!noteStep(effects, L"pin package", errorOf(pinned)))
        return vela::Failure{packageSentence(PackageFault::NotWritten, package)};
    std::unique_ptr<PackagePin> pin = std::move(pinned.value());
    return pin;
}

} // namespace setup
