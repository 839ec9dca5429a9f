#include "tools/skin_lint/document_lint.h"

#include "tools/skin_lint/accepted.h"
#include "tools/skin_lint/value_lint.h"
#include "vela/text.h"
#include "vela/theme/checks/contrast_checks.h"
#include "vela/theme/checks/derived_variants.h"
#include "vela/theme/records/spellings.h"
#include "vela/theme/skins/skin_document.h"
#include "vela/theme/skins/style_sections.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace vela::lint {
namespace {

std::vector<std::string> split(std::string_view words)
{
    std::vector<std::string> list;
    anyWord(words, [&list](std::string_view word) {
        list.emplace_back(word);
        return false;
    });
    return list;
}

std::vector<std::string> skinKeyNames()
{
    std::vector<std::string> names;
    for (const SkinKey& key : kSkinKeys) {
        const std::vector<std::string> aliases = split(key.keys);
        names.insert(names.end(), aliases.begin(), aliases.end());
    }
    return names;
}

const SkinKey* findSkinKey(std::wstring_view name)
{
    const auto* const found =
        std::find_if(std::begin(kSkinKeys), std::end(kSkinKeys), [name](const SkinKey& key) {
            return anyWord(key.keys, [name](std::string_view alias) { return isName(name, alias); });
        });
    return found == std::end(kSkinKeys) ? nullptr : found;
}

std::vector<std::string> variantNames(ControlKind kind)
{
    std::vector<std::string> names;
    for (const std::wstring_view name : derivedVariants(kind))
        names.push_back(toUtf8(name));
    return names;
}

bool isDerivedVariant(ControlKind kind, std::wstring_view name)
{
    const auto variants = derivedVariants(kind);
    return std::any_of(variants.begin(), variants.end(),
                       [name](std::wstring_view variant) { return sameName(name, variant); });
}

std::string ratioText(float ratio)
{
    const auto hundredths = static_cast<int>(std::floor(ratio * 100.0F));
    const std::string digits = std::to_string(hundredths % 100);
    return std::to_string(hundredths / 100) + "." + (digits.size() < 2 ? "0" : "") + digits;
}

class DocumentLint {
public:
    DocumentLint(std::string file, std::vector<KnownId>& known) : file_(std::move(file)), known_(known) {}

    std::vector<Finding> lint(const JsonValue& root)
    {
        lintRoot(root);
        std::stable_sort(findings_.begin(), findings_.end(),
                         [](const Finding& a, const Finding& b) { return a.offset < b.offset; });
        return std::move(findings_);
    }

private:
    void lintRoot(const JsonValue& root)
    {
        if (root.kind() == JsonKind::Array)
            return lintSkins(root, {});
        if (root.kind() != JsonKind::Object)
            return values_.report(root, {}, "a skin document is an object or an array of skins");
        const JsonValue* const list = root.find(L"skins");
        const JsonValue* const single = root.find(L"skin");
        if (list && list->kind() == JsonKind::Array) {
            lintSkins(*list, "skins");
            lintOtherMembers(root, L"skins");
        } else if (single) {
            lintSkin(*single, "skin");
            lintOtherMembers(root, L"skin");
        } else {
            lintSkin(root, {});
        }
    }

    // Beside the skins a document holds nothing that is read; editors keep a reference to the schema there.
    void lintOtherMembers(const JsonValue& root, std::wstring_view used)
    {
        for (const JsonMember& member : root.members()) {
            if (member.key() != used && member.key() != L"$schema")
                values_.reportUnknownKey(member, memberPath({}, member.key()), "key", {toUtf8(used)});
        }
    }

    void lintSkins(const JsonValue& list, const std::string& path)
    {
        for (std::size_t i = 0; i < list.items().size(); ++i)
            lintSkin(list.items()[i], elementPath(path, i));
    }

    void lintSkin(const JsonValue& skin, const std::string& path)
    {
        if (skin.kind() != JsonKind::Object)
            return values_.report(skin, path, "a skin is an object");
        for (const JsonMember& member : skin.members()) {
            const std::string below = memberPath(path, member.key());
            if (const SkinKey* const key = findSkinKey(member.key()))
                lintSkinMember(*key, member.value, below);
            else if (member.key() != L"$schema")
                values_.reportUnknownKey(member, below, "key", skinKeyNames());
        }
        lintWhole(skin, path);
    }

    void lintSkinMember(const SkinKey& key, const JsonValue& value, const std::string& path)
    {
        switch (key.kind) {
        case SkinKeyKind::Text:
            if (!value.string())
                values_.report(value, path, "a text is expected here");
            break;
        case SkinKeyKind::SurfaceMode: lintSurfaceMode(value, path); break;
        case SkinKeyKind::Tags: lintTags(value, path); break;
        case SkinKeyKind::Materials: lintRecord(value, Fields<MaterialProfile>::kTable, path); break;
        case SkinKeyKind::Theme: lintRecord(value, Fields<Theme>::kTable, path); break;
        case SkinKeyKind::Section: lintSection(key.section, value, path); break;
        }
    }

    void lintSurfaceMode(const JsonValue& value, const std::string& path)
    {
        const std::optional<std::wstring_view> text = value.string();
        if (text && parseWord<SurfaceMode>(*text))
            return;
        const std::vector<std::string> words = wordsOf(kSurfaceModeWords);
        const std::string near = text ? nearest(toUtf8(*text), words) : std::string();
        values_.report(value, path,
                       "unknown surface mode; it is read as sculpted-3d" +
                           (near.empty() ? "" : "; did you mean \"" + near + "\"?"));
    }

