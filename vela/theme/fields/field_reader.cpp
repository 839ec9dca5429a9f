#include "vela/theme/fields/field_reader.h"

#include "vela/text.h"
#include "vela/theme/records/named_materials.h"
#include "vela/theme/records/values.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>

namespace vela {
namespace {

template <typename T>
T& memberAt(void* record, std::size_t offset) noexcept
{
    return *reinterpret_cast<T*>(static_cast<std::byte*>(record) + offset);
}

template <typename T, typename Source>
bool assign(void* place, const std::optional<Source>& value)
{
    if (value)
        *static_cast<T*>(place) = static_cast<T>(*value);
    return value.has_value();
}

// A material by name, named materials before presets. Tells whether the text named one.
template <typename ApplyNamed, typename ApplyPreset>
bool readMaterial(std::wstring_view text, ApplyNamed&& applyNamed, ApplyPreset&& applyPreset)
{
    if (const NamedMaterial* const material = findNamedMaterial(normalizedName(text))) {
        applyNamed(*material);
        return true;
    }
    const std::optional<MaterialPreset> preset = parseWord<MaterialPreset>(text);
    if (preset)
        applyPreset(*preset);
    return preset.has_value();
}

bool readSurfaceMaterial(std::wstring_view text, SurfaceStyle& surface)
{
    return readMaterial(
        text, [&](const NamedMaterial& material) { applyNamedMaterial(material, surface); },
        [&](MaterialPreset preset) {
            surface.material = preset;
            surface.materialEnabled |= switchesMaterialOn(preset);
        });
}

bool readProfileMaterial(std::wstring_view text, MaterialProfile& profile)
{
    return readMaterial(
        text,
        [&](const NamedMaterial& material) {
            applyNamedMaterial(material, profile);
            profile.enabled |= material.enabled();
        },
        [&](MaterialPreset preset) {
            profile.surface = preset;
            profile.enabled |= switchesMaterialOn(preset);
        });
}

// A named material's tint and shading belong to the main surfaces; elsewhere its name stands for its preset.
bool readProfilePreset(std::wstring_view text, MaterialPreset& place, MaterialProfile& profile)
{
    const auto choose = [&](MaterialPreset preset, bool enables) {
        place = preset;
        profile.enabled |= enables;
    };
    return readMaterial(
        text, [&](const NamedMaterial& material) { choose(material.preset, material.enabled()); },
        [&](MaterialPreset preset) { choose(preset, switchesMaterialOn(preset)); });
}

// "shape": "bitmapalphashape", or the same word as a switch of its own.
bool readAlphaShape(std::wstring_view text, SurfaceStyle& surface)
{
    std::optional<AlphaHitMode> mode = parseWord<AlphaHitMode>(text);
    if (const std::optional<bool> isOn = parseBoolean(text))
        mode = *isOn ? AlphaHitMode::AlphaLayout : AlphaHitMode::ShapeFallback;
    if (mode && (surface.geometry || *mode != SurfaceGeometry{}.mode))
        surface.geometry.ensure().mode = *mode;
    return mode.has_value();
}

// A bitmap that was not there before replaces the fill, unless the skin itself has said what is to be filled.
void setImage(SurfaceStyle& surface, BitmapSkin image)
{
    const bool isNew = !image.path.empty() && (!surface.image || surface.image->path.empty());
    if (isNew && !surface.fillGiven)
        surface.drawFill = false;
    surface.image = std::move(image);
}

// The key with the state in place of its "*".
std::wstring keyOfState(std::string_view pattern, std::string_view state)
{
    const std::size_t star = pattern.find('*');
    std::wstring key;
    for (const std::string_view part : {pattern.substr(0, star), state, pattern.substr(star + 1)})
        key.append(part.begin(), part.end());
    return key;
}

// Finds what stands under each key of a field.
class KeyWalk {
public:
    KeyWalk(const SkinView& view, KeyStyle style) : view_(view), initials_(view.initials()), style_(style) {}

    // Calls visit with a view and with the state that the key names, until it returns true.
    template <typename Visit>
    void eachKey(const Field& field, Visit&& visit) const
    {
        anyWord(field.keys, [&](std::string_view key) {
            if (key == ".")
                return visit(view_, kAllStates);
            if (key.find('*') != std::string_view::npos)
                return eachState(key, visit);
            if (style_ == KeyStyle::ShapeImplied && holdsShape(field) && visitImplied(key, visit))
                return true;
            return mayHold(key) && visit(view_.at(key), kAllStates);
        });
    }

