#include "host/file/file_tail.h"

#include <array>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace tamur::host {
namespace {

std::filesystem::path PathOf(const std::string& utf8)
{
    return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
}

std::string ErrorText(int error)
{
    return std::generic_category().message(error);
}

// Counts the lines of a text that comes in pieces.
class LineCount {
 public:
    void Add(char c, FileTail& tail)
    {
        if (isStart_) ++tail.lines;
        isStart_ = c == '\n';
        if (isStart_) {
            hasData_ = false;
            return;
        }
        constexpr char kEndOfText = '\x1A';
        if (hasData_ || c == kEndOfText || c == ' ' || (c >= '\t' && c <= '\r')) return;
        hasData_ = true;
        ++tail.dataLines;
    }

 private:
    bool isStart_ = false;  // the first line is the one that Ctrl-Z is in
    bool hasData_ = false;
};

}  // namespace

std::string ReadErrorText()
{
    return ErrorText(EIO);
}

FileTail ReadTail(const std::string& utf8Path, std::uint64_t offset)
{
    FileTail tail;
    errno = 0;
    std::ifstream file(PathOf(utf8Path), std::ios::binary);
    file.seekg(static_cast<std::streamoff>(offset));
    std::array<char, 65536> piece = {};
    LineCount count;
    for (bool isFirst = true; file.good(); isFirst = false) {
        file.read(piece.data(), piece.size());
        const std::size_t size = static_cast<std::size_t>(file.gcount());
        if (isFirst && size > 0 && piece[0] != '\x1A') {
            tail.error = ReadErrorText();  // it can be read now: something disturbed the import
            return tail;
        }
        for (std::size_t i = 0; i < size; ++i) count.Add(piece[i], tail);
    }
    if (!file.eof()) tail.error = ErrorText(errno != 0 ? errno : EIO);
    return tail;
}

Finding WhyNotOpened(const std::string& utf8Path)
{
    const std::filesystem::path path = PathOf(utf8Path);
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(path, error);
    const auto cannotOpen = [](const std::string& why) {
        return Finding{.code = Code::kCannotOpen, .values = {why}};
    };
    if (status.type() == std::filesystem::file_type::not_found)
        return cannotOpen(ErrorText(ENOENT));
    if (error) return cannotOpen(error.message());
    if (status.type() != std::filesystem::file_type::regular) return {.code = Code::kNotAFile};
    errno = 0;
    if (!std::ifstream(path).is_open()) return cannotOpen(ErrorText(errno != 0 ? errno : EACCES));
    // On Windows the component's paths are in the ANSI code page.
    return cannotOpen(ErrorText(EILSEQ));
}

}  // namespace tamur::host
