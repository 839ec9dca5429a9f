#include "tools/skin_lint/key_reference.h"

#include "tools/skin_lint/accepted.h"
#include "tools/skin_lint/key_scope.h"
#include "vela/theme/checks/derived_variants.h"
#include "vela/theme/records/named_materials.h"
#include "vela/theme/records/spellings.h"
#include "vela/theme/skins/skin_document.h"
#include "vela/theme/skins/style_sections.h"

#include <algorithm>
#include <vector>

namespace vela::lint {
namespace {

std::string quoted(std::string_view word) { return "`" + std::string(word) + "`"; }

std::string quotedList(std::string_view words)
{
    std::string list;
    anyWord(words, [&list](std::string_view word) {
        list.append(list.empty() ? "" : ", ").append(quoted(word));
        return false;
    });
    return list;
}

std::string linkTo(std::string_view heading)
{
    std::string anchor(heading);
    std::replace(anchor.begin(), anchor.end(), ' ', '-');
    return "[" + std::string(heading) + "](#" + anchor + ")";
}

class Reference {
public:
    std::string text()
    {
        out_ =
            "# Keys of skins\n\nMade by `skin_lint --keys`; do not edit. How to write a skin stands in "
            "[skins.md](skins.md).\n\nKeys and words may be written in camelCase, snake_case or kebab-case. "
            "Where several keys stand in one row, later ones win. A `*` stands for a state: " +
            states() + ".\n";
        skin();
        record("theme", Fields<Theme>::kTable);
        record("materials", Fields<MaterialProfile>::kTable);
        for (const ControlSection& section : controlSections())
            control(section);
        // Records that the ones above refer to, each once; the list grows while it is worked off.
        std::size_t shown = 0;
        while (shown < referred_.size()) {
            const FieldTable& table = *referred_[shown++];
            record(table.name, table);
        }
        vocabularies();
        return out_;
    }

private:
    static std::string states()
    {
        std::string list;
        for (const Spellings& row : kVisualStateWords.rows)
            list.append(list.empty() ? "" : ", ").append(quotedList(row.words));
        return list;
    }

    void heading(std::string_view name) { out_ += "\n## " + std::string(name) + "\n\n"; }

    void skin()
    {
        heading("skin");
        out_ += "| key | holds |\n|---|---|\n";
        for (const SkinKey& key : kSkinKeys)
            out_ += "| " + quotedList(key.keys) + " | " + contentOf(key.kind) + " |\n";
    }

    static std::string contentOf(SkinKeyKind kind)
    {
        switch (kind) {
        case SkinKeyKind::Text: return "a text";
        case SkinKeyKind::SurfaceMode: return linkTo(kSurfaceModeWords.name);
        case SkinKeyKind::Tags: return "an array of texts";
        case SkinKeyKind::Materials: return linkTo("materials");
        case SkinKeyKind::Theme: return linkTo("theme");
        case SkinKeyKind::Section: return "blocks by control kind";
        }
        return {};
    }

    void control(const ControlSection& section)
    {
        heading(section.fields->name);
        out_ += "Section: " + quotedList(section.names) + ". Variants: ";
        std::string variants;
        for (const std::wstring_view variant : derivedVariants(section.kind))
            variants.append(variants.empty() ? "" : ", ").append(quoted(toUtf8(variant)));
        out_ += variants + ".\n\n";
        rows(*section.fields);
    }

    void record(std::string_view name, const FieldTable& table)
    {
        const bool shown = std::any_of(controlSections().begin(), controlSections().end(),
                                       [&](const auto& section) { return section.fields == &table; });
        if (shown)
            return;
        heading(name);
        rows(table);
    }

    void rows(const FieldTable& table)
    {
        out_ += "| keys | value |\n|---|---|\n";
        fields(table);
    }

    void fields(const FieldTable& table)
    {
        for (const Field& field : table.fields) {
            // A record that is read from the same object: its keys are keys of this one.
            if (field.keys == std::string_view(".") && field.kind == FieldKind::Record)
                fields(tableOf(field));
            else if (field.kind != FieldKind::Given)
                out_ += "| " + keysOf(field) + " | " + valueOf(field) + " |\n";
        }
    }

    static std::string keysOf(const Field& field)
    {
        std::string keys(field.keys);
        if (keys.rfind(". ", 0) == 0)
            return "the value itself, " + quotedList(std::string_view(keys).substr(2));
        return keys == "." ? "the value itself" : quotedList(keys);
    }

    std::string valueOf(const Field& field)
    {
        if (isLeaf(field.kind) && field.kind != FieldKind::InsetSides)
            return leafOf(field);
        const FieldTable& table = tableOf(field);
        if (std::find(referred_.begin(), referred_.end(), &table) == referred_.end())
            referred_.push_back(&table);
        return linkTo(table.name);
    }

    static std::string leafOf(const Field& field)
    {
        if (takesNamedMaterials(field.kind))
            return linkTo(kMaterialPresetWords.name) + " or " + linkTo("substances");
        const bool hasWords = field.kind == FieldKind::Word || field.kind == FieldKind::Role ||
                              field.kind == FieldKind::SurfaceAlphaShape;
        return hasWords ? linkTo(vocabularyOf(field).name) : acceptedBy(field);
    }

    void vocabularies()
    {
        for (const Vocabulary* vocabulary :
             {&kSurfaceModeWords, &kShapeWords, &kGradientDirectionWords, &kGradientKindWords,
              &kMaterialPresetWords, &kMaterialFinishWords, &kMappingSpaceWords, &kAlphaHitModeWords,
              &kTintModeWords, &kTintSwitchWords, &kMaskChannelWords, &kPaletteRoleWords, &kWeightWords}) {
            heading(vocabulary->name);
            for (const Spellings& row : vocabulary->rows)
                out_ += "- " + quotedList(row.words) + "\n";
        }
        heading("substances");
        std::string names;
        for (const NamedMaterial& material : namedMaterials())
            names.append(names.empty() ? "" : ", ").append(quoted(toUtf8(material.name)));
        out_ += names + "\n";
    }

    std::string out_;
    std::vector<const FieldTable*> referred_;
};

} // namespace

std::string keyReference() { return Reference().text(); }

} // namespace vela::lint
