#include "tools/skin_lint/value_lint.h"

#include "tools/skin_lint/accepted.h"
#include "vela/text.h"
#include "vela/theme/document/skin_map.h"
#include "vela/theme/records/named_materials.h"
#include "vela/theme/records/spellings.h"
#include "vela/theme/skins/style_sections.h"

#include <algorithm>
#include <optional>

namespace vela::lint {
namespace {

// The text that the readers see in place of a value; empty for objects, null and arrays of more than leaves.
std::optional<std::wstring> textOf(const JsonValue& value)
{
    SkinMap map;
    map.add(L"value", value);
    map.sort();
    const SkinView view = SkinView(map).at(L"value");
    return view.textCount() == 1 ? std::optional(std::wstring(view.text(0))) : std::nullopt;
}

// Words that a wrong text may have meant.
std::vector<std::string> suggestionsFor(const std::vector<const Field*>& fields)
{
    std::vector<std::string> words;
    for (const Field* field : fields) {
        const bool hasWords = field->kind == FieldKind::Word || field->kind == FieldKind::Role ||
                              field->kind == FieldKind::Boolean || field->kind == FieldKind::Weight ||
                              field->kind == FieldKind::SurfaceAlphaShape || takesNamedMaterials(field->kind);
        if (hasWords && field->detail) {
            const std::vector<std::string> own = wordsOf(vocabularyOf(*field));
            words.insert(words.end(), own.begin(), own.end());
        }
        if (takesNamedMaterials(field->kind)) {
            for (const NamedMaterial& material : namedMaterials())
                words.push_back(toUtf8(material.name));
        }
    }
    return words;
}

std::string acceptedByAny(const std::vector<const Field*>& fields)
{
    std::vector<std::string> ways;
    for (const Field* field : fields) {
        std::string way = acceptedBy(*field);
        if (field->kind != FieldKind::Given && std::find(ways.begin(), ways.end(), way) == ways.end())
            ways.push_back(std::move(way));
    }
    std::string all;
    for (const std::string& way : ways)
        all.append(all.empty() ? "" : "; or ").append(way);
    return all;
}

bool isNumeric(FieldKind kind) noexcept
{
    return kind == FieldKind::Byte || kind == FieldKind::Length || kind == FieldKind::Integer ||
           kind == FieldKind::Unsigned;
}

// "12px" and "1.5" are read as 12 and 1, 300 as 255 where a byte is meant: read, but hardly what was meant.
std::string doubtAbout(const Field& field, std::wstring_view text)
{
    if (!isNumeric(field.kind))
        return {};
    const std::wstring_view digits = trimmed(text);
    const bool plain = std::all_of(digits.begin(), digits.end(),
                                   [](wchar_t c) { return isDigit(c) || c == L'-' || c == L'+'; });
    if (!plain)
        return "only the whole number at the start of \"" + toUtf8(text) + "\" is read";
    const std::int32_t number = leadingInteger(text).value_or(0);
    if (field.kind == FieldKind::Byte && (number < 0 || number > 255))
        return toUtf8(text) + " is read as " + (number < 0 ? "0" : "255") + ": the value is a byte";
    return {};
}

} // namespace

std::string memberPath(const std::string& path, std::wstring_view key)
{
    return path.empty() ? toUtf8(key) : path + "." + toUtf8(key);
}

std::string elementPath(const std::string& path, std::size_t index)
{
    return path + "[" + std::to_string(index) + "]";
}

void ValueLint::report(const JsonValue& value, const std::string& path, std::string message,
                       Severity severity)
{
    findings_.push_back({severity, value.offset(), path, std::move(message)});
}

void ValueLint::reportUnknownKey(const JsonMember& member, const std::string& path, const std::string& what,
                                 const std::vector<std::string>& known)
{
    const std::string key = toUtf8(member.key());
    const std::string near = nearest(key, known);
    report(member.name, path,
           "unknown " + what + " \"" + key + "\"" + (near.empty() ? "" : "; did you mean \"" + near + "\"?"));
}

void ValueLint::check(const JsonValue& value, const KeyScope& scope, const std::string& path,
                      std::string_view extraKeys)
{
    if (value.kind() == JsonKind::Object)
        checkMembers(value, scope, path, extraKeys);
    else if (value.kind() != JsonKind::Null)
        checkLeaf(value, scope, path);
}

std::optional<std::wstring_view> ValueLint::checkStyleName(const JsonValue& value, const std::string& path)
{
    if (!value.string())
        report(value, path, "the name of a style is expected here");
    return value.string();
}

void ValueLint::checkLeaf(const JsonValue& value, const KeyScope& scope, const std::string& path)
{
    const std::vector<const Field*> fields = scope.leaves();
    const std::optional<std::wstring> text = textOf(value);
    if (fields.empty() || !text) {
        report(value, path,
               fields.empty() ? "an object is expected here" : "expected " + acceptedByAny(fields));
        return;
    }
    const auto accepting = std::find_if(fields.begin(), fields.end(),
                                        [&](const Field* field) { return acceptsText(*field, *text); });
    if (accepting == fields.end()) {
        const std::string shown = toUtf8(*text);
        const std::string near = nearest(shown, suggestionsFor(fields));
        report(value, path,
               "\"" + shown + "\" is not " + acceptedByAny(fields) +
                   (near.empty() ? "" : "; did you mean \"" + near + "\"?"));
        return;
    }
    const std::string doubt = doubtAbout(**accepting, *text);
    if (!doubt.empty())
        report(value, path, doubt, Severity::Warning);
}

void ValueLint::checkMembers(const JsonValue& value, const KeyScope& scope, const std::string& path,
                             std::string_view extraKeys)
{
    // A part of a record that is a style of its own kind may start from another style.
    for (const JsonMember& member : value.members()) {
        const std::string below = memberPath(path, member.key());
        const KeyScope childScope = scope.below(member.key());
        if (!childScope.empty()) {
            const bool isStyle = std::any_of(
                controlSections().begin(), controlSections().end(), [&](const ControlSection& section) {
                    const auto& tables = childScope.tables();
                    return std::find(tables.begin(), tables.end(), section.fields) != tables.end();
                });
            check(member.value, childScope, below, isStyle ? kInheritanceKeys : std::string_view());
            continue;
        }
        const bool isExtra =
            anyWord(extraKeys, [&](std::string_view key) { return isName(member.key(), key); });
        if (isExtra)
            checkStyleName(member.value, below);
        else
            reportUnknownKey(member, below, "key", scope.keyNames());
    }
}

} // namespace vela::lint
