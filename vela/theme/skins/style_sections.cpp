#include "vela/theme/skins/style_sections.h"

#include "vela/theme/derive/derive_style_sheet.h"
#include "vela/theme/fields/field_reader.h"
#include "vela/theme/fields/record_copy.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <tuple>
#include <vector>

namespace vela {
namespace {

constexpr ControlSection kSections[] = {
    {ControlKind::Text, "text textstyle", &Fields<TextStyle>::kTable},
    {ControlKind::Button, "button buttons buttonstyle", &Fields<ButtonStyle>::kTable},
    {ControlKind::BitmapButton, "bitmap bitmapbutton bitmapbuttons imagebutton glyphbutton",
     &Fields<BitmapButtonStyle>::kTable},
    {ControlKind::Panel, "panel panelstyle", &Fields<PanelStyle>::kTable},
    {ControlKind::Card, "card cardstyle", &Fields<CardStyle>::kTable},
    {ControlKind::ChromeTitleBar, "chrome chrometitlebar titlebar", &Fields<ChromeTitleBarStyle>::kTable},
    {ControlKind::StatusChip, "statuschip status", &Fields<StatusChipStyle>::kTable},
    {ControlKind::ProgressBar, "progressbar progress", &Fields<ProgressBarStyle>::kTable},
    {ControlKind::ScrollBar, "scrollbar scroll", &Fields<ScrollBarStyle>::kTable},
    {ControlKind::CheckBox, "check checkbox", &Fields<CheckBoxStyle>::kTable},
    {ControlKind::SelectBox, "selectbox select combobox combo", &Fields<SelectBoxStyle>::kTable},
    {ControlKind::ListBox,
     "listbox hierarchicallistbox treelistbox treelist diskviewer fileviewer filelist selectionlist",
     &Fields<ListBoxStyle>::kTable},
    {ControlKind::DateInput, "dateinput date calendarinput", &Fields<DateInputStyle>::kTable},
    {ControlKind::Tabs, "tabstrip tabs tab", &Fields<TabsStyle>::kTable},
    {ControlKind::MenuBar, "menubar menu windowmenu windowsmenu", &Fields<MenuBarStyle>::kTable},
    {ControlKind::TableList, "tablelist table list", &Fields<TableListStyle>::kTable},
    {ControlKind::RichText, "richtext helptext", &Fields<RichTextStyle>::kTable},
    {ControlKind::TextInput, "textinput input edit", &Fields<TextInputStyle>::kTable},
    {ControlKind::SelectableText, "selectabletext", &Fields<SelectableTextStyle>::kTable},
    {ControlKind::Popup, "popup dialog", &Fields<PopupStyle>::kTable},
    {ControlKind::Tooltip, "tooltip tooltips", &Fields<TooltipStyle>::kTable},
};
static_assert(std::size(kSections) == kControlKindCount);

struct Layer {
    std::wstring_view path;
    KeyStyle keys;
};

// A skin's own additions come last, so that they start from everything that the skin says about their kind.
constexpr Layer kLayers[] = {
    {kShapesSection, KeyStyle::ShapeImplied},
    {kStylesSection, KeyStyle::Full},
    {kOverridesSection, KeyStyle::Full},
    {kVariantsSection, KeyStyle::Full},
};

struct VariantRef {
    std::wstring_view name;
    void* record = nullptr; // null: there is no such variant
};

// The variants of one kind without its record type, so that one reader serves all kinds. The code for 21
// types of large records is kept to these two functions; all else goes by their field tables.
struct VariantAccess {
    VariantRef (*at)(StyleSheet&, std::size_t index);
    void (*add)(StyleSheet&, std::wstring_view name);
};

template <typename Record>
constexpr VariantAccess accessTo()
{
    return {
        [](StyleSheet& sheet, std::size_t index) -> VariantRef {
            auto& table = sheet.table<Record>();
            if (index >= table.size())
                return {};
            auto& variant = *std::next(table.begin(), static_cast<std::ptrdiff_t>(index));
            return {variant.name, &variant.record};
        },
        [](StyleSheet& sheet, std::wstring_view name) { sheet.table<Record>().ensure(name); },
    };
}

template <typename... Record>
constexpr std::array<VariantAccess, sizeof...(Record)> accessToAll(std::tuple<VariantTable<Record>...>*)
{
    return {accessTo<Record>()...};
}

constexpr auto kAccess = accessToAll(static_cast<StyleSheet::Tables*>(nullptr));

// The variants of one kind in a sheet, by index: additions move the records.
class Variants {
public:
    Variants(StyleSheet& sheet, const ControlSection& section)
        : sheet_(sheet), section_(section), access_(kAccess[static_cast<std::size_t>(section.kind)])
    {
    }

