#include "vela/render/materials/material_gpu_d3d11.h"

#include "vela/com_pointer_win32.h"
#include "vela/library_win32.h"
#include "vela/render/materials/material_overlay_gdi.h"
#include "vela/render/materials/material_shaders.h"
#include "vela/render/materials/shader_compiler_d3d11.h"

#include <cstring>
#include <iterator>
#include <memory>
#include <type_traits>

#include <d3d11.h>

namespace vela {
namespace {

using CreateDevice = std::remove_pointer_t<PFN_D3D11_CREATE_DEVICE>;

// One surface's target on the card and the memory it is read from. They live for one call.
struct Target {
    ComPointer<ID3D11Texture2D> texture;
    ComPointer<ID3D11RenderTargetView> view;
    ComPointer<ID3D11Texture2D> readable;
};

class MaterialGpu {
public:
    // Null where any part of it cannot be had, which is found out once.
    static MaterialGpu* instance()
    {
        // Never destroyed: drivers take it amiss when their threads are called after the process began to
        // end.
        static MaterialGpu* const gpu = make();
        return gpu;
    }

    bool render(const MaterialConstants& constants, const PixelView& pixels);

private:
    MaterialGpu() = default;
    static MaterialGpu* make();
    bool createDevice();
    bool createShaders();
    bool createConstantBuffer();

    bool createTarget(Size size, Target& target) const;
    void draw(const MaterialConstants& constants, const Target& target, Size size);
    bool readBack(const Target& target, const PixelView& pixels);

