#include "vela/theme/fields/field_reader.h"

#include "tests/support/skin_text.h"
#include "vela/theme/records/named_materials.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

template <typename Record>
Record readOver(Record record, std::string_view json)
{
    readRecord(SkinView(skinMapOf(json)), record);
    return record;
}

SurfaceStyle surfaceFrom(std::string_view json) { return readOver(SurfaceStyle{}, json); }

TEST(FieldReader, KeepsWhatIsAbsentOrUnreadable)
{
    SurfaceStyle seeded;
    seeded.opacity = 77;
    seeded.fill = 5;
    EXPECT_EQ(readOver(seeded, "{'opacity': 'abc', 'fill': '#fff', 'drawBorder': 'maybe', 'shape': 'blob',"
                               " 'noiseSeed': 'x', 'material': 'unobtainium', 'unknown': 3, 'shadow': null}"),
              seeded);
    EXPECT_EQ(readOver(seeded, "{'opacity': 300}").opacity, 255);
    EXPECT_EQ(readOver(seeded, "{'opacity': '-1'}").opacity, 0);
    EXPECT_EQ(readOver(seeded, "{'glowRadius': 1e300}").glowRadius, 2147483647);
    EXPECT_EQ(readOver(seeded, "{'noiseSeed': 4294967295}").noiseSeed, 4294967295U);
}

TEST(FieldReader, ReadsUnderAPrefixOnly)
{
    const SkinMap map = skinMapOf("{'styles': {'button': {'primary': {'hot': {'fill': '#FF0000'}}}}}");
    SurfaceStyle surface;
    readRecord(map, L"styles.button.primary.hot", surface);
    EXPECT_EQ(surface.fill, rgb(255, 0, 0));
    FontSpec font;
    readRecord(map, L"styles.button.primary", font);
    EXPECT_EQ(font, FontSpec{});
}

TEST(FieldReader, LaterAliasesOverwriteEarlierOnesAndSnakeCaseOverwritesCamelCase)
{
    EXPECT_EQ(surfaceFrom("{'bumpDepth': 4, 'relief': 3, 'depth': 2, 'materialDepth': 1}").materialDepth, 4);
    EXPECT_EQ(surfaceFrom("{'contactShadow': 9, 'ao': 1}").ambientOcclusion, 9);
    EXPECT_EQ(surfaceFrom("{'inner_glow': 2, 'innerGlow': 1}").innerGlow, 2);
    EXPECT_EQ(surfaceFrom("{'inner_glow': 'x', 'innerGlow': 1}").innerGlow, 1) << "unreadable is absent";
    EXPECT_EQ(readOver(Theme{}, "{'control_hot': '#000001', 'controlHot': '#000002'}").controlHot,
              hexColor(0x000001));
}

TEST(FieldReader, UsesTheFirstMaterialPresentAndLetsExplicitKeysRefineIt)
{
    const NamedMaterial& ruby = *findNamedMaterial(L"ruby");
    const SurfaceStyle surface =
        surfaceFrom("{'preset': 'glass', 'material': 'Ruby', 'specular': 3, 'finish': 'cracred'}");
    EXPECT_EQ(surface.material, MaterialPreset::Gemstone);
    EXPECT_TRUE(surface.materialEnabled);
    EXPECT_EQ(surface.materialTint, hexColor(0xBE0024));
    EXPECT_EQ(surface.materialStrength, 202);
    EXPECT_EQ(surface.roughness, ruby.shading.roughness);
    EXPECT_EQ(surface.specular, 3);
    EXPECT_EQ(surface.finish, MaterialFinish::Cracked);

    EXPECT_FALSE(surfaceFrom("{'material': 'glass'}").materialEnabled);
    EXPECT_EQ(surfaceFrom("{'surfaceMaterial': 'frosted'}").material, MaterialPreset::FrostedGlass);
    EXPECT_TRUE(surfaceFrom("{'materialPreset': 'aaa-glass'}").materialEnabled);
    EXPECT_EQ(surfaceFrom("{'material': 'unobtainium', 'preset': 'glass'}").material, MaterialPreset::None)
        << "the first key that is present is used even when it names nothing";
}

TEST(FieldReader, ProfileSurfaceBringsItsShadingWithItAndTheOthersOnlyTheirPreset)
{
    MaterialProfile off;
    off.enabled = false;
    const MaterialProfile profile =
        readOver(off, "{'main': 'ruby', 'controls': 'stainless_steel', 'accented': 'glass', 'strength': 9,"
                      " 'scale': 31, 'material_scale': 30, 'angle': 45}");
    EXPECT_EQ(profile.surface, MaterialPreset::Gemstone);
    EXPECT_EQ(profile.materialTint, hexColor(0xBE0024));
    EXPECT_EQ(profile.control, findNamedMaterial(L"stainlesssteel")->preset);
    EXPECT_EQ(profile.accent, MaterialPreset::Glass);
    EXPECT_EQ(profile.materialStrength, 9);
    EXPECT_EQ(profile.materialScale, 31);
    EXPECT_EQ(profile.materialAngle, 45);
    EXPECT_TRUE(profile.enabled);
    EXPECT_FALSE(readOver(off, "{'main': 'glass'}").enabled);
    EXPECT_FALSE(readOver(off, "{'main': 'marble', 'enabled': 'no'}").enabled);
    EXPECT_EQ(readOver(off, "{'tint': '#000001', 'materialTint': '#000002'}").materialTint, hexColor(2));
}

