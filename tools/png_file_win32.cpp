#include "tools/png_file_win32.h"

#include "vela/com_pointer_win32.h"

#include <windows.h>

#include <wincodec.h>

namespace tools {
namespace {

vela::ComPointer<IWICImagingFactory> makeFactory()
{
    vela::ComPointer<IWICImagingFactory> factory;
    ::CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IWICImagingFactory),
                       factory.putVoid());
    return factory;
}

const WICPixelFormatGUID& pixelFormat(PngAlpha alpha) noexcept
{
    return alpha == PngAlpha::Stored ? GUID_WICPixelFormat32bppBGRA : GUID_WICPixelFormat32bppBGR;
}

} // namespace

bool writePng(const std::wstring& path, const vela::PixelView& picture, PngAlpha alpha)
{
    const auto factory = makeFactory();
    const auto width = static_cast<UINT>(picture.size.width);
    const auto height = static_cast<UINT>(picture.size.height);
    const auto stride = static_cast<UINT>(picture.stride * 4);
    vela::ComPointer<IWICBitmap> bitmap;
    vela::ComPointer<IWICFormatConverter> stored;
    vela::ComPointer<IWICStream> stream;
    vela::ComPointer<IWICBitmapEncoder> encoder;
    vela::ComPointer<IWICBitmapFrameEncode> frame;
    WICPixelFormatGUID format =
        alpha == PngAlpha::Stored ? GUID_WICPixelFormat32bppBGRA : GUID_WICPixelFormat24bppBGR;
    return factory &&
           SUCCEEDED(factory->CreateBitmapFromMemory(width, height, pixelFormat(alpha), stride,
                                                     stride * height, reinterpret_cast<BYTE*>(picture.pixels),
                                                     bitmap.put())) &&
           SUCCEEDED(factory->CreateFormatConverter(stored.put())) &&
           SUCCEEDED(stored->Initialize(bitmap.get(), format, WICBitmapDitherTypeNone, nullptr, 0,
                                        WICBitmapPaletteTypeCustom)) &&
           SUCCEEDED(factory->CreateStream(stream.put())) &&
           SUCCEEDED(stream->InitializeFromFilename(path.c_str(), GENERIC_WRITE)) &&
           SUCCEEDED(factory->CreateEncoder(GUID_ContainerFormatPng, nullptr, encoder.put())) &&
           SUCCEEDED(encoder->Initialize(stream.get(), WICBitmapEncoderNoCache)) &&
           SUCCEEDED(encoder->CreateNewFrame(frame.put(), nullptr)) &&
           SUCCEEDED(frame->Initialize(nullptr)) && SUCCEEDED(frame->SetSize(width, height)) &&
           SUCCEEDED(frame->SetPixelFormat(&format)) &&
           SUCCEEDED(frame->WriteSource(stored.get(), nullptr)) && SUCCEEDED(frame->Commit()) &&
           SUCCEEDED(encoder->Commit());
}

Picture readPng(const std::wstring& path, PngAlpha alpha)
{
    const auto factory = makeFactory();
    vela::ComPointer<IWICBitmapDecoder> decoder;
    vela::ComPointer<IWICBitmapFrameDecode> frame;
    vela::ComPointer<IWICFormatConverter> converter;
    UINT width = 0;
    UINT height = 0;
    Picture picture;
    if (!factory ||
        FAILED(factory->CreateDecoderFromFilename(path.c_str(), nullptr, GENERIC_READ,
                                                  WICDecodeMetadataCacheOnDemand, decoder.put())) ||
        FAILED(decoder->GetFrame(0, frame.put())) || FAILED(frame->GetSize(&width, &height)) ||
        FAILED(factory->CreateFormatConverter(converter.put())) ||
        FAILED(converter->Initialize(frame.get(), pixelFormat(alpha), WICBitmapDitherTypeNone, nullptr, 0,
                                     WICBitmapPaletteTypeCustom)))
        return picture;
    std::vector<vela::Pixel> pixels(static_cast<std::size_t>(width) * height);
    if (FAILED(converter->CopyPixels(nullptr, width * 4, static_cast<UINT>(pixels.size() * 4),
                                     reinterpret_cast<BYTE*>(pixels.data()))))
        return picture;
    picture.size = {static_cast<std::int32_t>(width), static_cast<std::int32_t>(height)};
    picture.pixels = std::move(pixels);
    return picture;
}

} // namespace tools
