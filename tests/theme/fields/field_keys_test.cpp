// The keys that skins write, listed by hand: none of them may get lost from the field tables.
#include "tests/support/skin_text.h"
#include "vela/theme/fields/field_reader.h"
#include "vela/theme/skins/style_sections.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

struct KindKeys {
    ControlKind kind;
    std::string_view keys;
};

constexpr KindKeys kKindKeys[] = {
    {ControlKind::Text, "fontFamily pointSize weight color disabledColor"},
    {ControlKind::Button,
     "text surface normal hot pressed disabled active shape hitShape useSurfaceHitTesting"},
    {ControlKind::BitmapButton, "text tint image bitmap textStyle"},
    {ControlKind::Panel, "surface shape padding"},
    {ControlKind::Card,
     "header surface shape headerShape titleText subtitleText headerHeight contentPadding"},
    {ControlKind::ChromeTitleBar,
     "surface shape titleText titleButton closeHotSurface closePressedSurface closeHotColor "
     "closePressedColor "
     "buttonWidth buttonHeight buttonTop buttonGap "
     "headerActionGap headerActionGroupGap rightMargin iconSize iconLeft titleLeft"},
    {ControlKind::StatusChip, "text surface shape badgeShape badge badgeSize badgeLeft textLeft"},
    {ControlKind::ProgressBar,
     "frame shape fill frameShape trackShape fillShape track labelText insetX insetY "
     "labelWidth labelPaddingX labelPadding"},
    {ControlKind::ScrollBar,
     "shape trackShape track thumbShape buttonShape thumb decrementButton incrementButton "
     "arrow buttonExtent minThumbExtent trackPadding trackThickness thumbThickness showButtons "
     "acceleration scrollAcceleration"},
    {ControlKind::CheckBox,
     "text shape textLeft boxUnchecked boxUncheckedHot boxUncheckedPressed "
     "boxUncheckedDisabled boxChecked boxCheckedHot boxCheckedPressed boxCheckedDisabled "
     "checkColor boxSize"},
    {ControlKind::SelectBox,
     "text surface shape scrollAcceleration arrowShape dropdownShape hotSurface pressedSurface "
     "disabledSurface arrowSurface arrowHotSurface arrowPressedSurface arrowDisabledSurface "
     "dropdownSurface optionHotSurface optionSelectedSurface scrollBar arrowColor arrowWidth "
     "itemHeight maxVisibleItems dropdownGap dropdownPadding dropdownItemPaddingX "
     "dropdownItemPaddingY dropdownScrollBarWidth dropdownScrollRailGap "
     "dropdownEmbeddedScrollRail"},
    {ControlKind::ListBox,
     "text surface shape scrollAcceleration scrollBar rowShape selectedRowShape "
     "selectedRailShape row rowHot rowPressed selectedRow selectedRowHot selectedRail "
     "selectedText disabledText separator rowHeight railWidth linePadding contentInsetX "
     "contentInsetY itemPaddingX itemPaddingY scrollBarWidth scrollRailGap showSeparators"},
    {ControlKind::DateInput,
     "text surface shape headerHeight arrowShape hotSurface pressedSurface disabledSurface "
     "arrowSurface arrowHotSurface arrowPressedSurface arrowColor arrowWidth popupShape "
     "popupSurface headerSurface dayHotSurface dayPressedSurface daySelectedSurface "
     "todaySurface headerText weekdayText dayText weekendText saturdayText sundayText "
     "mutedDayText popupWidth popupPadding popupGap weekdayHeight dayCellHeight "
     "navButtonExtent"},
    {ControlKind::Tabs, "shape itemButton verticalItemHeight"},
    {ControlKind::MenuBar,
     "surface shape arrow separator itemPaddingX popupShape popupSurface popupPadding popupGap "
     "itemShape popupItemShape itemSurface itemHotSurface itemPressedSurface itemActiveSurface "
     "popupItemHotSurface popupItemPressedSurface itemText shortcutText check height itemGap "
     "popupItemHeight popupMinWidth checkColumnWidth shortcutColumnWidth submenuArrowWidth "
     "separatorHeight drawSurface drawItemSurface"},
    {ControlKind::TableList,
     "header surface shape headerShape headerHeight scrollAcceleration rowShape "
     "selectedRowShape selectedRailShape row selectedRow selectedRail selectedText separator "
     "rowHeight railWidth linePadding contentInsetX contentInsetY headerText rowText "
     "highSeverityText highSeverityFill mediumSeverityFill lowSeverityFill resizeGrip "
     "resizeGripHot sortIndicator sortIndicatorHot resizeGripWidth sortIndicatorWidth"},
    {ControlKind::RichText, "text surface shape iconShape icon linkText paddingX paddingY lineHeight"},
    {ControlKind::TextInput,
     "text surface shape scrollAcceleration hotSurface pressedSurface disabledSurface paddingX "
     "paddingY lineHeight attachmentShape attachmentImageShape attachmentRemoveShape "
     "focusedSurface selection attachmentSurface attachmentImageSurface "
     "attachmentRemoveSurface placeholderText attachmentText caretColor attachmentIconColor "
     "attachmentHeight attachmentGap attachmentRemoveExtent showAttachmentRemove"},
    {ControlKind::SelectableText,
     "text surface shape scrollAcceleration selectedText paddingX paddingY lineHeight "
     "selection"},
    {ControlKind::Popup, "header surface shape shadowOffsetX shadowOffsetY showShadow headerShape titleText "
                         "headerHeight iconSize iconShape icon paddingX paddingY closeButton primaryAction "
                         "secondaryAction messageText iconText actionWidth actionHeight actionGap"},
    {ControlKind::Tooltip,
     "surface shape shadow shadowOffsetX shadowOffsetY showShadow textStyle iconSize "
     "scrollAcceleration iconShape icon paddingX paddingY iconText railShape accentRail "
     "maxWidth gap showAccentRail showIcon"},
};

