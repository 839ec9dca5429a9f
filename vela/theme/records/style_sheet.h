// A theme's style records, looked up by control kind and variant name. Derivation fills one table per kind,
// skins override it field by field, controls copy the record they paint with.
#pragma once

#include "vela/theme/records/control_styles.h"
#include "vela/theme/records/spellings.h"

#include <cstddef>
#include <cstdint>
#include <list>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

namespace vela {

enum class ControlKind : std::uint8_t {
    Text,
    Button,
    BitmapButton,
    Panel,
    Card,
    ChromeTitleBar,
    StatusChip,
    ProgressBar,
    ScrollBar,
    CheckBox,
    SelectBox,
    ListBox,
    DateInput,
    Tabs,
    MenuBar,
    TableList,
    RichText,
    TextInput,
    SelectableText,
    Popup,
    Tooltip,
};
inline constexpr std::size_t kControlKindCount = static_cast<std::size_t>(ControlKind::Tooltip) + 1;

inline constexpr std::wstring_view kDefaultVariant = L"default";

// The records of one control kind in the order in which they were added; the default is always the first. A
// record keeps its place in memory.
// Variant names are compared in normalised form, as skins may write them.
template <class Record>
class VariantTable {
public:
    struct Variant {
        std::wstring name;
        Record record;
        friend bool operator==(const Variant&, const Variant&) = default;
    };

    VariantTable() { ensure(kDefaultVariant); }

    // The default record when there is no variant of that name.
    const Record& find(std::wstring_view name) const noexcept
    {
        for (const Variant& variant : variants_) {
            if (sameName(variant.name, name))
                return variant.record;
        }
        return variants_.front().record;
    }

    // The record of that name for writing, null when there is none.
    Record* tryFind(std::wstring_view name) noexcept
    {
        for (Variant& variant : variants_) {
            if (sameName(variant.name, name))
                return &variant.record;
        }
        return nullptr;
    }

    Record& set(std::wstring_view name, Record record) { return ensure(name) = std::move(record); }

    Record& defaultRecord() noexcept { return variants_.front().record; }

    // The record of that name; a plain one is added when there is none.
    Record& ensure(std::wstring_view name)
    {
        if (Record* const known = tryFind(name))
            return *known;
        Variant& added = variants_.emplace_back();
        added.name = name;
        return added.record;
    }

    std::size_t size() const noexcept { return variants_.size(); }
    auto begin() noexcept { return variants_.begin(); }
    auto end() noexcept { return variants_.end(); }
    auto begin() const noexcept { return variants_.begin(); }
    auto end() const noexcept { return variants_.end(); }
    friend bool operator==(const VariantTable&, const VariantTable&) = default;

private:
    // A list: records are large, and code that moved those of 21 kinds would be long.
    std::list<Variant> variants_;
};

class StyleSheet {
public:
    // One table per control kind, in the order of ControlKind.
    using Tables =
        std::tuple<VariantTable<TextStyle>, VariantTable<ButtonStyle>, VariantTable<BitmapButtonStyle>,
                   VariantTable<PanelStyle>, VariantTable<CardStyle>, VariantTable<ChromeTitleBarStyle>,
                   VariantTable<StatusChipStyle>, VariantTable<ProgressBarStyle>,
                   VariantTable<ScrollBarStyle>, VariantTable<CheckBoxStyle>, VariantTable<SelectBoxStyle>,
                   VariantTable<ListBoxStyle>, VariantTable<DateInputStyle>, VariantTable<TabsStyle>,
                   VariantTable<MenuBarStyle>, VariantTable<TableListStyle>, VariantTable<RichTextStyle>,
                   VariantTable<TextInputStyle>, VariantTable<SelectableTextStyle>, VariantTable<PopupStyle>,
                   VariantTable<TooltipStyle>>;
    static_assert(std::tuple_size_v<Tables> == kControlKindCount);

    template <class Record>
    VariantTable<Record>& table() noexcept
    {
        return std::get<VariantTable<Record>>(tables_);
    }
    template <class Record>
    const VariantTable<Record>& table() const noexcept
    {
        return std::get<VariantTable<Record>>(tables_);
    }
    template <class Record>
    const Record& find(std::wstring_view variant) const noexcept
    {
        return table<Record>().find(variant);
    }

    // Calls visit(kind, table) for every kind in order.
    template <class Visit>
    void forEachTable(Visit&& visit)
    {
        visitTables(tables_, visit);
    }
    template <class Visit>
    void forEachTable(Visit&& visit) const
    {
        visitTables(tables_, visit);
    }

    friend bool operator==(const StyleSheet&, const StyleSheet&) = default;

private:
    template <class AnyTables, class Visit>
    static void visitTables(AnyTables& tables, Visit& visit)
    {
        std::apply(
            [&visit](auto&... table) {
                std::size_t kind = 0;
                (visit(static_cast<ControlKind>(kind++), table), ...);
            },
            tables);
    }

    Tables tables_;
};

template <ControlKind kKind>
using TableOf = std::tuple_element_t<static_cast<std::size_t>(kKind), StyleSheet::Tables>;
static_assert(std::is_same_v<TableOf<ControlKind::Tooltip>, VariantTable<TooltipStyle>>);

} // namespace vela