    static constexpr int kAllStates = -1;

private:
    // Most keys of a record are absent; their first letter tells so without a search.
    bool mayHold(wchar_t first) const noexcept { return (initials_ & SkinView::initialOf(first)) != 0; }
    bool mayHold(std::string_view key) const noexcept { return mayHold(static_cast<wchar_t>(key.front())); }

    // "trackShape" may be written "track"; "shape" alone may be the text of the record itself.
    template <typename Visit>
    bool visitImplied(std::string_view key, Visit& visit) const
    {
        if (key == "shape")
            return visit(view_, kAllStates);
        const std::string_view part = withoutShapeSuffix(key);
        return !part.empty() && mayHold(part) && visit(view_.at(part), kAllStates);
    }

    template <typename Visit>
    bool eachState(std::string_view pattern, Visit& visit) const
    {
        for (const Spellings& row : kVisualStateWords.rows) {
            const bool done = anyWord(row.words, [&](std::string_view word) {
                const std::wstring key = keyOfState(pattern, word);
                return mayHold(key.front()) && visit(view_.at(std::wstring_view(key)), int{row.value});
            });
            if (done)
                return true;
        }
        return false;
    }

    const SkinView& view_;
    std::uint32_t initials_;
    KeyStyle style_;
};

void shapeSurface(const Field& field, void* record, ShapeKind shape) noexcept
{
    auto* const surfaces = &memberAt<SurfaceStyle>(record, field.offset);
    const int count = field.kind == FieldKind::States ? kVisualStateCount : 1;
    for (int i = 0; i < count; ++i)
        surfaces[i].shape = shape;
}

class RecordReader {
public:
    RecordReader(const SkinView& view, const FieldTable& table, void* record, KeyStyle keys)
        : keys_(view, keys), table_(table), record_(record), style_(keys)
    {
    }

    void read()
    {
        for (const Field& field : table_.fields) {
            keys_.eachKey(field, [&](const SkinView& found, int state) {
                if (!found.empty())
                    readField(field, found, state);
                return field.rule == KeyRule::FirstWins && !found.empty();
            });
        }
    }

private:
    void readField(const Field& field, const SkinView& found, int state)
    {
        void* const place = &memberAt<std::byte>(record_, field.offset);
        switch (field.kind) {
        case FieldKind::Record: readRecord(found, tableOf(field), place, style_); break;
        case FieldKind::States: readStates(field, found, state); break;
        case FieldKind::Geometry:
            readGeometry(field, found, *static_cast<Boxed<SurfaceGeometry>*>(place));
            break;
        case FieldKind::SurfaceImage: readImage(field, found, *static_cast<SurfaceStyle*>(place)); break;
        case FieldKind::InsetSides:
            readTexts(field, found, place);
            readRecord(found, tableOf(field), place);
            break;
        default: readTexts(field, found, place); break;
        }
    }

    void readTexts(const Field& field, const SkinView& found, void* place)
    {
        bool changed = false;
        for (std::size_t i = 0; i < found.textCount(); ++i)
            changed |= readText(field, found.text(i), record_, place);
        if (!changed || !holdsShape(field))
            return;
        for (const Field& surface : table_.fields) {
            if (surface.shapedBy == field.offset)
                shapeSurface(surface, record_, *static_cast<ShapeKind*>(place));
        }
    }

    void readStates(const Field& field, const SkinView& found, int state)
    {
        const FieldTable& table = tableOf(field);
        for (int i = 0; i < kVisualStateCount; ++i) {
            if (state == KeyWalk::kAllStates || state == i)
                readRecord(found, table,
                           &memberAt<std::byte>(record_, field.offset +
                                                             static_cast<std::size_t>(i) * table.recordSize),
                           style_);
        }
    }

    void readGeometry(const Field& field, const SkinView& found, Boxed<SurfaceGeometry>& geometry)
    {
        SurfaceGeometry read = geometry ? *geometry : SurfaceGeometry{};
        readRecord(found, tableOf(field), &read);
        if (geometry || read != SurfaceGeometry{})
            geometry = std::move(read);
    }

    void readImage(const Field& field, const SkinView& found, SurfaceStyle& surface)
    {
        BitmapSkin read = surface.image ? *surface.image : BitmapSkin{};
        readRecord(found, tableOf(field), &read);
        if (surface.image || read != BitmapSkin{})
            setImage(surface, std::move(read));
    }

