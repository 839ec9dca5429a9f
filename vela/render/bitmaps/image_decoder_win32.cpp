#include "vela/render/bitmaps/image_decoder_win32.h"

#include "vela/com_apartment_win32.h"
#include "vela/com_pointer_win32.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <string_view>

#include <windows.h>

#include <wincodec.h>

namespace vela {
namespace {

// Only what Windows itself brings along is ever asked: a decoder that somebody installed for another kind of
// file has no business in this process.
struct Kind {
    std::string_view signature;
    const GUID* container;
};
const Kind kKinds[] = {
    {"\x89PNG\r\n\x1A\n", &GUID_ContainerFormatPng},
    {"\xFF\xD8\xFF", &GUID_ContainerFormatJpeg},
    {"BM", &GUID_ContainerFormatBmp},
    {"GIF8", &GUID_ContainerFormatGif},
};
constexpr std::size_t kLongestSignature = 8;

const GUID* containerOf(IStream& stream)
{
    char start[kLongestSignature] = {};
    ULONG read = 0;
    LARGE_INTEGER beginning{};
    if (FAILED(stream.Read(start, sizeof start, &read)) ||
        FAILED(stream.Seek(beginning, STREAM_SEEK_SET, nullptr)))
        return nullptr;
    for (const Kind& kind : kKinds) {
        if (std::string_view(start, read).substr(0, kind.signature.size()) == kind.signature)
            return kind.container;
    }
    return nullptr;
}

bool isPlainFile(const std::wstring& file)
{
    const DWORD attributes = ::GetFileAttributesW(file.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES &&
           (attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT)) == 0;
}

// The first frame, in the format of BitmapImage. Null when anything about the file is wrong.
ComPointer<IWICFormatConverter> openFrame(IWICImagingFactory& factory, const std::wstring& file)
{
    ComPointer<IWICStream> stream;
    ComPointer<IWICBitmapDecoder> decoder;
    ComPointer<IWICBitmapFrameDecode> frame;
    ComPointer<IWICFormatConverter> converter;
    if (FAILED(factory.CreateStream(stream.put())) ||
        FAILED(stream->InitializeFromFilename(file.c_str(), GENERIC_READ)))
        return {};
    const GUID* const container = containerOf(*stream.get());
    if (!container ||
        FAILED(factory.CreateDecoder(*container, &GUID_VendorMicrosoftBuiltIn, decoder.put())) ||
        FAILED(decoder->Initialize(stream.get(), WICDecodeMetadataCacheOnDemand)) ||
        FAILED(decoder->GetFrame(0, frame.put())) || FAILED(factory.CreateFormatConverter(converter.put())) ||
        FAILED(converter->Initialize(frame.get(), GUID_WICPixelFormat32bppBGRA, WICBitmapDitherTypeNone,
                                     nullptr, 0, WICBitmapPaletteTypeCustom)))
        return {};
    return converter;
}

// A converter may hold all that it is asked for in a format between, so it is asked for a few rows at a time.
bool copyInBands(IWICBitmapSource& source, BitmapImage& image)
{
    constexpr std::int32_t kBandPixels = 1 << 18;
    const std::int32_t rows = std::max(kBandPixels / image.size.width, 1);
    for (std::int32_t y = 0; y < image.size.height; y += rows) {
        const WICRect band{0, y, image.size.width, std::min(rows, image.size.height - y)};
        const std::size_t rowBytes = static_cast<std::size_t>(band.Width) * sizeof(Pixel);
        Pixel* const first =
            image.pixels.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(band.Width);
        if (FAILED(source.CopyPixels(&band, static_cast<UINT>(rowBytes),
                                     static_cast<UINT>(rowBytes * static_cast<std::size_t>(band.Height)),
                                     reinterpret_cast<BYTE*>(first))))
            return false;
    }
    return true;
}

} // namespace

BitmapImage decodeImage(const std::wstring& file)
{
    if (!isPlainFile(file))
        return {};
    const ComApartment apartment; // first: it outlives what COM hands out
    ComPointer<IWICImagingFactory> factory;
    if (FAILED(::CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                  __uuidof(IWICImagingFactory), factory.putVoid())))
        return {};
    const ComPointer<IWICFormatConverter> frame = openFrame(*factory.get(), file);
    UINT width = 0;
    UINT height = 0;
    if (!frame || FAILED(frame->GetSize(&width, &height)) || width == 0 || height == 0 ||
        std::uint64_t{width} * height > kMostImagePixels)
        return {};
    BitmapImage image{{static_cast<std::int32_t>(width), static_cast<std::int32_t>(height)},
                      std::vector<Pixel>(std::size_t{width} * height)};
    return copyInBands(*frame.get(), image) ? image : BitmapImage{};
}

} // namespace vela
