// Any bytes, read as a skin document as the catalogue does, up to the style sheets of its skins: nothing in a
// skin can make a reader fail, and the same skin always gives the same sheet.
#include "vela/theme/json.h"
#include "vela/theme/skin_document.h"
#include "vela/theme/style_sections.h"
#include "vela/theme/utf8.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

namespace {

using namespace vela;

// A sheet takes far longer than reading a skin; more of them would only slow the hunt down.
constexpr std::size_t kMostSheets = 2;

void require(bool holds)
{
    if (!holds)
        std::abort();
}

void checkFont(const FontSpec& font) { require(font.weight >= 100 && font.weight <= 900); }

template <class Record>
void checkTable(const VariantTable<Record>& table)
{
    require(table.size() <= kMaxVariants && table.begin()->name == kDefaultVariant);
    for (const auto& variant : table)
        require(&table.find(variant.name) == &variant.record);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    JsonDocument document;
    if (!document.read(decodeUtf8({reinterpret_cast<const char*>(data), size})))
        return 0;
    const std::vector<SkinDefinition> skins = skinsFromDocument(document.root());
    for (const SkinDefinition& skin : skins) {
        checkFont(skin.theme.uiFont);
        checkFont(skin.theme.monoFont);
        require(!skin.category.empty() && skin.source == kExternalSource);
    }
    for (std::size_t i = 0; i < std::min(skins.size(), kMostSheets); ++i) {
        const StyleSheet sheet = buildStyleSheet(skins[i]);
        sheet.forEachTable([](ControlKind, const auto& table) { checkTable(table); });
        require(buildStyleSheet(skins[i]) == sheet);
    }
    return 0;
}
