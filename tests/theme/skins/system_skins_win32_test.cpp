#include "vela/theme/skins/system_skins.h"

#include "vela/resource_folders.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string_view>

namespace vela {
namespace {

TEST(SystemSkins, FillTheCatalogueOfTheProcessOnce)
{
    const std::filesystem::path folder = resourceFolders().skins.front();
    std::filesystem::create_directories(folder);
    const auto write = [&folder](std::string_view bytes) {
        std::ofstream(folder / L"a.json", std::ios::binary) << bytes;
    };
    write(R"({"id": "kept", "name": "first"})");
    EXPECT_EQ(skinCatalog().find(L"kept").name, L"first");
    write(R"({"id": "kept", "name": "changed"})");
    EXPECT_EQ(skinCatalog().find(L"kept").name, L"first");
    std::filesystem::remove_all(folder);
}

} // namespace
} // namespace vela
