#include "app/run/installer_command.h"

#include <gtest/gtest.h>

namespace setup {
namespace {

TEST(InstallerCommand, QuotesEveryArgumentAndEscapesQuotes)
{
    EXPECT_EQ(quoteArgument(L""), L"\"\"");
    EXPECT_EQ(quoteArgument(L"C:\\plain"), L"\"C:\\plain\"");
    EXPECT_EQ(quoteArgument(L"a \"b\" c"), L"\"a \\\"b\\\" c\"");
    EXPECT_EQ(installParameters(L"p.msi", L"E:\\", L"l.log"),
              L"/i \"p.msi\" /qn /norestart INSTALLFOLDER=\"E:\\\" /L*v \"l.log\"");
}

TEST(InstallerCommand, EveryExitCodeHasASentence)
{
    const struct {
        std::uint32_t code;
        std::wstring_view sentence;
    } rows[] = {
        {0, L""},
        {1602, L"Instalace byla zrusena uzivatelem nebo UAC dialogem."},
        {1603, L"Windows Installer nahlasil obecne selhani. Nejcasto jde o zamceny soubor nebo blokaci "
               L"bezpecnostnim softwarem."},
        {1618, L"Windows Installer prave obsluhuje jinou instalaci. Pockej a spust setup znovu."},
        {1619,
         L"Windows Installer nedokazal otevrit MSI balicek. Zkontroluj antivirus a stahni setup znovu."},
        {1620, L"MSI balicek je poskozeny nebo neplatny. Stahni setup znovu."},
        {1638, L"Ve Windows uz je novejsi verze produktu."},
        {2, L"Zkontroluj MSI log uvedeny nize. Je to standardni Windows Installer log."},
        {3010, L"Zkontroluj MSI log uvedeny nize. Je to standardni Windows Installer log."},
    };
    for (const auto& row : rows)
        EXPECT_EQ(describeInstallerExitCode(row.code), row.sentence) << row.code;
}

} // namespace
} // namespace setup
