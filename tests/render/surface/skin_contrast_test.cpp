// The contrast rules once more, on the pixels that the default skins really show under their texts.
#include "tests/support/default_skins.h"
#include "tests/support/rendered_tones.h"
#include "tests/support/skin_text.h"
#include "vela/theme/checks/contrast_checks.h"
#include "vela/theme/skins/style_sections.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

TEST(SkinContrast, HoldsOnRenderedPixelsInEveryDefaultSkin)
{
    const ToneFinders rendered{testing::renderedContainerTones, testing::renderedFaceTones};
    for (const SkinDefinition& skin : defaultSkins()) {
        SCOPED_TRACE(narrowed(skin.id));
        for (const ContrastCheck& check : contrastChecks(buildStyleSheet(skin), rendered)) {
            EXPECT_GE(check.reached, check.required) << "kind " << static_cast<int>(check.kind) << ", "
                                                     << narrowed(check.variant) << ": " << check.part;
        }
    }
}

} // namespace
} // namespace vela
