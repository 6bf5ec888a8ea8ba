#include "host/export/xlsx/zip_sizes.h"

#include <fstream>

namespace tamur::host {
namespace {

// The numbers of the format have their low bytes first.
std::uint32_t Number(const std::string& bytes, std::size_t place, int size)
{
    std::uint32_t number = 0;
    for (int i = size - 1; i >= 0; --i) {
        number = number << 8 | static_cast<unsigned char>(bytes[place + static_cast<unsigned>(i)]);
    }
    return number;
}

std::string Read(std::ifstream& file, std::streamoff place, std::size_t size)
{
    std::string bytes(size, '\0');
    file.seekg(place);
    file.read(bytes.data(), static_cast<std::streamsize>(size));
    return file ? bytes : std::string();
}

}  // namespace

std::map<std::string, std::uint32_t> ZipSizes(const std::filesystem::path& path)
{
    constexpr std::size_t kEnd = 22, kEntry = 46;  // sizes of the fixed parts
    std::map<std::string, std::uint32_t> sizes;
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    const std::streamoff fileSize = file.tellg();
    if (!file || fileSize < static_cast<std::streamoff>(kEnd)) return sizes;
    const std::string end = Read(file, fileSize - static_cast<std::streamoff>(kEnd), kEnd);
    if (end.empty() || Number(end, 0, 4) != 0x06054B50) return sizes;
    const std::string entries = Read(file, Number(end, 16, 4), Number(end, 12, 4));
    for (std::size_t place = 0; place + kEntry <= entries.size();) {
        const std::size_t nameSize = Number(entries, place + 28, 2);
        if (Number(entries, place, 4) != 0x02014B50) return {};
        sizes[entries.substr(place + kEntry, nameSize)] = Number(entries, place + 24, 4);
        place +=
            kEntry + nameSize + Number(entries, place + 30, 2) + Number(entries, place + 32, 2);
    }
    return sizes;
}

}  // namespace tamur::host
