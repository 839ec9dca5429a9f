#include "app/run/products.h"

namespace setup {

std::vector<std::wstring> relatedProductCodes(InstallerEffects& installer)
{
    // A damaged entry is passed over, so an installer that answers every index with the same error would be
    // asked forever. No upgrade code has this many products.
    constexpr std::uint32_t kMostProducts = 1000;
    std::vector<std::wstring> codes;
    for (std::uint32_t index = 0; index < kMostProducts; ++index) {
        WindowsOutcome<std::wstring> product = installer.relatedProduct(index);
        if (errorOf(product) == kErrorNoMoreItems)
            break;
        if (product)
            codes.push_back(std::move(product.value()));
    }
    return codes;
}

bool isProductInstalled(InstallerEffects& installer) { return !relatedProductCodes(installer).empty(); }

} // namespace setup
