#include "app/dialogs/window_title.h"

#include <gtest/gtest.h>

namespace setup {
namespace {

struct Pair {
    std::wstring from;
    std::wstring to;
};

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

} // namespace
} // namespace setup
