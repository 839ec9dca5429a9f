#include "tools/skin_lint/key_scope.h"

#include "vela/theme/records/spellings.h"

#include <algorithm>

namespace vela::lint {
namespace {

// The key with its "*" replaced by each word for a state; a key without one as it is.
template <typename Visit>
void eachSpelledOut(std::string_view key, Visit&& visit)
{
    const std::size_t star = key.find('*');
    if (star == std::string_view::npos)
        return visit(key);
    for (const Spellings& row : kVisualStateWords.rows) {
        anyWord(row.words, [&](std::string_view word) {
            // Inside a camelCase key a state's word begins with a capital.
            std::string state(word);
            if (star > 0 && key[star - 1] != '.')
                state.front() = static_cast<char>(state.front() - 'a' + 'A');
            visit(std::string(key).replace(star, 1, state));
            return false;
        });
    }
}

std::string_view firstSegment(std::string_view key) noexcept { return key.substr(0, key.find('.')); }

std::string_view withoutFirstSegment(std::string_view key) noexcept
{
    const std::size_t dot = key.find('.');
    return dot == std::string_view::npos ? std::string_view() : key.substr(dot + 1);
}

} // namespace

bool isLeaf(FieldKind kind) noexcept
{
    switch (kind) {
    case FieldKind::Record:
    case FieldKind::States:
    case FieldKind::Geometry:
    case FieldKind::SurfaceImage: return false;
    default: return true;
    }
}

void KeyScope::add(const Field& field, std::string_view rest, KeyStyle keys)
{
    if (!rest.empty()) {
        candidates_.push_back({&field, std::string(rest), keys});
        return;
    }
    candidates_.push_back({&field, {}, keys});
    // Insets are a text or an object of sides.
    if (!isLeaf(field.kind) || field.kind == FieldKind::InsetSides)
        addTable(tableOf(field), keys);
}

void KeyScope::addTable(const FieldTable& table, KeyStyle keys)
{
    if (std::find(tables_.begin(), tables_.end(), &table) != tables_.end())
        return;
    tables_.push_back(&table);
    for (const Field& field : table.fields) {
        anyWord(field.keys, [&](std::string_view key) {
            eachSpelledOut(key, [&](std::string_view spelled) { addKey(field, spelled, keys); });
            return false;
        });
    }
}

void KeyScope::addKey(const Field& field, std::string_view key, KeyStyle keys)
{
    if (key == ".")
        return add(field, {}, keys);
    add(field, key, keys);
    if (keys != KeyStyle::ShapeImplied || !holdsShape(field))
        return;
    // In a section of shapes "shape" may be left out of a key.
    if (key == "shape")
        add(field, {}, keys);
    else if (const std::string_view part = withoutShapeSuffix(key); !part.empty())
        add(field, part, keys);
}

KeyScope KeyScope::below(std::wstring_view member) const
{
    KeyScope scope;
    for (const Candidate& candidate : candidates_) {
        if (!candidate.rest.empty() && isName(member, firstSegment(candidate.rest)))
            scope.add(*candidate.field, withoutFirstSegment(candidate.rest), candidate.keys);
    }
    return scope;
}

std::vector<const Field*> KeyScope::leaves() const
{
    std::vector<const Field*> fields;
    for (const Candidate& candidate : candidates_) {
        if (candidate.rest.empty() && isLeaf(candidate.field->kind))
            fields.push_back(candidate.field);
    }
    return fields;
}

std::vector<std::string> KeyScope::keyNames() const
{
    std::vector<std::string> names;
    for (const Candidate& candidate : candidates_) {
        const std::string name(firstSegment(candidate.rest));
        if (!name.empty() && std::find(names.begin(), names.end(), name) == names.end())
            names.push_back(name);
    }
    return names;
}

} // namespace vela::lint
