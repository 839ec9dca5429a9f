#include "app/run/installer_command.h"

#include <algorithm>
#include <iterator>

namespace setup {
namespace {

struct ExitSentence {
    std::uint32_t code;
    std::wstring_view sentence;
};

constexpr ExitSentence kExitSentences[] = {
    {0, L""},
    {1602, L"Instalace byla zrusena uzivatelem nebo UAC dialogem."},
    {1603, L"Windows Installer nahlasil obecne selhani. Nejcasto jde o zamceny soubor nebo blokaci "
           L"bezpecnostnim softwarem."},
    {1618, L"Windows Installer prave obsluhuje jinou instalaci. Pockej a spust setup znovu."},
    {1619, L"Windows Installer nedokazal otevrit MSI balicek. Zkontroluj antivirus a stahni setup znovu."},
    {1620, L"MSI balicek je poskozeny nebo neplatny. Stahni setup znovu."},
    {1638, L"Ve Windows uz je novejsi verze produktu."},
};

constexpr std::wstring_view kOtherExitSentence =
    L"Zkontroluj MSI log uvedeny nize. Je to standardni Windows Installer log.";

} // namespace

std::wstring quoteArgument(std::wstring_view text)
{
    std::wstring quoted = L"\"";
    for (const wchar_t c : text) {
        if (c == L'"')
            quoted += L'\\';
        quoted += c;
    }
    return quoted += L'"';
}

std::wstring installParameters(std::wstring_view package, std::wstring_view installFolder,
                               std::wstring_view log)
{
    return L"/i " + quoteArgument(package) + L" /qn /norestart INSTALLFOLDER=" +
           quoteArgument(installFolder) + L" /L*v " + quoteArgument(log);
}

std::wstring uninstallParameters(std::wstring_view productCode, std::wstring_view log)
{
    return L"/x " + quoteArgument(productCode) + L" /qn /norestart /L*v " + quoteArgument(log);
}

std::wstring_view describeInstallerExitCode(std::uint32_t code) noexcept
{
    const auto row = std::find_if(std::begin(kExitSentences), std::end(kExitSentences),
                                  [code](const ExitSentence& entry) { return entry.code == code; });
    return row != std::end(kExitSentences) ? row->sentence : kOtherExitSentence;
}

} // namespace setup