    KeyWalk keys_;
    const FieldTable& table_;
    void* record_;
    KeyStyle style_;
};

// Whether the name is the first segment of the key, whose "*" stands for each state.
bool startsKey(std::string_view key, std::wstring_view name)
{
    const std::string_view segment = key.substr(0, key.find('.'));
    if (segment.find('*') == std::string_view::npos)
        return isName(name, segment);
    for (const Spellings& row : kVisualStateWords.rows) {
        const bool found = anyWord(
            row.words, [&](std::string_view word) { return sameName(name, keyOfState(segment, word)); });
        if (found)
            return true;
    }
    return false;
}

} // namespace

bool readText(const Field& field, std::wstring_view text, void* record, void* place)
{
    switch (field.kind) {
    case FieldKind::ColorValue: return assign<Color>(place, parseColor(text));
    case FieldKind::Given: {
        const bool given = field.detail ? parseBoolean(text).has_value() : parseColor(text).has_value();
        *static_cast<bool*>(place) |= given;
        return given;
    }
    case FieldKind::Byte: return assign<std::uint8_t>(place, parseByte(text));
    case FieldKind::Length:
    case FieldKind::Integer: return assign<std::int32_t>(place, leadingInteger(text));
    case FieldKind::Unsigned: return assign<std::uint32_t>(place, leadingUnsigned(text));
    case FieldKind::Boolean: return assign<bool>(place, parseBoolean(text));
    case FieldKind::Weight: return assign<std::int32_t>(place, parseWeight(text));
    case FieldKind::Text: return assign<std::wstring>(place, std::optional(text));
    case FieldKind::Word: return assign<std::uint8_t>(place, parseWord(vocabularyOf(field), text));
    case FieldKind::Role: return assign<std::optional<PaletteRole>>(place, parseWord<PaletteRole>(text));
    case FieldKind::Colors: return assign<std::vector<ThemeColor>>(place, parseThemeColors(text));
    case FieldKind::InsetSides: return assign<Insets>(place, parseInsets(text));
    case FieldKind::SurfaceMaterial: return readSurfaceMaterial(text, *static_cast<SurfaceStyle*>(place));
    case FieldKind::SurfaceAlphaShape: return readAlphaShape(text, *static_cast<SurfaceStyle*>(place));
    case FieldKind::ProfileMaterial: return readProfileMaterial(text, *static_cast<MaterialProfile*>(place));
    case FieldKind::ProfilePreset:
        return readProfilePreset(text, *static_cast<MaterialPreset*>(place),
                                 *static_cast<MaterialProfile*>(record));
    case FieldKind::SurfaceImagePath: {
        auto& surface = *static_cast<SurfaceStyle*>(place);
        BitmapSkin image = surface.image ? *surface.image : BitmapSkin{};
        image.path = text;
        setImage(surface, std::move(image));
        return true;
    }
    case FieldKind::Record:
    case FieldKind::States:
    case FieldKind::Geometry:
    case FieldKind::SurfaceImage: return false;
    }
    return false;
}

std::string_view withoutShapeSuffix(std::string_view key) noexcept
{
    constexpr std::string_view kSuffix = "Shape";
    return key.ends_with(kSuffix) ? key.substr(0, key.size() - kSuffix.size()) : std::string_view();
}

void readRecord(const SkinView& view, const FieldTable& table, void* record, KeyStyle keys)
{
    if (!view.empty())
        RecordReader(view, table, record, keys).read();
}

bool isFieldKey(const FieldTable& table, std::wstring_view key, KeyStyle keys)
{
    for (const Field& field : table.fields) {
        const bool found = anyWord(field.keys, [&](std::string_view alias) {
            if (alias == ".")
                return field.kind == FieldKind::Record && isFieldKey(tableOf(field), key, keys);
            if (startsKey(alias, key))
                return true;
            const std::string_view part = withoutShapeSuffix(alias);
            return keys == KeyStyle::ShapeImplied && holdsShape(field) && !part.empty() && isName(key, part);
        });
        if (found)
            return true;
    }
    return false;
}

void spreadShapes(const FieldTable& table, void* record) noexcept
{
    for (const Field& field : table.fields) {
        if (field.shapedBy != kUnshaped)
            shapeSurface(field, record, memberAt<ShapeKind>(record, field.shapedBy));
        else if (field.kind == FieldKind::Record)
            spreadShapes(tableOf(field), &memberAt<std::byte>(record, field.offset));
    }
}

} // namespace vela
