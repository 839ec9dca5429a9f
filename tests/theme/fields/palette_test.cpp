#include "vela/theme/fields/palette.h"

#include "tests/support/skin_text.h"
#include "vela/theme/records/spellings.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

TEST(Palette, EveryRoleNamesItsOwnColourOfTheTheme)
{
    Theme theme;
    Color* const colors[] = {&theme.frame,     &theme.shell,        &theme.panel,          &theme.header,
                             &theme.control,   &theme.controlHot,   &theme.controlPressed, &theme.border,
                             &theme.accent,    &theme.accentHot,    &theme.text,           &theme.textHot,
                             &theme.mutedText, &theme.disabledText, &theme.disabledFill};
    for (std::size_t i = 0; i < std::size(colors); ++i)
        *colors[i] = static_cast<Color>(i + 1);
    for (std::size_t i = 0; i < std::size(colors); ++i) {
        const std::wstring name = widened(kPaletteRoleWords.rows[i].words);
        EXPECT_EQ(paletteColor(theme, name, 99), static_cast<Color>(i + 1)) << narrowed(name);
    }
    EXPECT_EQ(paletteColor(theme, L"Control_Hot", 99), theme.controlHot);
    EXPECT_EQ(paletteColor(theme, L"disabled-fill", 99), theme.disabledFill);
    EXPECT_EQ(paletteColor(theme, L"nonsense", 99), 99U);
    EXPECT_EQ(resolvedColor(theme, {7, PaletteRole::Accent}), theme.accent);
    EXPECT_EQ(resolvedColor(theme, {7, {}}), 7U);
}

} // namespace
} // namespace vela
