#include "host/view/compressed.h"

#include <zlib.h>

#include <algorithm>
#include <limits>
#include <new>

namespace tamur::host::view {
namespace {

// More costs twice the time for a hundredth of the size.
constexpr int kLevel = 7;
constexpr std::size_t kPiece = 1u << 18;

struct Deflater {
    z_stream stream = {};

    Deflater()
    {
        if (deflateInit(&stream, kLevel) != Z_OK) throw std::bad_alloc();
    }
    Deflater(const Deflater&) = delete;
    Deflater& operator=(const Deflater&) = delete;
    ~Deflater() { (void)deflateEnd(&stream); }
};

}  // namespace

std::string Deflated(std::string_view bytes)
{
    Deflater deflater;
    z_stream& stream = deflater.stream;
    std::string out, piece(kPiece, '\0');
    int result = Z_OK;
    while (result == Z_OK || result == Z_BUF_ERROR) {
        if (stream.avail_in == 0) {
            const std::size_t taken = std::min<std::size_t>(bytes.size(), 1u << 30);
            // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast): zlib reads it only
            stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
            stream.avail_in = static_cast<uInt>(taken);
            bytes.remove_prefix(taken);
        }
        stream.next_out = reinterpret_cast<Bytef*>(piece.data());
        stream.avail_out = static_cast<uInt>(piece.size());
        result = deflate(&stream, bytes.empty() ? Z_FINISH : Z_NO_FLUSH);
        out.append(piece, 0, piece.size() - stream.avail_out);
    }
    return out;
}

void AppendBase64(std::string& out, std::string_view bytes)
{
    constexpr std::string_view kDigits =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    out.reserve(out.size() + (bytes.size() + 2) / 3 * 4);
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const std::size_t count = std::min<std::size_t>(3, bytes.size() - i);
        unsigned bits = 0;
        for (std::size_t k = 0; k < 3; ++k) {
            bits = bits << 8 | (k < count ? static_cast<unsigned char>(bytes[i + k]) : 0u);
        }
        for (std::size_t k = 0; k < 4; ++k) {
            out += k <= count ? kDigits[bits >> (6 * (3 - k)) & 63] : '=';
        }
    }
}

}  // namespace tamur::host::view