TEST(FieldReader, AMiddleColourSwitchesItsStopOnUnlessTheSwitchSaysNo)
{
    EXPECT_TRUE(surfaceFrom("{'gradientMid': '#102030'}").useGradientMid);
    EXPECT_FALSE(surfaceFrom("{'gradientMid': '#102030', 'useGradientMid': 'false'}").useGradientMid);
    EXPECT_FALSE(surfaceFrom("{'gradientMid': 'reddish'}").useGradientMid);
}

TEST(FieldReader, TakesTheBitmapFromAnyOfItsKeys)
{
    for (const char* json : {"{'image': 'a.png'}", "{'bitmap': {'path': 'a.png'}}", "{'skin.path': 'a.png'}",
                             "{'image': {'source': 'a.png'}}", "{'source': 'a.png'}", "{'path': 'a.png'}"}) {
        const SurfaceStyle surface = surfaceFrom(json);
        ASSERT_TRUE(surface.image) << json;
        EXPECT_EQ(surface.image->path, L"a.png") << json;
        EXPECT_FALSE(surface.drawFill) << json;
    }
    EXPECT_TRUE(surfaceFrom("{'image': 'a.png', 'draw_fill': true}").drawFill);
    EXPECT_FALSE(surfaceFrom("{'image': {}}").image);
    SurfaceStyle plated = surfaceFrom("{'image': 'a.png', 'drawFill': true}");
    EXPECT_TRUE(readOver(plated, "{'image': {'path': 'b.png'}}").drawFill) << "the skin has set it before";
    SurfaceStyle filled = surfaceFrom("{'drawFill': true}");
    EXPECT_TRUE(readOver(filled, "{'image': {'path': 'a.png'}}").drawFill) << "in a section read earlier";
    SurfaceStyle unsaid = surfaceFrom("{'drawFill': 'perhaps'}");
    EXPECT_FALSE(readOver(unsaid, "{'image': {'path': 'a.png'}}").drawFill);
}

TEST(FieldReader, ReadsTheTintBlockInAndBesideItsPrefix)
{
    const BitmapTint tint =
        surfaceFrom(
            "{'image': {'path': 'a.png', 'tint': {'bitmapMode': 'palette', 'role': 'accent_hot',"
            " 'color': '#010203', 'opacity': 300}, 'secondaryTintRole': 'Muted-Text',"
            " 'tintSecondaryColor': '4,5,6', 'colors': ['shell', '#0A0B0C'], 'tintMaskChannel': 'value',"
            " 'coverageThreshold': 12, 'tintPreserveLuminance': 'yes', 'invertMask': true}}")
            .image->tint;
    EXPECT_EQ(tint, (BitmapTint{TintMode::PaletteMap,
                                {hexColor(0x010203), PaletteRole::AccentHot},
                                {rgb(4, 5, 6), PaletteRole::MutedText},
                                {{ThemeColor{}.color, PaletteRole::Shell}, {hexColor(0x0A0B0C), {}}},
                                MaskChannel::Brightness,
                                255,
                                12,
                                true,
                                true}));
}

TEST(FieldReader, ABooleanWordInPlaceOfATintSwitchesIt)
{
    const struct {
        const char* tint;
        TintMode mode;
    } rows[] = {
        {"{'image': {'path': 'a', 'tint': true}}", TintMode::Colorize},
        {"{'image': {'path': 'a', 'tint': 'On'}}", TintMode::Colorize},
        {"{'image': {'path': 'a', 'tint': 'yes', 'mode': 'luma'}}", TintMode::LumaMask},
        {"{'image': {'path': 'a', 'tint': 'none'}}", TintMode::None},
        {"{'image': {'path': 'a', 'mode': 'off', 'tint': 'whatever'}}", TintMode::None},
    };
    for (const auto& row : rows)
        EXPECT_EQ(surfaceFrom(row.tint).image->tint.mode, row.mode) << row.tint;
}

TEST(FieldReader, ReadsGeometryAndItsInsetsInEitherForm)
{
    const SurfaceStyle surface = surfaceFrom(
        "{'geometry': {'layoutMode': 'mask', 'bandHeight': 7, 'safeInsets': [1, 2, 3, 4],"
        " 'action_row_insets': {'left': 5, 'bottom': 6}, 'hitInsets': '1,2,3', 'alphaMask': 'm.png'},"
        " 'nineSlice': {'right': 8}}");
    ASSERT_TRUE(surface.geometry);
    EXPECT_EQ(surface.geometry->mode, AlphaHitMode::MaskLayout);
    EXPECT_EQ(surface.geometry->bandHeight, 7);
    EXPECT_EQ(surface.geometry->safeInsets, (Insets{1, 2, 3, 4}));
    EXPECT_EQ(surface.geometry->actionRowInsets, (Insets{5, 0, 0, 6}));
    EXPECT_EQ(surface.geometry->hitInsets, Insets{});
    EXPECT_EQ(surfaceFrom("{'geometry': {'insets': [1, 2, 3, 4]}}").geometry->safeInsets,
              (Insets{1, 2, 3, 4}));
    EXPECT_EQ(surface.geometry->maskPath, L"m.png");
    EXPECT_EQ(surface.nineSlice, (Insets{0, 0, 8, 0}));
    EXPECT_EQ(surfaceFrom("{'geometry': {'mask': {'path': 'n.png'}}}").geometry->maskPath, L"n.png");
    EXPECT_FALSE(surfaceFrom("{'geometry': {'mode': 'nonsense'}}").geometry);
}

