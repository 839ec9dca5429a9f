#include "app/dialogs/window_title.h"
#include "app/effects/step_log.h"
#include "app/run/action_result.h"
#include "app/run/installer_command.h"
#include "app/run/paths.h"
#include "app/run/version_text.h"

#include <gtest/gtest.h>

namespace setup {
namespace {

struct Pair {
    std::wstring from;
    std::wstring to;
};

TEST(Paths, AnInstallFolderIsTrimmedAndEndsWithoutSeparators)
{
    const Pair rows[] = {
        {L"", L"C:\\Program Files\\Tamber"},
        {L" \t\r\n", L"C:\\Program Files\\Tamber"},
        {L" D:\\A b\\ ", L"D:\\A b"},
        {L"D:\\A\\/\\//", L"D:\\A"},
        {L"E:\\", L"E:\\"},
        {L"E:\\\\", L"E:\\"},
        {L"E:/", L"E:/"},
        {L"\\\\\\\\", L"\\\\\\"},
        {L"D:\\P\u0159\u00edli\u0161\\", L"D:\\P\u0159\u00edli\u0161"},
        {L"\v", L"\v"},
    };
    for (const Pair& row : rows) {
        EXPECT_EQ(normalizeInstallFolder(row.from), row.to);
        EXPECT_EQ(normalizeInstallFolder(row.to), row.to) << "applied again it changes nothing";
    }
}

TEST(Paths, AreJoinedAndTakenApart)
{
    EXPECT_EQ(joinPath(L"C:\\a", L"b"), L"C:\\a\\b");
    EXPECT_EQ(joinPath(L"C:\\", L"b"), L"C:\\b");
    EXPECT_EQ(joinPath(L"C:/a/", L"b"), L"C:/a/b");
    EXPECT_EQ(joinPath(L"", L"b"), L"b");

    const Pair parents[] = {
        {L"C:\\a\\b.exe", L"C:\\a"}, {L"C:\\b.exe", L"C:\\"},           {L"C:\\", L""},
        {L"C:/a/b", L"C:/a"},        {L"\\\\?\\C:\\a", L"\\\\?\\C:\\"}, {L"name", L""},
    };
    for (const Pair& row : parents)
        EXPECT_EQ(parentFolder(row.from), row.to);

    EXPECT_EQ(extendedPath(L"C:\\a"), L"\\\\?\\C:\\a");
    EXPECT_EQ(extendedPath(L"\\\\server\\share\\a"), L"\\\\?\\UNC\\server\\share\\a");
    EXPECT_EQ(extendedPath(L"\\\\?\\C:\\a"), L"\\\\?\\C:\\a");
}

TEST(Paths, APickedFolderGetsTheProductsOwnFolderInIt)
{
    const Pair rows[] = {
        {L"D:\\Apps", L"D:\\Apps\\Tamber"},
        {L"D:\\Apps\\", L"D:\\Apps\\Tamber"},
        {L"D:\\Apps\\tamBER", L"D:\\Apps\\tamBER"},
        {L"D:\\Tamber\\", L"D:\\Tamber"},
        {L"D:\\Tamber old", L"D:\\Tamber old\\Tamber"},
        {L"E:\\", L"E:\\Tamber"},
        {L"\\\\server\\share", L"\\\\server\\share\\Tamber"},
    };
    for (const Pair& row : rows)
        EXPECT_EQ(pickedInstallFolder(row.from), row.to);
}

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

TEST(ResultText, NamesWhatIsKnownLineByLine)
{
    SetupActionResult result;
    result.phase = L"uninstall";
    EXPECT_EQ(composeResultText(result, L"done"), L"Akce selhala ve fazi: uninstall\n");
    result.exitCode = 4294967295U;
    result.message = L"Veta.";
    result.logPath = L"C:\\l.log";
    EXPECT_EQ(composeResultText(result, L"done"), L"Akce selhala ve fazi: uninstall\n"
                                                  L"Windows Installer exit code: 4294967295\n"
                                                  L"Veta.\n"
                                                  L"\nLog: C:\\l.log");
    result.success = true;
    EXPECT_EQ(composeResultText(result, L"done"), L"done");
}

TEST(WindowTitle, NamesTheVersion)
{
    const Pair rows[] = {
        {L"", L"Tamber - v" TAMBER_VERSION L" Setup"},
        {L"Tamber Setup", L"Tamber - v" TAMBER_VERSION L" Setup"},
        {L"Tamber - v" TAMBER_VERSION L" Setup", L"Tamber - v" TAMBER_VERSION L" Setup"},
        {L"Nainstalovano", L"Nainstalovano - Tamber - v" TAMBER_VERSION},
        {L"tamber setup", L"tamber setup - Tamber - v" TAMBER_VERSION},
    };
    for (const Pair& row : rows)
        EXPECT_EQ(setupTitle(row.from), row.to);
}

TEST(VersionText, IgnoresZerosFromTheFourthPartOn)
{
    EXPECT_EQ(versionText({0, 1, 492, 65535}), L"0.1.492.65535");
    const Pair rows[] = {
        {L"0.1.492.0", L"0.1.492"},     {L" 0,1,492,0\n", L"0.1.492"},
        {L"0.1.492.0.0", L"0.1.492"},   {L"0.1.492", L"0.1.492"},
        {L"0.1.0", L"0.1.0"},           {L"0.1.0.0", L"0.1.0"},
        {L"0.1.492.10", L"0.1.492.10"}, {L"", L""},
        {L"0.1.492.5", L"0.1.492.5"},
    };
    for (const Pair& row : rows)
        EXPECT_EQ(normalizeVersion(row.from), row.to);
}

TEST(StepLog, WritesErrorsAsWindowsDocumentsThem)
{
    EXPECT_EQ(stepLine(L"copy", 0, L""), L"copy: ok");
    EXPECT_EQ(stepLine(L"copy", 5, L"x"), L"copy: failed, error 5 (x)");
    EXPECT_EQ(stepLine(L"link", 0x8007000E, L""), L"link: failed, error 0x8007000E");
}

} // namespace
} // namespace setup
