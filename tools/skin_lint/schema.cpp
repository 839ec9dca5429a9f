#include "tools/skin_lint/schema.h"

#include "tools/skin_lint/accepted.h"
#include "tools/skin_lint/key_scope.h"
#include "vela/text.h"
#include "vela/theme/checks/derived_variants.h"
#include "vela/theme/records/named_materials.h"
#include "vela/theme/records/spellings.h"
#include "vela/theme/skins/skin_document.h"
#include "vela/theme/skins/style_sections.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <map>

namespace vela::lint {
namespace {

using Json = nlohmann::ordered_json;

// materialLightAngle -> material_light_angle
std::string snakeCase(std::string_view key)
{
    std::string snake;
    for (const char c : key) {
        const char lower = static_cast<char>(lowerAscii(static_cast<wchar_t>(c)));
        if (lower != c)
            snake += '_';
        snake += lower;
    }
    return snake;
}

// Matches every spelling that has the word as its normalised form.
std::string anySpelling(std::string_view word)
{
    std::string pattern;
    for (const char c : word) {
        const bool letter = c >= 'a' && c <= 'z';
        if (!pattern.empty())
            pattern += "[-_\\s]*";
        pattern += letter ? std::string{'[', c, static_cast<char>(c - 'a' + 'A'), ']'} : std::string(1, c);
    }
    return pattern;
}

std::string anySpellingOf(const std::vector<std::string>& words)
{
    std::string pattern;
    for (const std::string& word : words)
        pattern.append(pattern.empty() ? "" : "|").append(anySpelling(word));
    return "^[-_\\s]*(?:" + pattern + ")[-_\\s]*$";
}

Json anyOf(Json::array_t options) { return options.size() == 1 ? options.front() : Json{{"anyOf", options}}; }

Json refTo(const std::string& name) { return {{"$ref", "#/$defs/" + name}}; }

class SchemaWriter {
public:
    Json document()
    {
        Json schema;
        schema["$schema"] = "https://json-schema.org/draft/2020-12/schema";
        schema["title"] = "Skin document";
        const Json skin = addSkin();
        const Json skins = {{"type", "array"}, {"items", skin}};
        const auto wrapping = [](const char* key, const Json& value) {
            return Json{{"type", "object"},
                        {"properties", {{"$schema", {{"type", "string"}}}, {key, value}}},
                        {"required", {key}},
                        {"additionalProperties", false}};
        };
        // Told apart by their keys first, so that a validator's message is about the right one.
        schema["if"] = {{"type", "object"}, {"required", {"skins"}}};
        schema["then"] = wrapping("skins", skins);
        schema["else"] = {{"if", {{"type", "object"}, {"required", {"skin"}}}},
                          {"then", wrapping("skin", skin)},
                          {"else", {{"if", {{"type", "array"}}}, {"then", skins}, {"else", skin}}}};
        schema["$defs"] = defs_;
        return schema;
    }

private:
    // Every definition is made once; the maker may refer to others.
    template <typename Make>
    Json define(const std::string& name, Make&& make)
    {
        if (!defs_.contains(name)) {
            defs_[name] = Json::object(); // holds the name while its parts are made
            Json made = make();
            defs_[name] = std::move(made);
        }
        return refTo(name);
    }

    static std::string slug(std::string_view name)
    {
        std::string text(name);
        std::replace(text.begin(), text.end(), ' ', '-');
        return text;
    }

    Json words(const std::string& name, const std::vector<std::string>& all)
    {
        return define(slug(name), [&all] {
            return Json{{"anyOf", {{{"enum", all}}, {{"type", "string"}, {"pattern", anySpellingOf(all)}}}}};
        });
    }

    Json vocabulary(const Vocabulary& vocabulary)
    {
        return words(std::string(vocabulary.name), wordsOf(vocabulary));
    }

    Json material()
    {
        std::vector<std::string> all = wordsOf(kMaterialPresetWords);
        for (const NamedMaterial& substance : namedMaterials())
            all.push_back(toUtf8(substance.name));
        return words("material or substance", all);
    }

    Json number(const std::string& name, Json bounds)
    {
        return define(name, [&bounds] {
            bounds["type"] = "integer";
            return Json{{"anyOf", {bounds, {{"type", "string"}, {"pattern", "^\\s*[-+]?\\d+\\s*$"}}}}};
        });
    }

