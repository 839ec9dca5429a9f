// How the tables of fields.h are written down. For the source files that hold those tables only.
#pragma once

#include "vela/theme/fields/fields.h"

#include <optional>
#include <string>
#include <type_traits>
#include <vector>

// Offsets, not accessor functions: one small function per field would make the program for Windows larger by
// 300 bytes a field. Records with bases are no standard-layout types, for which offsetof is only
// conditionally supported; the compilers that build this one support it and warn.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"

namespace vela {

template <typename T>
inline constexpr bool kIsPerState = false;
template <typename T>
inline constexpr bool kIsPerState<PerState<T>> = true;

template <typename T>
constexpr FieldKind kindOf() noexcept
{
    if constexpr (std::is_same_v<T, bool>)
        return FieldKind::Boolean;
    else if constexpr (std::is_same_v<T, Color>)
        return FieldKind::ColorValue;
    else if constexpr (std::is_same_v<T, std::uint8_t>)
        return FieldKind::Byte;
    else if constexpr (std::is_same_v<T, std::int32_t>)
        return FieldKind::Length;
    else if constexpr (std::is_same_v<T, std::wstring>)
        return FieldKind::Text;
    else if constexpr (std::is_same_v<T, std::optional<PaletteRole>>)
        return FieldKind::Role;
    else if constexpr (std::is_same_v<T, std::vector<ThemeColor>>)
        return FieldKind::Colors;
    else if constexpr (std::is_same_v<T, Insets>)
        return FieldKind::InsetSides;
    else if constexpr (std::is_same_v<T, Boxed<SurfaceGeometry>>)
        return FieldKind::Geometry;
    else if constexpr (kIsPerState<T>)
        return FieldKind::States;
    else if constexpr (std::is_enum_v<T>)
        return FieldKind::Word;
    else
        return FieldKind::Record;
}

template <typename T>
constexpr const void* detailOf() noexcept
{
    constexpr FieldKind kKind = kindOf<T>();
    if constexpr (kKind == FieldKind::Word)
        return kVocabularyOf<T>;
    else if constexpr (kKind == FieldKind::Role)
        return &kPaletteRoleWords;
    else if constexpr (kKind == FieldKind::Boolean)
        return &kBooleanWords;
    else if constexpr (kKind == FieldKind::States)
        return &Fields<decltype(T::normal)>::kTable;
    else if constexpr (kKind == FieldKind::Geometry)
        return &Fields<SurfaceGeometry>::kTable;
    else if constexpr (kKind == FieldKind::Record || kKind == FieldKind::InsetSides)
        return &Fields<T>::kTable;
    else
        return nullptr;
}

// What a member's type does not tell can be said explicitly.
template <typename T>
constexpr Field makeField(std::size_t offset, const char* keys, FieldKind kind = kindOf<T>(),
                          const void* detail = detailOf<T>(), KeyRule rule = KeyRule::LaterWins) noexcept
{
    return {keys, detail, static_cast<std::uint16_t>(offset), kUnshaped, kind, rule};
}

template <typename T>
constexpr Field makeShaped(std::size_t offset, std::size_t shapeOffset, const char* keys) noexcept
{
    Field field = makeField<T>(offset, keys);
    field.shapedBy = static_cast<std::uint16_t>(shapeOffset);
    return field;
}

} // namespace vela

// Rows of a struct in which Record names the record that is described. A member may lie within a member.
#define VELA_FIELD(member, ...)                                                                              \
    ::vela::makeField<decltype(Record::member)>(offsetof(Record, member), __VA_ARGS__)
// A surface that is drawn in the shape kept in another member.
#define VELA_SHAPED(member, shape, keys)                                                                     \
    ::vela::makeShaped<decltype(Record::member)>(offsetof(Record, member), offsetof(Record, shape), keys)
// The fields of a base class; any member of the base tells where it lies.
#define VELA_BASE(Base, member)                                                                              \
    ::vela::makeField<Base>(offsetof(Record, member) - offsetof(Base, member), ".")
// A field that is read into the record as a whole.
#define VELA_WHOLE(...) ::vela::makeField<Record>(0, __VA_ARGS__)
// The table itself.
#define VELA_FIELD_TABLE(Rows, name)                                                                         \
    template <>                                                                                              \
    const FieldTable Fields<Rows::Record>::kTable = {name, Rows::kRows, sizeof(Rows::Record)}
