#include "tools/skin_lint/accepted.h"

#include "vela/text.h"
#include "vela/theme/fields/field_reader.h"
#include "vela/theme/records/spellings.h"
#include "vela/theme/records/theme.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <utility>

namespace vela::lint {
namespace {

std::string listOf(const std::vector<std::string>& words)
{
    std::string list;
    for (const std::string& word : words)
        list.append(list.empty() ? "" : ", ").append(word);
    return list;
}

std::vector<std::string> usualWords(const Vocabulary& vocabulary)
{
    std::vector<std::string> words;
    for (const Spellings& row : vocabulary.rows)
        words.emplace_back(row.words.substr(0, row.words.find(' ')));
    return words;
}

char nameCharacter(char c) { return static_cast<char>(lowerAscii(static_cast<wchar_t>(c))); }

std::string normalised(std::string_view text)
{
    std::string result;
    for (const char c : text) {
        if (c != '_' && c != '-' && c != ' ')
            result += nameCharacter(c);
    }
    return result;
}

// Letters that are wrong, missing, too many or swapped with their neighbour.
std::size_t editDistance(std::string_view left, std::string_view right)
{
    std::vector<std::size_t> older;
    std::vector<std::size_t> old(right.size() + 1);
    std::iota(old.begin(), old.end(), std::size_t{0});
    for (std::size_t i = 0; i < left.size(); ++i) {
        std::vector<std::size_t> row{i + 1};
        for (std::size_t j = 0; j < right.size(); ++j) {
            const std::size_t replaced = old[j] + (left[i] == right[j] ? 0 : 1);
            row.push_back(std::min({replaced, old[j + 1] + 1, row[j] + 1}));
            if (i > 0 && j > 0 && left[i] == right[j - 1] && left[i - 1] == right[j])
                row.back() = std::min(row.back(), older[j - 1] + 1);
        }
        older = std::exchange(old, std::move(row));
    }
    return old.back();
}

} // namespace

std::string acceptedBy(const Field& field)
{
    switch (field.kind) {
    case FieldKind::ColorValue:
    case FieldKind::Given: // beside the switch or the colour itself
        return "a colour: #RRGGBB or three decimals \"red, green, blue\"";
    case FieldKind::Byte: return "a whole number from 0 to 255";
    case FieldKind::Length:
    case FieldKind::Integer: return "a whole number";
    case FieldKind::Unsigned: return "a whole number from 0 to 4294967295";
    case FieldKind::Weight:
        return "a number from " + std::to_string(kMinFontWeight) + " to " + std::to_string(kMaxFontWeight) +
               " or " + listOf(wordsOf(kWeightWords));
    case FieldKind::Text:
    case FieldKind::SurfaceImagePath: return "a text";
    case FieldKind::Colors: return "a list of palette roles and #RRGGBB colours";
    case FieldKind::InsetSides: return "\"left, top, right, bottom\" or an object of these";
    case FieldKind::Boolean: return "true or false (" + listOf(wordsOf(kBooleanWords)) + ")";
    case FieldKind::Role: return "a palette role: " + listOf(usualWords(kPaletteRoleWords));
    case FieldKind::Word:
    case FieldKind::SurfaceAlphaShape:
        return "a " + std::string(vocabularyOf(field).name) + ": " + listOf(usualWords(vocabularyOf(field)));
    case FieldKind::SurfaceMaterial:
    case FieldKind::ProfileMaterial:
    case FieldKind::ProfilePreset:
        return "a material: " + listOf(usualWords(kMaterialPresetWords)) + ", or a substance such as ruby";
    case FieldKind::Record:
    case FieldKind::States:
    case FieldKind::Geometry:
    case FieldKind::SurfaceImage: break;
    }
    return "an object";
}

bool acceptsText(const Field& field, std::wstring_view text)
{
    // One place of each type that a field can have; which one the text lands in follows from the kind.
    SurfaceStyle surface;
    MaterialProfile profile;
    Insets insets;
    std::wstring string;
    std::vector<ThemeColor> colors;
    std::optional<PaletteRole> role;
    std::uint32_t scalar = 0;
    switch (field.kind) {
    case FieldKind::SurfaceMaterial:
    case FieldKind::SurfaceImagePath:
    case FieldKind::SurfaceAlphaShape: return readText(field, text, &surface, &surface);
    case FieldKind::ProfileMaterial: return readText(field, text, &profile, &profile);
    case FieldKind::ProfilePreset: return readText(field, text, &profile, &profile.control);
    case FieldKind::Text: return readText(field, text, nullptr, &string);
    case FieldKind::Colors: return readText(field, text, nullptr, &colors);
    case FieldKind::Role: return readText(field, text, nullptr, &role);
    case FieldKind::InsetSides: return readText(field, text, nullptr, &insets);
    default: return readText(field, text, nullptr, &scalar);
    }
}

std::vector<std::string> wordsOf(const Vocabulary& vocabulary)
{
    std::vector<std::string> words;
    for (const Spellings& row : vocabulary.rows) {
        anyWord(row.words, [&words](std::string_view word) {
            words.emplace_back(word);
            return false;
        });
    }
    return words;
}

bool takesNamedMaterials(FieldKind kind) noexcept
{
    return kind == FieldKind::SurfaceMaterial || kind == FieldKind::ProfileMaterial ||
           kind == FieldKind::ProfilePreset;
}

std::string nearest(std::string_view text, const std::vector<std::string>& candidates)
{
    const std::string wanted = normalised(text);
    std::string best;
    std::size_t bestDistance = std::max<std::size_t>(wanted.size() / 3, 1) + 1;
    for (const std::string& candidate : candidates) {
        const std::size_t distance = editDistance(wanted, normalised(candidate));
        if (distance < bestDistance) {
            bestDistance = distance;
            best = candidate;
        }
    }
    return best;
}

std::string toUtf8(std::wstring_view text)
{
    std::string bytes;
    for (std::size_t i = 0; i < text.size();) {
        const auto [c, units] = codePointAt(text, i);
        i += units;
        const auto put = [&bytes](char32_t byte) { bytes += static_cast<char>(byte); };
        if (c < 0x80) {
            put(c);
            continue;
        }
        const int following = c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
        constexpr char32_t kLead[] = {0, 0xC0, 0xE0, 0xF0};
        put(kLead[following] | c >> (6 * following));
        for (int shift = 6 * (following - 1); shift >= 0; shift -= 6)
            put(0x80 | (c >> shift & 0x3F));
    }
    return bytes;
}

} // namespace vela::lint
