// One control of every kind in a window, for what holds for all of them, and their records by the fields'
// description, so that a new field is covered by itself.
#pragma once

#include "tests/controls/tree/fake_window.h"
#include "vela/controls/widgets/check_box.h"
#include "vela/controls/widgets/chrome_title_bar.h"
#include "vela/controls/widgets/designed_popup.h"
#include "vela/controls/widgets/label.h"
#include "vela/controls/widgets/progress_bar.h"
#include "vela/controls/widgets/text_input.h"
#include "vela/controls/widgets/tooltip.h"
#include "vela/theme/fields/fields.h"
#include "vela/theme/records/style_sheet.h"

#include <cstddef>

namespace vela::testing {

// Calls visit(kind, place) for every field of the record and of the records in it.
template <class Visit>
void forEachField(void* record, const FieldTable& table, const Visit& visit)
{
    for (const Field& field : table.fields) {
        std::byte* const place = static_cast<std::byte*>(record) + field.offset;
        if (field.kind == FieldKind::Geometry) {
            auto& geometry = *reinterpret_cast<Boxed<SurfaceGeometry>*>(place);
            SurfaceGeometry made;
            forEachField(&made, tableOf(field), visit);
            geometry = made;
        } else if (field.kind == FieldKind::Record || field.kind == FieldKind::States) {
            if (isShapedOnly(field))
                continue;
            const std::size_t count = field.kind == FieldKind::States ? kVisualStateCount : 1;
            for (std::size_t i = 0; i < count; ++i)
                forEachField(place + i * tableOf(field).recordSize, tableOf(field), visit);
        } else {
            visit(field.kind, place);
        }
    }
}

template <class Visit>
void forEachFieldOf(StyleSheet& sheet, const Visit& visit)
{
    sheet.forEachTable([&visit]<class Record>(ControlKind, VariantTable<Record>& table) {
        for (auto& variant : table)
            forEachField(&variant.record, Fields<Record>::kTable, visit);
    });
}

class EveryControl {
public:
    EveryControl()
    {
        add<Label>(L"label", std::wstring(L"Text"));
        add<ThemedButton>(L"button", std::wstring(L"Tlacitko"));
        auto& check = add<CheckBox>(L"check", std::wstring(L"Volba"));
        check.setChecked(true);
        auto& field = add<TextInput>(L"field", L"C:\\Program Files");
        field.setAttachments({{L"a", L"priloha.txt"}});
        field.perform(TextCommand::SelectAll);
        add<ProgressBar>(L"progress").setValue(40);
        auto& bar = add<ChromeTitleBar>(L"bar", std::wstring(L"Titulek"), Theme{});
        bar.showButton(CaptionButton::Minimize, true);
        bar.addHeaderAction(1, L"Akce");
        auto& popup = add<DesignedPopup>(L"popup");
        popup.setTitle(L"Nadpis");
        popup.setIconText(L"!");
        popup.setMessage(L"Zprava o nekolika slovech");
        popup.setActions({{L"Ano", L"yes", true}, {L"Ne", L"no", false}});
        add<TooltipView>(L"tooltip").setText(L"Napoveda o nekolika slovech");
        window.root.add(std::make_unique<Panel>(L"panel", Rect{}));
    }

    void apply(const StyleSheet& sheet)
    {
        window.root.setSurface(sheet.find<PanelStyle>({}).surface);
        styleTree(window.root, sheet);
    }
    template <class Visit>
    void forEach(const Visit& visit)
    {
        for (Control* control : window.root.children())
            visit(*control);
    }

    FakeWindow window{{800, 600}};

private:
    template <class Kind, class... Args>
    Kind& add(const wchar_t* id, Args&&... args)
    {
        return window.root.addControl(
            std::make_unique<Kind>(id, Rect{100, 100, 300, 200}, std::forward<Args>(args)...));
    }
};

} // namespace vela::testing