TEST(FieldReader, ABitmapAlphaMayStandForTheShape)
{
    const SurfaceStyle shaped = surfaceFrom("{'shape': 'bitmapAlphaShape', 'fallbackShape': 'pill'}");
    ASSERT_TRUE(shaped.geometry);
    EXPECT_EQ(shaped.geometry->mode, AlphaHitMode::AlphaLayout);
    EXPECT_EQ(shaped.shape, ShapeKind::Pill);
    EXPECT_EQ(surfaceFrom("{'bitmap_alpha_shape': true}").geometry->mode, AlphaHitMode::AlphaLayout);
    EXPECT_FALSE(surfaceFrom("{'shape': 'hexagon'}").geometry);
}

TEST(FieldReader, AButtonBlockSetsAllStatesAndAStateItsOwn)
{
    const ButtonStyle button =
        readOver(ButtonStyle{},
                 "{'text': {'weight': 'bold', 'italic': true}, 'hover': {'text': {'weight': 300},"
                 " 'fill': '#000001'}, 'surface': {'opacity': 50}, 'surfaceDown': {'opacity': 60},"
                 " 'text.checked': {'underline': 'yes'}, 'shape': 'pill', 'disabled': {'shape': 'rect'}}");
    for (int i = 0; i < kVisualStateCount; ++i) {
        const auto state = static_cast<VisualState>(i);
        EXPECT_EQ(button.text[state].weight, state == VisualState::Hot ? 300 : 700) << i;
        EXPECT_TRUE(button.text[state].italic) << i;
        EXPECT_EQ(button.text[state].underline, state == VisualState::Active) << i;
        EXPECT_EQ(button.surface[state].opacity, state == VisualState::Pressed ? 60 : 50) << i;
        EXPECT_EQ(button.surface[state].fill == hexColor(0x000001), state == VisualState::Hot) << i;
        EXPECT_EQ(button.surface[state].shape,
                  state == VisualState::Disabled ? ShapeKind::Rect : ShapeKind::Pill)
            << i;
    }
    EXPECT_EQ(button.hitShape, ShapeKind::Pill);
}

TEST(FieldReader, ShapesReachTheSurfacesOfTheirPart)
{
    const auto list = readOver(ListBoxStyle{}, "{'row_shape': 'hexagon', 'rowHot': {'shape': 'octagon'}}");
    EXPECT_EQ(list.row.shape, ShapeKind::Hexagon);
    EXPECT_EQ(list.rowHot.shape, ShapeKind::Octagon);
    EXPECT_EQ(list.rowPressed.shape, ShapeKind::Hexagon);
    EXPECT_EQ(list.selectedRow.shape, SurfaceStyle{}.shape);

    const auto bar = readOver(ScrollBarStyle{}, "{'shape': 'rect', 'thumb_shape': 'gem'}");
    EXPECT_EQ(bar.track.shape, ShapeKind::Rect);
    EXPECT_EQ(bar.incrementButton.hot.shape, ShapeKind::Rect);
    EXPECT_EQ(bar.thumb.disabled.shape, ShapeKind::Diamond);

    const auto tabs = readOver(TabsStyle{}, "{'shape': 'slant-left', 'itemButton': {'shape': 'bevel'}}");
    EXPECT_EQ(tabs.shape, ShapeKind::SlantLeft);
    EXPECT_EQ(tabs.itemButton.surface.active.shape, ShapeKind::Bevel);
    EXPECT_EQ(readOver(TabsStyle{}, "{'shape': 'slant-left'}").itemButton.surface.active.shape,
              ShapeKind::SlantLeft);
}

TEST(FieldReader, TheImageOfABitmapButtonIsASurfaceAndItsBitmap)
{
    const auto button = readOver(BitmapButtonStyle{}, "{'image': {'source': 'a.png', 'tint': 'yes',"
                                                      " 'glow': '#000001'}, 'textStyle': {'pointSize': 14}}");
    ASSERT_TRUE(button.image.image);
    EXPECT_EQ(button.image.image->path, L"a.png");
    EXPECT_EQ(button.image.image->tint.mode, TintMode::Colorize);
    EXPECT_EQ(button.image.glow, hexColor(0x000001));
    EXPECT_EQ(button.text.pointSize, 14);
    EXPECT_EQ(readOver(BitmapButtonStyle{}, "{'bitmap': 'b.png'}").image.image->path, L"b.png");
}

} // namespace
} // namespace vela