constexpr std::string_view kSurfaceKeys =
    "shape material surfaceMaterial materialPreset preset finish surfaceFinish materialFinish fill "
    "border shadow glow outline noise gradientStart gradientMid gradientEnd materialTint "
    "backlightColor backlight_color innerShadowColor inner_shadow_color insetShadowColor "
    "inset_shadow_color opacity alphaThreshold shadowOpacity glowOpacity noiseOpacity "
    "materialStrength highlightOpacity reflectionOpacity grainOpacity materialDepth depth relief "
    "bumpDepth backlightOpacity backlight_opacity innerGlow inner_glow rimLight rim_light "
    "materialLightElevation lightElevation roughness materialRoughness material_roughness specular "
    "materialSpecular material_specular shine shininess ambientOcclusion ambient_occlusion occlusion "
    "ao edgeWear edge_wear edgeHighlight edge_highlight innerShadow inner_shadow innerShadowOpacity "
    "inner_shadow_opacity insetShadow inset_shadow textureOpacity texture_opacity textureStrength "
    "texture_strength textureMix texture_mix materialScale materialAngle materialLightAngle "
    "lightAngle lightBlobScale light_blob_scale lightBlobAngle light_blob_angle animationSpeed "
    "animation_speed innerShadowSize inner_shadow_size innerShadowRadius inner_shadow_radius "
    "insetShadowSize inset_shadow_size uvScale uv_scale mappingScale mapping_scale uvOffsetX "
    "uv_offset_x mappingOffsetX mapping_offset_x uvOffsetY uv_offset_y mappingOffsetY "
    "mapping_offset_y noiseSeed uvMapping uv_mapping mapping materialMapping material_mapping "
    "textureMapping texture_mapping gradientDirection gradientKind gradientType show_inner_shadow "
    "image bitmap skin source path shadowOffsetX shadowOffsetY glowRadius outlineWidth drawFill "
    "drawBorder showShadow showInnerShadow showGlow showOutline useGradient useGradientMid "
    "useNineSlice useNoise useSkinAlphaHitTest source path shape fallbackshape";

// The part of them that the material profile takes too.
constexpr std::string_view kShadingKeys =
    "finish surfaceFinish materialFinish materialTint backlightColor backlight_color highlightOpacity "
    "reflectionOpacity grainOpacity materialDepth depth relief bumpDepth backlightOpacity "
    "backlight_opacity innerGlow inner_glow rimLight rim_light materialLightElevation lightElevation "
    "roughness materialRoughness material_roughness specular materialSpecular material_specular shine "
    "shininess ambientOcclusion ambient_occlusion occlusion ao edgeWear edge_wear edgeHighlight "
    "edge_highlight innerShadow inner_shadow innerShadowOpacity inner_shadow_opacity insetShadow "
    "inset_shadow textureOpacity texture_opacity textureStrength texture_strength textureMix "
    "texture_mix materialScale materialAngle materialLightAngle lightAngle lightBlobScale "
    "lightBlobAngle animationSpeed innerShadowSize innerShadowRadius insetShadowSize uvScale "
    "mappingScale uvOffsetX mappingOffsetX uvOffsetY mappingOffsetY uvMapping mapping materialMapping "
    "textureMapping gradientDirection gradientKind gradientType";

constexpr std::string_view kMaterialsKeys =
    "surface main control controls accent highlight accented enabled tint materialTint material_tint "
    "backlightColor backlight_color strength materialStrength material_strength highlight_opacity "
    "reflection_opacity grain_opacity bump_depth material_depth contactShadow contact_shadow "
    "material_light_angle light_angle material_light_elevation light_elevation material_scale scale "
    "material_angle angle material_finish surface_finish material_preset gradient_kind gradient_type "
    "gradient_direction uvMapping uv_mapping mapping materialMapping material_mapping uvScale "
    "uv_scale mappingScale mapping_scale uvOffsetX uvOffsetY";

void expectKeys(const FieldTable& table, std::string_view keys)
{
    anyWord(keys, [&](std::string_view key) {
        EXPECT_TRUE(isFieldKey(table, normalizedName(widened(key)))) << table.name << " lacks " << key;
        return false;
    });
}

TEST(Fields, EveryRecordTakesTheKeysThatSkinsWrite)
{
    for (const KindKeys& row : kKindKeys) {
        const ControlSection& section = controlSections()[static_cast<std::size_t>(row.kind)];
        ASSERT_EQ(section.kind, row.kind);
        expectKeys(*section.fields, row.keys);
        EXPECT_FALSE(isFieldKey(*section.fields, L"default"));
    }
    expectKeys(Fields<SurfaceStyle>::kTable, kSurfaceKeys);
    expectKeys(Fields<MaterialProfile>::kTable, kMaterialsKeys);
    expectKeys(Fields<MaterialProfile>::kTable, kShadingKeys);
}

} // namespace
} // namespace vela
