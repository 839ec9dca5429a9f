// Any bytes, read as a skin document as the catalogue does, up to controls that wear the styles of its first
// skin: nothing in a skin makes a reader fail, leads to a value outside its field's range or upsets layout
// and painting.
#include "fuzz/skin_painting.h"
#include "vela/theme/document/json.h"
#include "vela/theme/document/utf8.h"
#include "vela/theme/skins/skin_document.h"
#include "vela/theme/skins/style_sections.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

namespace {

using namespace vela;

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
    // A sheet takes far longer than reading a skin: more than one would only slow the hunt down.
    if (skins.empty())
        return 0;
    const StyleSheet styles = buildStyleSheet(skins.front());
    styles.forEachTable([](ControlKind, const auto& table) { checkTable(table); });
    paintWith(styles);
    return 0;
}
