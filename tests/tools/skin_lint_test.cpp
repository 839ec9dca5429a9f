#include "tools/skin_lint/accepted.h"
#include "tools/skin_lint/document_lint.h"
#include "vela/theme/document/utf8.h"

#include <gtest/gtest.h>

namespace vela::lint {
namespace {

std::vector<Finding> findingsIn(std::string_view document)
{
    std::vector<KnownId> known;
    return lintDocument(decodeUtf8(document), "test.json", known);
}

std::string skinWith(std::string_view members)
{
    return R"({"skins": [{"id": "a", )" + std::string(members) + "}]}";
}

TEST(SkinLint, PassesWhatTheReadersTake)
{
    const char* const rows[] = {
        R"("theme": {"accent_hot": "#E2AA58", "accent": "196,148,82", "uiWeight": 600, "mono_weight": "bold"})",
        R"("materials": {"surface": "lapis_lazuli", "control": "layered-glass", "strength": "150", "ao": 40})",
        R"("surfaceMode": "Windows Clean", "tags": ["calm"], "$schema": "skin.schema.json")",
        R"("shapes": {"panel": "beveled", "button": {"primary": "hexagon"}, "scrollbar": {"track": "gem"}})",
        R"("styles": {"check_box": {"box_size": 20, "default": {"boxCheckedHot": {"opacity": 255}}}})",
        R"("styles": {"button": {"primary": {"hot": {"text": {"weight": 700}}, "surfaceHot": {"uvScale": 9}}}})",
        R"("styles": {"panel": {"default": {"surface": {"image": {"path": "a.png", "tint": {"role": "accent"}},
            "geometry": {"safeInsets": "1,2,3,4", "hitInsets": {"left": 2}}}}}})",
        R"("styleVariants": {"button": {"hero": {"inherits": "primary", "shape": "pill"}}})",
        R"("styles": {"popup": {"default": {"closeButton": {"inherits": "button.quiet"}}}})",
        R"("styles": {"card": {"default": {"surface": null}}})",
    };
    for (const char* row : rows) {
        for (const Finding& finding : findingsIn(skinWith(row)))
            ADD_FAILURE() << row << "\n" << finding.path << ": " << finding.message;
    }
}

