#include "vela/theme/skins/skin_document.h"

#include "vela/theme/document/json.h"
#include "vela/theme/fields/field_reader.h"
#include "vela/theme/records/spellings.h"

#include <algorithm>
#include <optional>

namespace vela {
namespace {

template <typename Record>
void readObject(const JsonValue& value, Record& record)
{
    SkinMap map;
    map.add({}, value);
    map.sort();
    readRecord(SkinView(map), record);
}

void readTags(const JsonValue& value, std::vector<std::wstring>& tags)
{
    if (value.kind() != JsonKind::Array)
        return;
    tags.clear();
    for (const JsonValue& item : value.items()) {
        if (const std::optional<std::wstring_view> tag = item.string())
            tags.emplace_back(*tag);
    }
}

void readKey(const SkinKey& key, const JsonValue& value, SkinDefinition& skin)
{
    switch (key.kind) {
    case SkinKeyKind::Text:
        if (const std::optional<std::wstring_view> text = value.string())
            skin.*key.text = *text;
        break;
    case SkinKeyKind::SurfaceMode:
        if (const std::optional<std::wstring_view> text = value.string()) {
            skin.surfaceMode = *text;
            skin.theme.surfaceMode = surfaceModeFrom(*text);
        }
        break;
    case SkinKeyKind::Tags: readTags(value, skin.tags); break;
    case SkinKeyKind::Materials: readObject(value, skin.theme.materials); break;
    case SkinKeyKind::Theme: readObject(value, skin.theme); break;
    case SkinKeyKind::Section: skin.sections.add(key.section, value); break;
    }
}

void appendSkin(std::vector<SkinDefinition>& skins, const JsonValue& value)
{
    SkinDefinition skin;
    if (readSkin(value, skin))
        skins.push_back(std::move(skin));
}

std::vector<SkinDefinition> skinsFromArray(const JsonValue& array)
{
    const auto items = array.items().first(std::min(array.items().size(), kMaxSkinsPerArray));
    std::vector<SkinDefinition> skins;
    skins.reserve(items.size());
    for (const JsonValue& item : items)
        appendSkin(skins, item);
    return skins;
}

} // namespace

bool readSkin(const JsonValue& value, SkinDefinition& skin)
{
    if (value.kind() != JsonKind::Object)
        return false;
    for (const SkinKey& key : kSkinKeys) {
        anyWord(key.keys, [&](std::string_view alias) {
            for (const JsonMember& member : value.members()) {
                if (isName(member.key(), alias))
                    readKey(key, member.value, skin);
            }
            return false;
        });
    }
    if (skin.category.empty())
        skin.category = kCustomCategory;
    skin.source = kExternalSource;
    return true;
}

std::vector<SkinDefinition> skinsFromDocument(const JsonValue& root)
{
    if (root.kind() == JsonKind::Array)
        return skinsFromArray(root);
    const JsonValue* const list = root.find(L"skins");
    if (list && list->kind() == JsonKind::Array)
        return skinsFromArray(*list);
    const JsonValue* const single = root.find(L"skin");
    std::vector<SkinDefinition> skins;
    appendSkin(skins, single ? *single : root);
    return skins;
}

} // namespace vela
