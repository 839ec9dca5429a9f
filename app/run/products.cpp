#include "app/run/products.h"

namespace setup {

std::vector<std::wstring> relatedProductCodes(InstallerEffects& installer)
{
    // A damaged entry is passed over, so an installer that answers every index with the same error would be
    // asked forever. No upgrade code has this many products.
    constexpr std::uint32_t kMostProducts = 1000;
    std::vector<std::wstring> codes;
    for (std::uint32_t index = 0; index < kMostProducts; ++index) {
        RelatedProduct product = installer.relatedProduct(index);
        if (product.error == kErrorNoMoreItems)
            break;
        if (product.error == kNoError)
            codes.push_back(std::move(product.code));
    }
    return codes;
}

bool isProductInstalled(InstallerEffects& installer) { return !relatedProductCodes(installer).empty(); }

} // namespace setup
