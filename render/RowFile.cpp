#include "render/RowFile.h"

#include "render/PackedRow.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace render
{
namespace
{
using Bytes = std::vector<unsigned char>;

/// Written at a time: few enough to stay in the processor's cache.
constexpr int kRowsAtATime = 16;

struct RowFormat
{
    wxBitmapType type;
    Bytes (*header)(std::size_t side, std::size_t rowBytes);
    std::size_t rowUnit; ///< bytes of which a row is a whole number
    bool upward;         ///< the lowest row comes first
    void (*pack)(std::span<const Argb> pixels, unsigned char* bytes);
};

void AppendNumber(Bytes& bytes, std::size_t number, int count)
{
    for (int i = 0; i < count; ++i)
        bytes.push_back(static_cast<unsigned char>(number >> 8 * i));
}

Bytes BmpHeader(std::size_t side, std::size_t rowBytes)
{
    constexpr std::size_t kSize = 54;
    constexpr std::size_t kPixelsPerMetre = 2800; // the toolkit's 72 an inch, 28 a centimetre
    Bytes bytes{'B', 'M'};
    AppendNumber(bytes, kSize + rowBytes * side, 4);
    AppendNumber(bytes, 0, 4);
    AppendNumber(bytes, kSize, 4);
    AppendNumber(bytes, 40, 4); // bytes of the rest
    AppendNumber(bytes, side, 4);
    AppendNumber(bytes, side, 4);
    AppendNumber(bytes, 1, 2);  // planes
    AppendNumber(bytes, 24, 2); // bits a pixel
    AppendNumber(bytes, 0, 4);  // no compression
    AppendNumber(bytes, rowBytes * side, 4);
    AppendNumber(bytes, kPixelsPerMetre, 4);
    AppendNumber(bytes, kPixelsPerMetre, 4);
    AppendNumber(bytes, 0, 8); // no palette
    return bytes;
}

Bytes PnmHeader(std::size_t side, std::size_t)
{
    const std::string number = std::to_string(side);
    const std::string text = "P6\n" + number + " " + number + "\n255\n";
    return {text.begin(), text.end()};
}

constexpr std::array<RowFormat, 2> kFormats{
    {{wxBITMAP_TYPE_BMP, BmpHeader, 4, true, PackBgr}, {wxBITMAP_TYPE_PNM, PnmHeader, 1, false, PackRgb}}};

const RowFormat* FormatOf(wxBitmapType type)
{
    const auto* const found = std::ranges::find(kFormats, type, &RowFormat::type);
    return found == kFormats.end() ? nullptr : found;
}

bool Write(wxOutputStream& stream, const Bytes& bytes)
{
    return stream.Write(bytes.data(), bytes.size()).LastWrite() == bytes.size();
}
} // namespace

bool HasRowFormat(wxBitmapType type)
{
    return FormatOf(type) != nullptr;
}

bool WriteRows(wxOutputStream& stream, const PictureRows& picture, wxBitmapType type)
{
    const RowFormat& format = *FormatOf(type);
    const int side = picture.Side();
    const auto width = static_cast<std::size_t>(side);
    const std::size_t rowBytes = (3 * width + format.rowUnit - 1) / format.rowUnit * format.rowUnit;
    std::vector<Argb> pixels(width);
    bool isWritten = Write(stream, format.header(width, rowBytes));
    for (int first = 0; isWritten && first < side; first += kRowsAtATime)
    {
        Bytes bytes(rowBytes * static_cast<std::size_t>(std::min(kRowsAtATime, side - first)));
        for (std::size_t at = 0, i = static_cast<std::size_t>(first); at < bytes.size(); at += rowBytes, ++i)
        {
            const int row = static_cast<int>(i);
            picture.Row(format.upward ? side - 1 - row : row, pixels);
            format.pack(pixels, &bytes[at]);
        }
        isWritten = Write(stream, bytes);
    }
    return isWritten;
}
} // namespace render