    void* record(std::size_t index) const { return access_.at(sheet_, index).record; }

    void* find(std::wstring_view name) const
    {
        for (std::size_t i = 0;; ++i) {
            const VariantRef variant = access_.at(sheet_, i);
            if (!variant.record || sameName(variant.name, name))
                return variant.record;
        }
    }

    // Adds a copy of the default where there is no such variant. Null when there are too many already.
    void* ensure(std::wstring_view name) const
    {
        if (void* const known = find(name))
            return known;
        if (record(kMaxVariants - 1))
            return nullptr;
        access_.add(sheet_, name);
        void* const added = find(name);
        copyRecord(*section_.fields, find(kDefaultVariant), added);
        return added;
    }

private:
    StyleSheet& sheet_;
    const ControlSection& section_;
    const VariantAccess& access_;
};

// What a block inherits from; empty when it inherits nothing.
std::wstring_view inheritedName(const SkinView& block)
{
    std::wstring_view name;
    anyWord(kInheritanceKeys, [&](std::string_view key) {
        const SkinView found = block.at(key);
        if (found.textCount() > 0)
            name = found.text(found.textCount() - 1);
        return false;
    });
    return name;
}

// "kind.variant", where the variant may be left out.
struct StyleName {
    const ControlSection* section; // null when there is no such kind
    std::wstring_view variant;
};

StyleName parseStyleName(std::wstring_view text)
{
    const std::size_t dot = text.find(L'.');
    return {findControlSection(text.substr(0, dot)),
            dot == std::wstring_view::npos ? kDefaultVariant : text.substr(dot + 1)};
}

// Reads what one section of a skin says about one control kind.
class KindReader {
public:
    KindReader(StyleSheet& sheet, const SkinView& layer, KeyStyle keys, const ControlSection& section)
        : sheet_(sheet), layer_(layer), keys_(keys), section_(section), variants_(sheet, section)
    {
    }

    void read() { readBlocksOf(section_, 0); }

private:
    enum class Progress : std::uint8_t { Waiting, Open, Done };

    struct Variant {
        std::wstring_view name;
        SkinView block;
        Progress progress = Progress::Waiting;
    };

    void readBlocksOf(const ControlSection& source, int depth)
    {
        const ControlSection* base = nullptr; // one for all blocks of a kind: a chain, never a tree
        eachBlock(source, [&](const SkinView& block) {
            const std::wstring_view name = inheritedName(block);
            base = name.empty() ? base : findControlSection(name);
        });
        if (base && depth < kMaxInheritance)
            readBlocksOf(*base, depth + 1);
        eachBlock(source, [this](const SkinView& block) { readBlock(block); });
    }

    template <typename Visit>
    void eachBlock(const ControlSection& source, Visit&& visit) const
    {
        anyWord(source.names, [&](std::string_view name) {
            const SkinView block = layer_.at(name);
            if (!block.empty())
                visit(block);
            return false;
        });
    }

    void readBlock(const SkinView& block)
    {
        bool hasFields = block.textCount() > 0;
        std::vector<Variant> variants;
        for (const std::wstring_view name : block.childNames()) {
            if (isFieldKey(*section_.fields, name, keys_))
                hasFields = true;
            else if (!isInheritanceKey(name))
                variants.push_back({name, block.at(name)});
        }
        if (hasFields)
            readIntoAll(block);
        // Variants that are added start from the default as this block leaves it.
        std::partition(variants.begin(), variants.end(),
                       [](const Variant& variant) { return variant.name == kDefaultVariant; });
        for (Variant& variant : variants)
            readVariant(variants, variant, 0);
    }

