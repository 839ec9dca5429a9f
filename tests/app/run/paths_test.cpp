#include "app/run/paths.h"

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
    // But for a blank that stood before the last separator.
    EXPECT_EQ(normalizeInstallFolder(L"D:\\A \\"), L"D:\\A ");
    EXPECT_EQ(normalizeInstallFolder(L"D:\\A "), L"D:\\A");
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

} // namespace
} // namespace setup
