#include "vela/theme/skins/style_sections.h"

#include "tests/support/skin_text.h"
#include "vela/theme/derive/derive_style_sheet.h"

#include <gtest/gtest.h>

#include <set>

namespace vela {
namespace {

StyleSheet sheetOf(std::string_view json) { return buildStyleSheet(skinOf(json)); }

// What the builders make of the default theme, with the shapes written into the surfaces.
const StyleSheet& derived()
{
    static const StyleSheet sheet = buildStyleSheet(SkinDefinition{});
    return sheet;
}

template <typename Record>
const Record& derivedStyle(std::wstring_view variant = kDefaultVariant)
{
    return derived().find<Record>(variant);
}

TEST(StyleSections, EveryNameOfEveryKindReachesIt)
{
    const struct {
        ControlKind kind;
        std::string_view names;
    } rows[] = {
        {ControlKind::Text, "text textstyle"},
        {ControlKind::Button, "button buttons buttonstyle"},
        {ControlKind::BitmapButton,
         "bitmap bitmapbutton bitmap_button bitmapbuttons imagebutton glyphbutton"},
        {ControlKind::Panel, "panel panelstyle"},
        {ControlKind::Card, "card cardstyle"},
        {ControlKind::ChromeTitleBar, "chrome chrometitlebar chrome_title_bar titlebar"},
        {ControlKind::StatusChip, "statuschip status status-chip"},
        {ControlKind::ProgressBar, "progressbar progress"},
        {ControlKind::ScrollBar, "scrollbar scroll"},
        {ControlKind::CheckBox, "check checkbox"},
        {ControlKind::SelectBox, "selectbox select combobox combo select_box"},
        {ControlKind::ListBox, "listbox list_box hierarchicallistbox hierarchical_list_box tree_listbox "
                               "treelistbox tree_list treelist disk_viewer diskviewer file_viewer fileviewer "
                               "file_list filelist selectionlist selection_list"},
        {ControlKind::DateInput, "dateinput date_input date calendarinput calendar_input"},
        {ControlKind::Tabs, "tabstrip tabs tab"},
        {ControlKind::MenuBar, "menubar menu menu_bar windowmenu windowsmenu"},
        {ControlKind::TableList, "tablelist table list"},
        {ControlKind::RichText, "richtext helptext"},
        {ControlKind::TextInput, "textinput input edit"},
        {ControlKind::SelectableText, "selectabletext"},
        {ControlKind::Popup, "popup dialog"},
        {ControlKind::Tooltip, "tooltip tooltips"},
    };
    for (const auto& row : rows) {
        anyWord(row.names, [&](std::string_view name) {
            const ControlSection* const section = findControlSection(widened(name));
            EXPECT_TRUE(section && section->kind == row.kind) << name;
            return false;
        });
    }
    EXPECT_EQ(findControlSection(L"nonsense"), nullptr);
    EXPECT_EQ(findControlSection(L""), nullptr);
    for (std::size_t i = 0; i < controlSections().size(); ++i)
        EXPECT_EQ(static_cast<std::size_t>(controlSections()[i].kind), i);
}

TEST(StyleSections, ASkinWithoutSectionsHasTheDerivedSheet)
{
    StyleSheet sheet = sheetOf("{'id': 'a', 'styles': {'nonsense': {'default': {'fill': 1}}, 'button': 3}}");
    EXPECT_TRUE(sheet == derived());
    EXPECT_TRUE(deriveStyleSheet(Theme{}).find<ButtonStyle>(L"primary-action").text ==
                derivedStyle<ButtonStyle>(L"primary-action").text);
}

TEST(StyleSections, OneFieldLeavesAllOthersAsDerived)
{
    ScrollBarStyle expected = derivedStyle<ScrollBarStyle>();
    expected.showButtons = !expected.showButtons;
    expected.minThumbExtent = 31;
    const std::string on = expected.showButtons ? "true" : "false";
    const std::string fields = "{'show_buttons': " + on + ", 'min_thumb_extent': 31}";
    for (const std::string& json : {"{'styles': {'scrollbar': {'default': " + fields + "}}}",
                                    "{'styles': {'scroll_bar': " + fields + "}}",
                                    "{'style_overrides': {'Scroll': {'default': " + fields + "}}}",
                                    "{'control_variants': {'scrollbar': " + fields + "}}",
                                    "{'shapes': {'scrollbar': " + fields + "}}"}) {
        const StyleSheet sheet = sheetOf(json);
        EXPECT_TRUE(sheet.find<ScrollBarStyle>(kDefaultVariant) == expected) << json;
        EXPECT_TRUE(sheet.table<ButtonStyle>() == derived().table<ButtonStyle>()) << json;
    }
}

TEST(StyleSections, ShapesNamePartsVariantsOrTheWholeKind)
{
    const StyleSheet sheet = sheetOf(
        "{'shapes': {'button': {'primary': 'hexagon', 'secondary': {'shape': 'beveled', 'hover': 'pill'}},"
        " 'panel': 'octagon', 'progress': {'frame': 'rect', 'track': 'bevel', 'fill_shape': 'gem'},"
        " 'scrollbar': {'track': 'hexagon', 'thumb': 'gem', 'track_thickness': 13, 'show_buttons': false},"
        " 'popup': {'header': 'slant-left', 'primaryAction': 'capsule'}, 'card': {'raised': {'header': "
        "'gem'}}}}");
    EXPECT_EQ(sheet.find<ButtonStyle>(L"primary").surface.active.shape, ShapeKind::Hexagon);
    EXPECT_EQ(sheet.find<ButtonStyle>(L"secondary").surface.normal.shape, ShapeKind::Bevel);
    EXPECT_EQ(sheet.find<ButtonStyle>(L"secondary").surface.hot.shape, ShapeKind::Pill);
    EXPECT_TRUE(sheet.find<ButtonStyle>(L"quiet") == derivedStyle<ButtonStyle>(L"quiet"));
    for (const std::wstring_view variant : {L"default", L"glass"})
        EXPECT_EQ(sheet.find<PanelStyle>(variant).surface.shape, ShapeKind::Octagon);
    const auto& progress = sheet.find<ProgressBarStyle>(kDefaultVariant);
    EXPECT_EQ(progress.frame.shape, ShapeKind::Rect);
    EXPECT_EQ(progress.track.shape, ShapeKind::Bevel);
    EXPECT_EQ(progress.fill.shape, ShapeKind::Diamond);
    const auto& bar = sheet.find<ScrollBarStyle>(kDefaultVariant);
    EXPECT_EQ(bar.track.shape, ShapeKind::Hexagon);
    EXPECT_EQ(bar.thumb.hot.shape, ShapeKind::Diamond);
    EXPECT_EQ(bar.trackThickness, 13);
    EXPECT_FALSE(bar.showButtons);
    const auto& popup = sheet.find<PopupStyle>(kDefaultVariant);
    EXPECT_EQ(popup.header.shape, ShapeKind::SlantLeft);
    EXPECT_EQ(popup.primaryAction.surface.normal.shape, ShapeKind::Pill);
    EXPECT_EQ(popup.secondaryAction, derivedStyle<PopupStyle>().secondaryAction);
    EXPECT_EQ(sheet.find<CardStyle>(L"raised").header.shape, ShapeKind::Diamond);
    EXPECT_EQ(sheet.table<CardStyle>().size(), derived().table<CardStyle>().size());
}

TEST(StyleSections, LaterSectionsOverrideEarlierOnes)
{
    const auto padding = [](std::string_view json) {
        return sheetOf(json).find<PanelStyle>(kDefaultVariant).padding;
    };
    EXPECT_EQ(padding("{'styles': {'panel': {'padding': 1, 'default': {'padding': 2}}}}"), 2);
    EXPECT_EQ(padding("{'styleOverrides': {'panel': {'default': {'padding': 3}}},"
                      " 'styles': {'panel': {'default': {'padding': 2}}}}"),
              3);
    EXPECT_EQ(padding("{'variants': {'panel': {'default': {'padding': 4}}},"
                      " 'styleOverrides': {'panel': {'default': {'padding': 3}}}}"),
              4);
    EXPECT_EQ(padding("{'styles': {'panel': {'default': {'padding': 1}},"
                      " 'panel_style': {'default': {'padding': 5}}}}"),
              5);
    const StyleSheet sheet = sheetOf("{'shapes': {'panel': 'hexagon'}, 'styles': {'panel': {'glass':"
                                     " {'surface': {'shape': 'pill'}}}}}");
    EXPECT_EQ(sheet.find<PanelStyle>(kDefaultVariant).surface.shape, ShapeKind::Hexagon);
    EXPECT_EQ(sheet.find<PanelStyle>(L"glass").surface.shape, ShapeKind::Pill);
}

TEST(StyleSections, ASkinMayAddVariantsThatStartFromTheDefault)
{
    const StyleSheet sheet =
        sheetOf("{'styleVariants': {'card': {'Hero_Card': {'headerHeight': 99}}},"
                " 'styles': {'card': {'default': {'contentPadding': 3}, 'note': 'no style'}}}");
    const CardStyle& hero = sheet.find<CardStyle>(L"hero-card");
    EXPECT_EQ(hero.headerHeight, 99);
    EXPECT_EQ(hero.contentPadding, 3);
    EXPECT_EQ(sheet.table<CardStyle>().size(), derived().table<CardStyle>().size() + 1);
    EXPECT_EQ(sheet.find<CardStyle>(L"unheard-of"), sheet.find<CardStyle>(kDefaultVariant));
}

TEST(StyleSections, StylesInheritFromVariantsKindsAndOneAnother)
{
    const StyleSheet sheet =
        sheetOf("{'styles': {"
                "'button': {'alpha': {'inherits': 'omega', 'hit_shape': 'rect'}, 'omega': {'extends': "
                "'Danger_Action',"
                "           'useSurfaceHitTesting': false}},"
                "'listbox': {'default': {'rowHeight': 41, 'railWidth': 5}},"
                "'table': {'inherits': 'list_box', 'default': {'railWidth': 6}},"
                "'date': {'default': {'base': 'listbox', 'popupWidth': 300}},"
                "'popup': {'default': {'primaryAction': {'inherits': 'button.omega', 'hit_shape': 'pill'},"
                "           'titleText': {'inherits': 'text.danger', 'italic': true}}}}}");
    ButtonStyle omega = derivedStyle<ButtonStyle>(L"danger-action");
    omega.useSurfaceHitTesting = false;
    EXPECT_EQ(sheet.find<ButtonStyle>(L"omega"), omega);
    ButtonStyle alpha = omega;
    alpha.hitShape = ShapeKind::Rect;
    EXPECT_EQ(sheet.find<ButtonStyle>(L"alpha"), alpha);
    EXPECT_EQ(sheet.find<TableListStyle>(kDefaultVariant).rowHeight, 41);
    EXPECT_EQ(sheet.find<TableListStyle>(kDefaultVariant).railWidth, 6);
    EXPECT_EQ(sheet.find<DateInputStyle>(kDefaultVariant).popupWidth, 300);
    ButtonStyle action = omega;
    action.hitShape = ShapeKind::Pill;
    EXPECT_EQ(sheet.find<PopupStyle>(kDefaultVariant).primaryAction, action);
    FontSpec title = derivedStyle<TextStyle>(L"danger");
    title.italic = true;
    EXPECT_EQ(sheet.find<PopupStyle>(kDefaultVariant).titleText, title);
}

TEST(StyleSections, CirclesAndCrowdsAreHarmless)
{
    const StyleSheet circle =
        sheetOf("{'styles': {'panel': {'inherits': 'card', 'a': {'inherits': 'b', 'padding': 1},"
                " 'b': {'inherits': 'a', 'padding': 2}, 'c': {'inherits': 'c', 'padding': 3}},"
                " 'card': {'inherits': 'panel'}}}");
    EXPECT_EQ(circle.find<PanelStyle>(L"a").padding, 1);
    EXPECT_EQ(circle.find<PanelStyle>(L"b").padding, 2);
    EXPECT_EQ(circle.find<PanelStyle>(L"c").padding, 3);

    std::string crowd;
    for (int i = 0; i < 500; ++i)
        crowd +=
            "'v" + std::to_string(i) + "': {'inherits': 'v" + std::to_string(i + 1) + "', 'padding': 1},";
    const StyleSheet sheet = sheetOf("{'styles': {'panel': {" + crowd + "'default': {'padding': 7}}}}");
    EXPECT_EQ(sheet.table<PanelStyle>().size(), kMaxVariants);
    EXPECT_EQ(sheet.find<PanelStyle>(kDefaultVariant).padding, 7);
}

} // namespace
} // namespace vela