    void readIntoAll(const SkinView& block)
    {
        for (std::size_t i = 0; void* const record = variants_.record(i); ++i)
            readStyle(block, record);
    }

    void readVariant(std::vector<Variant>& variants, Variant& variant, int depth)
    {
        const bool isStyle = variant.block.hasChildren() || keys_ == KeyStyle::ShapeImplied;
        if (variant.progress != Progress::Waiting || !isStyle)
            return;
        variant.progress = Progress::Open;
        if (variants_.ensure(variant.name)) {
            inherit(variants, variant, depth);
            readStyle(variant.block, variants_.find(variant.name));
        }
        variant.progress = Progress::Done;
    }

    void inherit(std::vector<Variant>& variants, const Variant& variant, int depth)
    {
        const std::wstring_view name = inheritedName(variant.block);
        if (name.empty() || depth >= kMaxInheritance)
            return;
        const auto base = std::find_if(variants.begin(), variants.end(),
                                       [name](const Variant& other) { return sameName(other.name, name); });
        if (base != variants.end())
            readVariant(variants, *base, depth + 1);
        const bool isCircle = base != variants.end() && base->progress == Progress::Open;
        void* const record = variants_.find(variant.name); // after additions, which move the records
        if (const void* const from = variants_.find(name)) {
            if (!isCircle)
                copyRecord(*section_.fields, from, record);
            return;
        }
        const StyleName style = parseStyleName(name);
        if (!style.section)
            return;
        eachBlock(*style.section, [&](const SkinView& block) { readStyle(block.at(style.variant), record); });
    }

    void readStyle(const SkinView& block, void* record)
    {
        inheritParts(block, record);
        readRecord(block, *section_.fields, record, keys_);
    }

    // Styles within the record that are records of a control kind themselves.
    void inheritParts(const SkinView& block, void* record)
    {
        for (const Field& field : section_.fields->fields) {
            if (field.kind != FieldKind::Record)
                continue;
            anyWord(field.keys, [&](std::string_view key) {
                const StyleName style = parseStyleName(inheritedName(block.at(key)));
                if (!style.section || style.section->fields != &tableOf(field))
                    return false;
                if (const void* const from = Variants(sheet_, *style.section).find(style.variant))
                    copyRecord(tableOf(field), from, static_cast<std::byte*>(record) + field.offset);
                return false;
            });
        }
    }

    StyleSheet& sheet_;
    const SkinView& layer_;
    KeyStyle keys_;
    const ControlSection& section_;
    Variants variants_;
};

void spreadDerivedShapes(StyleSheet& sheet)
{
    for (const ControlSection& section : kSections) {
        const Variants variants(sheet, section);
        for (std::size_t i = 0; void* const record = variants.record(i); ++i)
            spreadShapes(*section.fields, record);
    }
}

} // namespace

bool isInheritanceKey(std::wstring_view name) noexcept
{
    return anyWord(kInheritanceKeys, [name](std::string_view key) { return isName(name, key); });
}

std::span<const ControlSection> controlSections() noexcept { return kSections; }

const ControlSection* findControlSection(std::wstring_view name) noexcept
{
    const auto* const found =
        std::find_if(std::begin(kSections), std::end(kSections), [name](const auto& row) {
            return anyWord(row.names, [name](std::string_view word) { return isName(name, word); });
        });
    return found == std::end(kSections) ? nullptr : found;
}

StyleSheet buildStyleSheet(const SkinDefinition& skin)
{
    StyleSheet sheet = deriveStyleSheet(skin.theme);
    spreadDerivedShapes(sheet);
    SkinMap sections = skin.sections;
    sections.sort();
    for (const Layer& layer : kLayers) {
        const SkinView view = SkinView(sections).at(layer.path);
        for (const ControlSection& section : kSections)
            KindReader(sheet, view, layer.keys, section).read();
    }
    return sheet;
}

} // namespace vela