TEST(SkinLint, SaysWhatIsWrongWhereAndWhatWasMeant)
{
    const struct {
        const char* members;
        const char* path;
        const char* message;
    } rows[] = {
        {R"("theme": {"acent": "#FFFFFF"})", "skins[0].theme.acent", "did you mean \"accent\"?"},
        {R"("theme": {"accent": "#FFF"})", "skins[0].theme.accent", "is not a colour"},
        {R"("descripton": "x")", "skins[0].descripton", "did you mean \"description\"?"},
        {R"("name": 5)", "skins[0].name", "a text is expected"},
        {R"("tags": "dark")", "skins[0].tags", "array of texts"},
        {R"("surface_mode": "sculptd")", "skins[0].surface_mode", "did you mean \"sculpted\"?"},
        {R"("materials": {"surface": "emerld"})", "skins[0].materials.surface", "did you mean \"emerald\"?"},
        {R"("materials": {"strength": 300})", "skins[0].materials.strength", "is read as 255"},
        {R"("shapes": {"button": {"primary": "hexagn"}})", "skins[0].shapes.button.primary",
         "did you mean \"hexagon\"?"},
        {R"("shapes": {"buton": "pill"})", "skins[0].shapes.buton", "did you mean \"button\"?"},
        {R"("styles": {"button": {"primry": {}}})", "skins[0].styles.button.primry",
         "did you mean \"primary\"?"},
        {R"("styles": {"button": {"primary": {"hto": {}}}})", "skins[0].styles.button.primary.hto",
         "did you mean \"hot\"?"},
        {R"("styles": {"panel": {"default": {"surface": "#123456"}}})",
         "skins[0].styles.panel.default.surface", "an object is expected"},
        {R"("styles": {"panel": {"padding": "12px"}})", "skins[0].styles.panel.padding",
         "only the whole number"},
        {R"("styles": {"panel": {"default": {"surface": {"image": {"tint": {"role": "acent"}}}}}})",
         "skins[0].styles.panel.default.surface.image.tint.role", "did you mean \"accent\"?"},
        {R"("styles": {"panel": {"default": {"surface": {"useNoise": "maybe"}}}})",
         "skins[0].styles.panel.default.surface.useNoise", "true or false"},
        {R"("styleVariants": {"button": {"hero": {"inherits": 5}}})",
         "skins[0].styleVariants.button.hero.inherits", "name of a style"},
        {R"("styles": {"button": {"primary": {"base": "panl.glass"}}})",
         "skins[0].styles.button.primary.base", "no style"},
        {R"("styles": {"button": {"inherits": "buton"}})", "skins[0].styles.button.inherits", "no style"},
    };
    for (const auto& row : rows) {
        const std::vector<Finding> findings = findingsIn(skinWith(row.members));
        ASSERT_EQ(findings.size(), 1U) << row.members;
        EXPECT_EQ(findings[0].path, row.path);
        EXPECT_NE(findings[0].message.find(row.message), std::string::npos) << findings[0].message;
    }
}

TEST(SkinLint, PointsAtLineAndColumn)
{
    const FileReport report{"s.json", L"{\"skins\": [\n  {\"id\": \"a\",\n   \"thme\": {}}]}", {}};
    std::vector<KnownId> known;
    const std::vector<Finding> findings = lintDocument(report.text, report.file, known);
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(asText({report.file, report.text, findings}),
              "s.json:3:4: error: unknown key \"thme\"; did you mean \"theme\"? [skins[0].thme]\n");

    const std::vector<Finding> broken = findingsIn("{\"skins\": [\n 1,]}");
    ASSERT_EQ(broken.size(), 1U);
    EXPECT_EQ(positionAt(L"{\"skins\": [\n 1,]}", broken[0].offset).line, 2U);
    EXPECT_EQ(broken[0].message.rfind("not JSON: ", 0), 0U);
}

TEST(SkinLint, CountsIdsOverAllDocuments)
{
    std::vector<KnownId> known;
    EXPECT_TRUE(lintDocument(L"{\"id\": \"Classic\"}", "one.json", known).empty());
    const std::vector<Finding> again = lintDocument(L"[{\"id\": \"classic\"}, {}]", "two.json", known);
    ASSERT_EQ(again.size(), 2U);
    EXPECT_NE(again[0].message.find("one.json"), std::string::npos);
    EXPECT_EQ(again[1].severity, Severity::Warning); // a skin without an id
}

TEST(SkinLint, JudgesTheContrastOfTheFinishedSkin)
{
    const std::vector<Finding> findings = findingsIn(skinWith(
        R"("styles": {"text_input": {"default": {"text": {"color": "#777777"}, "surface": {"fill": "#808080",
            "gradientStart": "#808080", "gradientEnd": "#808080"}}}})"));
    ASSERT_FALSE(findings.empty());
    for (const Finding& finding : findings) {
        EXPECT_NE(finding.message.find("the contrast of textinput.default"), std::string::npos)
            << finding.message;
        EXPECT_EQ(finding.severity, Severity::Warning); // it is read all the same
    }
}

TEST(SkinLint, SuggestsOnlyWhatIsNear)
{
    EXPECT_EQ(nearest("shadow_opacty", {"shadowOpacity", "glowOpacity"}), "shadowOpacity");
    EXPECT_EQ(nearest("banana", {"shadowOpacity", "glowOpacity"}), "");
    EXPECT_EQ(toUtf8(L"P\u0159\u00ed\xD83D\xDE00"), "P\xC5\x99\xC3\xAD\xF0\x9F\x98\x80");
}

} // namespace
} // namespace vela::lint
