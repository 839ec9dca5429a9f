#include "app/products.h"

namespace setup {

std::vector<std::wstring> relatedProductCodes(SetupEffects& effects)
{
    // A damaged entry is passed over, so an installer that answers every index with the same error would be
    // asked forever. No upgrade code has this many products.
    constexpr std::uint32_t kMostProducts = 1000;
    std::vector<std::wstring> codes;
    for (std::uint32_t index = 0; index < kMostProducts; ++index) {
        RelatedProduct product = effects.relatedProduct(index);
        if (product.error == kErrorNoMoreItems)
            break;
        if (product.error == kNoError)
            codes.push_back(std::move(product.code));
    }
    return codes;
}

bool isProductInstalled(SetupEffects& effects) { return !relatedProductCodes(effects).empty(); }

} // namespace setup
