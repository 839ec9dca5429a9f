// Walks the field tables of all records: what they accept, and that every key reaches its own member.
#include "vela/theme/fields/fields.h"

#include "tests/support/skin_text.h"
#include "vela/theme/fields/field_reader.h"
#include "vela/theme/fields/record_copy.h"
#include "vela/theme/skins/style_sections.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace vela {
namespace {

// Every spelling of a key: a "*" stands for each state.
std::vector<std::string> aliasesOf(const Field& field)
{
    std::vector<std::string> aliases;
    anyWord(field.keys, [&](std::string_view key) {
        const std::size_t star = key.find('*');
        if (star == std::string_view::npos) {
            aliases.emplace_back(key);
            return false;
        }
        for (const Spellings& state : kVisualStateWords.rows) {
            anyWord(state.words, [&](std::string_view word) {
                aliases.push_back(std::string(key).replace(star, 1, word));
                return false;
            });
        }
        return false;
    });
    return aliases;
}

bool holdsRecord(const Field& field)
{
    return field.kind == FieldKind::Record || field.kind == FieldKind::States ||
           field.kind == FieldKind::Geometry || field.kind == FieldKind::SurfaceImage;
}

struct Leaf {
    std::string path;
    const Field* field;
    std::vector<std::size_t> offsets; // of the leaf in the outermost record
};

std::vector<std::size_t> statesOf(const Field& field, const std::string& alias)
{
    std::vector<std::size_t> offsets;
    for (const Spellings& state : kVisualStateWords.rows) {
        const bool isNamed = anyWord(state.words, [&](std::string_view word) {
            std::string key(field.keys);
            return key.find('*') != std::string::npos &&
                   (alias.starts_with(word) || alias.ends_with(word) ||
                    alias.find("." + std::string(word)) != std::string::npos);
        });
        if (isNamed)
            return {state.value * tableOf(field).recordSize};
        offsets.push_back(state.value * tableOf(field).recordSize);
    }
    return offsets;
}

// The leaves of a table under every key; of a record within the record only one that is no shape, since its
// own table is walked as well.
std::vector<Leaf> leavesOf(const FieldTable& table, bool isWhole = true)
{
    std::vector<Leaf> leaves;
    for (const Field& field : table.fields) {
        for (const std::string& alias : aliasesOf(field)) {
            if (field.kind == FieldKind::Geometry || field.kind == FieldKind::SurfaceImage)
                continue; // boxed: tested by hand
            if (!holdsRecord(field)) {
                if (alias != ".")
                    leaves.push_back({alias, &field, {field.offset}});
                continue;
            }
            const bool isBase = alias == ".";
            for (Leaf leaf : leavesOf(tableOf(field), isBase && isWhole)) {
                leaf.path = isBase ? leaf.path : alias + "." + leaf.path;
                std::vector<std::size_t> offsets;
                const auto starts =
                    field.kind == FieldKind::States ? statesOf(field, alias) : std::vector<std::size_t>{0};
                for (const std::size_t start : starts)
                    offsets.push_back(field.offset + start + leaf.offsets.front());
                leaf.offsets = std::move(offsets);
                leaves.push_back(std::move(leaf));
            }
        }
        if (!isWhole && !leaves.empty() && !holdsShape(field))
            return {leaves.back()};
    }
    return leaves;
}

struct Sample {
    const char* text;
    std::size_t size; // of the member, for those that are plain bytes
};

Sample sampleFor(FieldKind kind)
{
    switch (kind) {
    case FieldKind::ColorValue: return {"#123456", sizeof(Color)};
    case FieldKind::Byte: return {"201", 1};
    case FieldKind::Length:
    case FieldKind::Integer: return {"-4321", sizeof(std::int32_t)};
    case FieldKind::Unsigned: return {"4000000000", sizeof(std::uint32_t)};
    case FieldKind::Weight: return {"heavy", sizeof(std::int32_t)};
    case FieldKind::InsetSides: return {"91,92,93,94", sizeof(Insets)};
    default: return {"", 0};
    }
}

// A value that the member does not hold yet.
std::string sampleText(const Leaf& leaf, const std::byte* member)
{
    const Field& field = *leaf.field;
    if (field.kind == FieldKind::Boolean)
        return std::to_integer<int>(*member) ? "off" : "yes";
    if (field.kind == FieldKind::Word) {
        const auto& rows = vocabularyOf(field).rows;
        const Spellings& row =
            rows.back().value == std::to_integer<int>(*member) ? rows.front() : rows.back();
        return std::string(row.words.substr(0, row.words.find(' ')));
    }
    return sampleFor(field.kind).text;
}

std::size_t memberSize(const Field& field)
{
    switch (field.kind) {
    case FieldKind::Boolean:
    case FieldKind::Given:
    case FieldKind::Word: return 1;
    default: return sampleFor(field.kind).size;
    }
}

// Places that a key writes beside the member it was taken from: other rows of the same key, and the surfaces
// that a shape is spread to.
void restore(const FieldTable& table, const Leaf& leaf, std::byte* record, const std::byte* original)
{
    const auto restorePlace = [&](std::size_t offset, std::size_t size) {
        std::memcpy(record + offset, original + offset, size);
    };
    for (const std::size_t offset : leaf.offsets)
        restorePlace(offset, memberSize(*leaf.field));
    for (const Leaf& other : leavesOf(table)) {
        if (other.path == leaf.path && memberSize(*other.field) > 0) {
            for (const std::size_t offset : other.offsets)
                restorePlace(offset, memberSize(*other.field));
        }
    }
    if (!holdsShape(*leaf.field))
        return;
    for (const Field& surface : table.fields) {
        if (surface.shapedBy == kUnshaped)
            continue;
        const int count = surface.kind == FieldKind::States ? kVisualStateCount : 1;
        for (int i = 0; i < count; ++i) {
            auto* const place = reinterpret_cast<SurfaceStyle*>(record + surface.offset) + i;
            place->shape = reinterpret_cast<const SurfaceStyle*>(original + surface.offset)[i].shape;
        }
    }
}

SkinMap settingOf(const std::string& path, const std::string& text)
{
    SkinMap map;
    map.addText(widened(path), widened(text));
    map.sort();
    return map;
}

template <typename Record>
void expectKeysReachTheirMembers()
{
    const FieldTable& table = Fields<Record>::kTable;
    const Record original{};
    const auto* const originalBytes = reinterpret_cast<const std::byte*>(&original);
    std::size_t tested = 0;
    for (const Leaf& leaf : leavesOf(table)) {
        if (memberSize(*leaf.field) == 0 || leaf.field->kind == FieldKind::Given)
            continue;
        Record record;
        auto* const bytes = reinterpret_cast<std::byte*>(&record);
        const std::string text = sampleText(leaf, originalBytes + leaf.offsets.front());
        readRecord(SkinView(settingOf(leaf.path, text)), record);
        for (const std::size_t offset : leaf.offsets)
            EXPECT_NE(std::memcmp(bytes + offset, originalBytes + offset, memberSize(*leaf.field)), 0)
                << table.name << " ignores " << leaf.path;
        restore(table, leaf, bytes, originalBytes);
        EXPECT_TRUE(record == original) << leaf.path << " of " << table.name << " changes another member";
        readRecord(SkinView(settingOf(leaf.path, "?")), record);
        EXPECT_TRUE(record == original) << leaf.path << " of " << table.name << " reads nonsense";
        ++tested;
    }
    EXPECT_GT(tested, 0U) << table.name;
}

// Every key of a record set at once.
template <typename Record>
Record changedRecord()
{
    const Record original{};
    SkinMap map;
    for (const Leaf& leaf : leavesOf(Fields<Record>::kTable)) {
        const auto* const member = reinterpret_cast<const std::byte*>(&original) + leaf.offsets.front();
        map.addText(widened(leaf.path), widened(memberSize(*leaf.field) ? sampleText(leaf, member) : "x"));
    }
    map.sort();
    Record record;
    readRecord(SkinView(map), record);
    return record;
}

template <typename Record>
void expectCopiesToBeEqual()
{
    const Record changed = changedRecord<Record>();
    Record copy;
    EXPECT_FALSE(copy == changed);
    copyRecord(Fields<Record>::kTable, &changed, &copy);
    EXPECT_TRUE(copy == changed) << Fields<Record>::kTable.name;
}

template <typename... Record>
void expectAllKeysReachTheirMembers(std::tuple<VariantTable<Record>...>*)
{
    (expectKeysReachTheirMembers<Record>(), ...);
}

template <typename... Record>
void expectAllCopiesToBeEqual(std::tuple<VariantTable<Record>...>*)
{
    (expectCopiesToBeEqual<Record>(), ...);
}

TEST(Fields, EveryKeyOfEveryRecordReachesItsOwnMemberAlone)
{
    expectAllKeysReachTheirMembers(static_cast<StyleSheet::Tables*>(nullptr));
    expectKeysReachTheirMembers<Insets>();
    expectKeysReachTheirMembers<SurfaceStyle>();
    expectKeysReachTheirMembers<SurfaceGeometry>();
    expectKeysReachTheirMembers<BitmapTint>();
    expectKeysReachTheirMembers<ScrollAcceleration>();
    expectKeysReachTheirMembers<MaterialProfile>();
    expectKeysReachTheirMembers<Theme>();
}

TEST(Fields, CopyingByTheTablesCopiesEveryMember)
{
    expectAllCopiesToBeEqual(static_cast<StyleSheet::Tables*>(nullptr));
}

} // namespace
} // namespace vela