    void lintTags(const JsonValue& value, const std::string& path)
    {
        const auto items = value.items();
        const bool texts = std::all_of(items.begin(), items.end(),
                                       [](const JsonValue& item) { return item.string().has_value(); });
        if (value.kind() != JsonKind::Array || !texts)
            values_.report(value, path, "an array of texts is expected here");
    }

    void lintRecord(const JsonValue& value, const FieldTable& table, const std::string& path)
    {
        if (value.kind() == JsonKind::Object)
            values_.check(value, KeyScope(table, KeyStyle::Full), path);
        else
            values_.report(value, path, "an object is expected here");
    }

    void lintSection(std::wstring_view section, const JsonValue& value, const std::string& path)
    {
        if (value.kind() != JsonKind::Object)
            return values_.report(value, path,
                                  "an object with a block for each control kind is expected here");
        for (const JsonMember& member : value.members()) {
            const std::string below = memberPath(path, member.key());
            if (const ControlSection* const kind = findControlSection(member.key()))
                lintBlock(section, *kind, member.value, below);
            else
                values_.reportUnknownKey(member, below, "control kind", sectionNames());
        }
    }

    // Fields for all variants, variants by name, and what the block inherits.
    void lintBlock(std::wstring_view section, const ControlSection& kind, const JsonValue& block,
                   const std::string& path)
    {
        const KeyStyle keys = section == kShapesSection ? KeyStyle::ShapeImplied : KeyStyle::Full;
        const KeyScope scope(*kind.fields, keys);
        if (block.kind() != JsonKind::Object)
            return values_.check(block, scope, path);
        for (const JsonMember& member : block.members()) {
            const std::string below = memberPath(path, member.key());
            const KeyScope field = scope.below(member.key());
            if (!field.empty())
                values_.check(member.value, field, below, kInheritanceKeys);
            else if (!isInheritanceKey(member.key()))
                lintVariant(section, kind, scope, block, member, below);
            else if (const auto name = values_.checkStyleName(member.value, below))
                lintStyleName(member.value, *name, kind, block, below);
        }
    }

    // A new variant is declared among the variants; elsewhere an unknown name is more likely a slip.
    void lintVariant(std::wstring_view section, const ControlSection& kind, const KeyScope& scope,
                     const JsonValue& block, const JsonMember& member, const std::string& path)
    {
        if (!isDerivedVariant(kind.kind, member.key()) && section != kVariantsSection) {
            std::vector<std::string> known = variantNames(kind.kind);
            const std::vector<std::string> keys = scope.keyNames();
            known.insert(known.end(), keys.begin(), keys.end());
            return values_.reportUnknownKey(member, path, "key or variant", known);
        }
        values_.check(member.value, scope, path, kInheritanceKeys);
        for (const JsonMember& part : member.value.members()) {
            if (isInheritanceKey(part.key()) && part.value.string())
                lintStyleName(part.value, *part.value.string(), kind, block, memberPath(path, part.key()));
        }
    }

    void lintStyleName(const JsonValue& value, std::wstring_view name, const ControlSection& kind,
                       const JsonValue& block, const std::string& path)
    {
        const bool isVariant = block.find(name) != nullptr || isDerivedVariant(kind.kind, name);
        if (!isVariant && !findControlSection(name.substr(0, name.find(L'.'))))
            values_.report(value, path, "there is no style \"" + toUtf8(name) + "\" to start from");
    }

    static std::vector<std::string> sectionNames()
    {
        std::vector<std::string> names;
        for (const ControlSection& section : controlSections()) {
            const std::vector<std::string> own = split(section.names);
            names.insert(names.end(), own.begin(), own.end());
        }
        return names;
    }

    // What only the finished skin shows: its id among others, and its contrast.
    void lintWhole(const JsonValue& value, const std::string& path)
    {
        SkinDefinition skin;
        readSkin(value, skin);
        if (skin.id.empty())
            values_.report(value, path, "the skin has no \"id\", so nothing can ask for it",
                           Severity::Warning);
        else
            lintId(value, skin.id, path);
        for (const ContrastCheck& check : contrastChecks(buildStyleSheet(skin))) {
            if (!check.holds())
                values_.report(value, path,
                               "the contrast of " + kindName(check.kind) + "." + toUtf8(check.variant) +
                                   ", " + check.part + ", is " + ratioText(check.reached) + ":1, below " +
                                   ratioText(check.required) + ":1",
                               Severity::Warning);
        }
    }

    void lintId(const JsonValue& value, const std::wstring& id, const std::string& path)
    {
        const std::wstring lowered = loweredAscii(id);
        const auto same = std::find_if(known_.begin(), known_.end(),
                                       [&](const KnownId& other) { return other.id == lowered; });
        if (same == known_.end())
            known_.push_back({lowered, file_});
        else
            values_.report(value, path,
                           "the id \"" + toUtf8(id) + "\" is taken already, in " + same->file +
                               "; the first skin of an id is the one that is found");
    }

    static std::string kindName(ControlKind kind)
    {
        return split(controlSections()[static_cast<std::size_t>(kind)].names).front();
    }

    std::string file_;
    std::vector<KnownId>& known_;
    std::vector<Finding> findings_;
    ValueLint values_{findings_};
};

} // namespace

std::vector<Finding> lintDocument(std::wstring_view text, const std::string& file,
                                  std::vector<KnownId>& known)
{
    JsonDocument document;
    if (!document.read(text)) {
        const JsonError& error = document.error();
        return {{Severity::Error, error.offset, {}, "not JSON: " + std::string(error.explanation)}};
    }
    return DocumentLint(file, known).lint(document.root());
}

} // namespace vela::lint