    SystemLibrary library_{L"d3d11.dll"};
    ComPointer<ID3D11Device> device_;
    ComPointer<ID3D11DeviceContext> context_;
    ComPointer<ID3D11VertexShader> vertexShader_;
    ComPointer<ID3D11PixelShader> pixelShader_;
    ComPointer<ID3D11Buffer> constantBuffer_;
};

// Without all of its parts there is none, and nothing of it stays allocated.
MaterialGpu* MaterialGpu::make()
{
    auto gpu = std::unique_ptr<MaterialGpu>(new MaterialGpu);
    return gpu->createDevice() && gpu->createShaders() && gpu->createConstantBuffer() ? gpu.release()
                                                                                      : nullptr;
}

bool MaterialGpu::createDevice()
{
    const auto create = library_.function<CreateDevice>("D3D11CreateDevice");
    if (!create)
        return false;
    constexpr D3D_FEATURE_LEVEL kLevels[] = {D3D_FEATURE_LEVEL_11_1, D3D_FEATURE_LEVEL_11_0,
                                             D3D_FEATURE_LEVEL_10_1, D3D_FEATURE_LEVEL_10_0};
    for (const D3D_DRIVER_TYPE driver : {D3D_DRIVER_TYPE_HARDWARE, D3D_DRIVER_TYPE_WARP}) {
        if (SUCCEEDED(create(nullptr, driver, nullptr, D3D11_CREATE_DEVICE_BGRA_SUPPORT, kLevels,
                             static_cast<UINT>(std::size(kLevels)), D3D11_SDK_VERSION, device_.put(), nullptr,
                             context_.put())))
            return true;
    }
    return false;
}

bool MaterialGpu::createShaders()
{
    const ComPointer<ID3DBlob> vertex = compileShader(materialVertexShader(), "vs_4_0");
    const ComPointer<ID3DBlob> pixel = compileShader(materialPixelShader(), "ps_4_0");
    return vertex && pixel &&
           SUCCEEDED(device_->CreateVertexShader(vertex->GetBufferPointer(), vertex->GetBufferSize(), nullptr,
                                                 vertexShader_.put())) &&
           SUCCEEDED(device_->CreatePixelShader(pixel->GetBufferPointer(), pixel->GetBufferSize(), nullptr,
                                                pixelShader_.put()));
}

bool MaterialGpu::createConstantBuffer()
{
    const D3D11_BUFFER_DESC buffer{
        .ByteWidth = sizeof(MaterialConstants),
        .Usage = D3D11_USAGE_DEFAULT,
        .BindFlags = D3D11_BIND_CONSTANT_BUFFER,
        .CPUAccessFlags = 0,
        .MiscFlags = 0,
        .StructureByteStride = 0,
    };
    return SUCCEEDED(device_->CreateBuffer(&buffer, nullptr, constantBuffer_.put()));
}

bool MaterialGpu::createTarget(Size size, Target& target) const
{
    D3D11_TEXTURE2D_DESC texture{
        .Width = static_cast<UINT>(size.width),
        .Height = static_cast<UINT>(size.height),
        .MipLevels = 1,
        .ArraySize = 1,
        .Format = DXGI_FORMAT_B8G8R8A8_UNORM,
        .SampleDesc = {.Count = 1, .Quality = 0},
        .Usage = D3D11_USAGE_DEFAULT,
        .BindFlags = D3D11_BIND_RENDER_TARGET,
        .CPUAccessFlags = 0,
        .MiscFlags = 0,
    };
    if (FAILED(device_->CreateTexture2D(&texture, nullptr, target.texture.put())) ||
        FAILED(device_->CreateRenderTargetView(target.texture.get(), nullptr, target.view.put())))
        return false;
    texture.Usage = D3D11_USAGE_STAGING;
    texture.BindFlags = 0;
    texture.CPUAccessFlags = D3D11_CPU_ACCESS_READ;
    return SUCCEEDED(device_->CreateTexture2D(&texture, nullptr, target.readable.put()));
}

void MaterialGpu::draw(const MaterialConstants& constants, const Target& target, Size size)
{
    context_->UpdateSubresource(constantBuffer_.get(), 0, nullptr, &constants, 0, 0);

    const D3D11_VIEWPORT viewport{0, 0, static_cast<float>(size.width), static_cast<float>(size.height),
                                  0, 1};
    context_->RSSetViewports(1, &viewport);
    ID3D11RenderTargetView* view = target.view.get();
    context_->OMSetRenderTargets(1, &view, nullptr);
    constexpr float kTransparent[4] = {};
    context_->ClearRenderTargetView(view, kTransparent);

    context_->IASetInputLayout(nullptr);
    context_->IASetPrimitiveTopology(D3D11_PRIMITIVE_TOPOLOGY_TRIANGLELIST);
    context_->VSSetShader(vertexShader_.get(), nullptr, 0);
    context_->PSSetShader(pixelShader_.get(), nullptr, 0);
    ID3D11Buffer* const buffer = constantBuffer_.get();
    context_->PSSetConstantBuffers(0, 1, &buffer);
    // The vertex shader makes one triangle over the whole target from the vertices' numbers alone.
    context_->Draw(3, 0);

    // A bound view would keep the target alive until the next surface.
    view = nullptr;
    context_->OMSetRenderTargets(1, &view, nullptr);
}

bool MaterialGpu::readBack(const Target& target, const PixelView& pixels)
{
    context_->CopyResource(target.readable.get(), target.texture.get());
    D3D11_MAPPED_SUBRESOURCE mapped;
    if (FAILED(context_->Map(target.readable.get(), 0, D3D11_MAP_READ, 0, &mapped)))
        return false;
    const auto* row = static_cast<const std::byte*>(mapped.pData);
    for (std::int32_t y = 0; y < pixels.size.height; ++y, row += mapped.RowPitch)
        std::memcpy(pixels.row(y), row, static_cast<std::size_t>(pixels.size.width) * sizeof(Pixel));
    context_->Unmap(target.readable.get(), 0);
    return true;
}

bool MaterialGpu::render(const MaterialConstants& constants, const PixelView& pixels)
{
    Target target;
    if (!createTarget(pixels.size, target))
        return false;
    draw(constants, target, pixels.size);
    return readBack(target, pixels);
}

} // namespace

bool hasMaterialGpu() { return MaterialGpu::instance() != nullptr; }

bool renderMaterialOnGpu(const MaterialConstants& constants, const PixelView& target)
{
    if (isEmpty(target.size))
        return false;
    MaterialGpu* const gpu = MaterialGpu::instance();
    return gpu && gpu->render(constants, target);
}

bool tryDrawMaterialOverlayHlsl(HDC dc, const Rect& rect, const SurfaceStyle& style)
{
    if (isEmpty(rect) || std::int64_t{rect.width} * rect.height > kMostOverlayPixels || !hasMaterialGpu())
        return false;
    OwnedPixels overlay(sizeOf(rect));
    if (!renderMaterialOnGpu(currentMaterialConstants(dc, style, rect), overlay.view()))
        return false;
    compositeMaterialOverlay(dc, rect, style, overlay.view());
    return true;
}

} // namespace vela