    Json color()
    {
        return define("color", [] {
            return Json{
                {"anyOf",
                 {{{"type", "string"}, {"pattern", "^#?[0-9a-fA-F]{6}$"}},
                  {{"type", "string"}, {"pattern", "^\\s*[-+]?\\d+\\s*(,\\s*[-+]?\\d+\\s*){2}$"}},
                  {{"type", "array"}, {"items", {{"type", "integer"}}}, {"minItems", 3}, {"maxItems", 3}}}}};
        });
    }

    Json boolean()
    {
        return define("boolean", [this] {
            return anyOf({{{"type", "boolean"}}, vocabulary(kBooleanWords)});
        });
    }

    Json leaf(const Field& field)
    {
        Json text = {{"type", "string"}};
        switch (field.kind) {
        case FieldKind::ColorValue: return color();
        case FieldKind::Given: return field.detail ? boolean() : color();
        case FieldKind::Byte: return number("byte", {{"minimum", 0}, {"maximum", 255}});
        case FieldKind::Length:
        case FieldKind::Integer: return number("integer", Json::object());
        case FieldKind::Unsigned: return number("unsigned", {{"minimum", 0}, {"maximum", 4294967295U}});
        case FieldKind::Boolean: return boolean();
        case FieldKind::Weight:
            return anyOf({number("weight-number", {{"minimum", kMinFontWeight}, {"maximum", kMaxFontWeight}}),
                          vocabulary(kWeightWords)});
        case FieldKind::Role: return vocabulary(kPaletteRoleWords);
        case FieldKind::Colors: return anyOf({text, {{"type", "array"}, {"items", text}}});
        case FieldKind::InsetSides:
            return anyOf(
                {{{"type", "string"}, {"pattern", "^\\s*[-+]?\\d+\\s*(,\\s*[-+]?\\d+\\s*){3}$"}},
                 {{"type", "array"}, {"items", {{"type", "integer"}}}, {"minItems", 4}, {"maxItems", 4}}});
        case FieldKind::SurfaceMaterial:
        case FieldKind::ProfileMaterial:
        case FieldKind::ProfilePreset: return material();
        case FieldKind::SurfaceAlphaShape:
            return anyOf({vocabulary(vocabularyOf(field)), {{"type", "boolean"}}});
        case FieldKind::Word:
            if (parseWord(vocabularyOf(field), L"true"))
                return anyOf({{{"type", "boolean"}}, vocabulary(vocabularyOf(field))});
            return vocabulary(vocabularyOf(field));
        default: return text;
        }
    }

    static bool isStyle(const KeyScope& scope)
    {
        const auto& tables = scope.tables();
        return std::any_of(controlSections().begin(), controlSections().end(), [&](const auto& section) {
            return std::find(tables.begin(), tables.end(), section.fields) != tables.end();
        });
    }

    Json value(const KeyScope& scope)
    {
        Json::array_t options;
        for (const Field* field : scope.leaves()) {
            Json option = leaf(*field);
            if (std::find(options.begin(), options.end(), option) == options.end())
                options.push_back(std::move(option));
        }
        if (!scope.keyNames().empty())
            options.push_back(object(scope));
        return anyOf(std::move(options));
    }

    // Scopes with the same keys share a definition, named after their first table.
    Json object(const KeyScope& scope)
    {
        const std::vector<std::string> keys = scope.keyNames();
        std::string signature = scope.tables().empty() ? "part" : std::string(scope.tables().front()->name);
        const std::string base = slug(signature);
        for (const std::string& key : keys)
            signature += " " + key;
        const auto known = names_.find(signature);
        if (known != names_.end())
            return refTo(known->second);
        std::string name = base;
        for (int i = 2; defs_.contains(name); ++i)
            name = base + "-" + std::to_string(i);
        names_[signature] = name;
        return define(name, [&] {
            Json properties = fieldProperties(scope);
            if (isStyle(scope))
                addInheritance(properties);
            return closed(std::move(properties));
        });
    }

    static Json closed(Json properties)
    {
        return {{"type", "object"}, {"properties", std::move(properties)}, {"additionalProperties", false}};
    }

    Json fieldProperties(const KeyScope& scope)
    {
        Json properties = Json::object();
        for (const std::string& key : scope.keyNames()) {
            const Json schema = value(scope.below(std::wstring(key.begin(), key.end())));
            properties[key] = schema;
            properties[snakeCase(key)] = schema;
        }
        return properties;
    }

    static void addInheritance(Json& properties)
    {
        anyWord(kInheritanceKeys, [&properties](std::string_view key) {
            properties[std::string(key)] = {{"type", "string"}};
            return false;
        });
    }

    // Fields for all variants, the variants, and in the section of variants any further name.
    Json block(const ControlSection& section, KeyStyle keys, bool open)
    {
        const std::string kind(section.names.substr(0, section.names.find(' ')));
        const char* const place = open ? "-variants" : keys == KeyStyle::Full ? "-styles" : "-shapes";
        return define(kind + place, [&] {
            const KeyScope scope(*section.fields, keys);
            const Json style = value(scope);
            Json properties = fieldProperties(scope);
            addInheritance(properties);
            for (const std::wstring_view variant : derivedVariants(section.kind)) {
                const std::string name = toUtf8(variant);
                if (!properties.contains(name))
                    properties[name] = style;
                std::string underscored = name;
                std::replace(underscored.begin(), underscored.end(), '-', '_');
                if (!properties.contains(underscored))
                    properties[underscored] = style;
            }
            Json object = closed(std::move(properties));
            if (open)
                object["additionalProperties"] = style;
            Json::array_t options{object};
            for (const Field* field : scope.leaves())
                options.push_back(leaf(*field));
            return anyOf(std::move(options));
        });
    }

    Json section(std::wstring_view path)
    {
        return define(toUtf8(path), [&] {
            const KeyStyle keys = path == kShapesSection ? KeyStyle::ShapeImplied : KeyStyle::Full;
            Json properties = Json::object();
            Json patterns = Json::object();
            for (const ControlSection& kind : controlSections()) {
                const Json schema = block(kind, keys, path == kVariantsSection);
                std::vector<std::string> names;
                anyWord(kind.names, [&](std::string_view name) {
                    properties[std::string(name)] = schema;
                    names.emplace_back(name);
                    return false;
                });
                patterns[anySpellingOf(names)] = schema;
            }
            Json object = closed(std::move(properties));
            object["patternProperties"] = std::move(patterns);
            return object;
        });
    }

    Json skinMember(const SkinKey& key)
    {
        Json text = {{"type", "string"}};
        switch (key.kind) {
        case SkinKeyKind::Text: return text;
        case SkinKeyKind::SurfaceMode: return vocabulary(kSurfaceModeWords);
        case SkinKeyKind::Tags: return {{"type", "array"}, {"items", text}};
        case SkinKeyKind::Materials: return object(KeyScope(Fields<MaterialProfile>::kTable, KeyStyle::Full));
        case SkinKeyKind::Theme: return object(KeyScope(Fields<Theme>::kTable, KeyStyle::Full));
        case SkinKeyKind::Section: return section(key.section);
        }
        return {};
    }

    Json addSkin()
    {
        return define("skin", [this] {
            Json properties = {{"$schema", {{"type", "string"}}}};
            for (const SkinKey& key : kSkinKeys) {
                anyWord(key.keys, [&](std::string_view alias) {
                    const Json schema = skinMember(key);
                    properties[std::string(alias)] = schema;
                    properties[snakeCase(alias)] = schema;
                    return false;
                });
            }
            Json skin = closed(std::move(properties));
            skin["required"] = {"id"};
            return skin;
        });
    }

    Json defs_ = Json::object();
    std::map<std::string, std::string> names_;
};

} // namespace

// A line for each definition: small enough to be kept, and a change of one shows as one.
std::string skinSchema()
{
    Json schema = SchemaWriter().document();
    const Json definitions = schema["$defs"];
    schema.erase("$defs");
    std::string text = schema.dump();
    text.back() = ','; // the object goes on
    text += "\n\"$defs\":{\n";
    for (const auto& [name, definition] : definitions.items())
        text += Json(name).dump() + ":" + definition.dump() + ",\n";
    text.resize(text.size() - 2);
    return text + "\n}}\n";
}

} // namespace vela::lint
