#include "import/file/model_file.h"

#include <algorithm>
#include <cstring>

#include "import/file/find_byte.h"

namespace tamur {
namespace {

constexpr std::size_t kBufferSize = std::size_t{256} << 10;

// A line is read as into 50000 bytes: 49999 characters, the line feed among them, and a NUL.
constexpr std::size_t kLongestLine = 49999;

// Enough bytes to tell the extent of any line: the longest and a line end of two.
constexpr std::size_t kLookAhead = kLongestLine + 2;

constexpr char kEndOfText = '\x1A';

const char* FindLast(const char* begin, const char* end, char wanted)
{
    for (const char* at = end; at != begin; --at) {
        if (at[-1] == wanted) return at - 1;
    }
    return nullptr;
}

}  // namespace

bool Line::Holds(std::int32_t count) const
{
    if (count <= 0) return true;
    const std::size_t size = static_cast<std::size_t>(count);
    return count <= end - text && std::memchr(text, '\0', size) == nullptr;
}

ModelFile::ModelFile(platform::BlockSource& source, ImportObserver* observer)
    : source_(source),
      observer_(observer),
      buffer_(std::make_unique<char[]>(kBufferSize + kScanPadding)),
      next_(buffer_.get()),
      filled_(buffer_.get())
{
    headers_.fill(kAbsent);
}

bool ModelFile::FindSectionHeader(SectionHeader header)
{
    if (!isIndexed_) IndexHeaders();
    const std::uint64_t offset = headers_[static_cast<std::size_t>(header)];
    Seek(std::min(offset, fileEnd_));
    Line line;
    if (!ReadModelLine(line)) return false;
    if (observer_ != nullptr) observer_->OnSection(header, offset);
    return true;
}

bool ModelFile::ReadModelLine(Line& line)
{
    Show();
    char* end = const_cast<char*>(FindByte(next_, filled_, '\n'));
    if (end == filled_ || end - next_ >= static_cast<std::ptrdiff_t>(kLongestLine)) {
        return ReadUnusualLine(line);
    }
    line.text = next_;
    next_ = end + 1;
    if (end != line.text && end[-1] == '\r') --end;
    line.end = end;
    ShowOnly(line);
    *end = '\0';
    return true;
}

// A line that is not whole in the buffer, the last one, or one that is too long.
bool ModelFile::ReadUnusualLine(Line& line)
{
    // What is there is moved only for lines that need more.
    if (static_cast<std::size_t>(filled_ - next_) < kLookAhead) Fill();
    line = Line();
    if (next_ == filled_) return false;
    const Extent extent = MeasureLine(next_, filled_);
    const bool isCut = extent.text == extent.next && next_ + extent.next != filled_;
    if (isCut) {
        // What follows in the buffer is the next line: the NUL needs a place of its own.
        if (cutLine_ == nullptr) cutLine_ = std::make_unique<char[]>(kLongestLine + kScanPadding);
        sanitizer::Forbid(cutLine_.get() + kLongestLine + 1, kScanPadding - 1);
        std::memcpy(cutLine_.get(), next_, extent.text);
        line.text = cutLine_.get();
        line.end = line.text + extent.text;
        ShowOnly(line);
    } else {
        line.text = next_;
        line.end = line.text + extent.text;
        ShowOnly(line);
        next_[extent.text] = '\0';
    }
    next_ += extent.next;
    return true;
}

bool ModelFile::ReadSettingLine(Line& line)
{
    if (!ReadModelLine(line)) return false;
    if (observer_ != nullptr) Announce(line);
    return true;
}

bool ModelFile::ReadDataLine(Line& line)
{
    do {
        if (!ReadModelLine(line) || line.IsHeader()) return false;
        if (observer_ != nullptr) Announce(line);
    } while (line.IsEmpty());
    return true;
}

void ModelFile::Announce(const Line& line) const
{
    const bool isCut = line.text == cutLine_.get();
    observer_->OnLine({line.text, static_cast<std::size_t>(line.end - line.text)}, isCut);
}

// [begin, end) reaches to the end of the file or for kLookAhead bytes, and is not empty.
ModelFile::Extent ModelFile::MeasureLine(const char* begin, const char* end)
{
    const std::size_t size = std::min(static_cast<std::size_t>(end - begin), kLookAhead);
    const char* const feed = FindByte(begin, begin + size, '\n');
    const bool hasFeed = feed != begin + size;
    const bool hasReturn = hasFeed && feed != begin && feed[-1] == '\r';
    const std::size_t text = static_cast<std::size_t>(feed - begin) - (hasReturn ? 1 : 0);
    if (text + (hasFeed ? 1 : 0) > kLongestLine) return {kLongestLine, kLongestLine};
    return {text, static_cast<std::size_t>(feed - begin) + (hasFeed ? 1 : 0)};
}

void ModelFile::IndexHeaders()
{
    Seek(0);
    do {
        Fill();
        IndexBuffer();
    } while (!IsEndInBuffer() || next_ != filled_);
    isIndexed_ = true;
}

// Notes the headers among the lines that are whole in the buffer and passes over these lines.
// Headers are rare: looking for "#" is faster than going line by line.
void ModelFile::IndexBuffer()
{
    while (next_ != filled_) {
        const char* const begin = next_;
        const std::size_t size = static_cast<std::size_t>(filled_ - begin);
        const char* const feed = FindLast(begin, begin + std::min(size, kLongestLine), '\n');
        const char* end;
        if (feed != nullptr) {
            // No line in here is too long, whatever their number.
            end = feed + 1;
        } else if (size >= kLookAhead || IsEndInBuffer()) {
            end = begin + MeasureLine(begin, filled_).next;
        } else {
            return;
        }
        for (const char* at = FindByte(begin, end, '#'); at != end;
             at = FindByte(at + 1, end, '#')) {
            if (at == begin || at[-1] == '\n') NoteHeader(at, end);
        }
        next_ += end - begin;
        if (observer_ != nullptr) {
            observer_->OnText({begin, static_cast<std::size_t>(end - begin)});
        }
    }
}

// A line starts at `begin`; the text up to `end` holds it whole or is longer than any header.
void ModelFile::NoteHeader(const char* begin, const char* end)
{
    for (std::size_t i = 0; i < kSectionHeaders.size(); ++i) {
        const std::string_view header = kSectionHeaders[i];
        const std::string_view line(begin, static_cast<std::size_t>(end - begin));
        if (headers_[i] != kAbsent || !line.starts_with(header)) continue;
        const std::string_view rest = line.substr(header.size());
        if (rest.empty() || rest[0] == '\n' || rest[0] == '\0' || rest.starts_with("\r\n")) {
            headers_[i] = OffsetOf(begin);
        }
    }
}

void ModelFile::Seek(std::uint64_t offset)
{
    next_ = buffer_.get();
    filled_ = next_;
    fileOffset_ = offset;
}

// Moves what is not read yet to the front of the buffer and fills the rest from the file.
void ModelFile::Fill()
{
    const std::size_t kept = static_cast<std::size_t>(filled_ - next_);
    sanitizer::Allow(buffer_.get(), kBufferSize + kScanPadding);
    std::memmove(buffer_.get(), next_, kept);
    next_ = buffer_.get();
    filled_ = next_ + kept;
    char* const bufferEnd = buffer_.get() + kBufferSize;
    while (filled_ != bufferEnd && fileOffset_ < fileEnd_) {
        const std::uint64_t room = static_cast<std::uint64_t>(bufferEnd - filled_);
        const std::size_t size = static_cast<std::size_t>(std::min(room, fileEnd_ - fileOffset_));
        std::size_t got = source_.ReadAt(fileOffset_, filled_, size);
        if (got == 0) fileEnd_ = fileOffset_;
        if (!isIndexed_) {
            const char* const mark = FindByte(filled_, filled_ + got, kEndOfText);
            if (mark != filled_ + got) {
                got = static_cast<std::size_t>(mark - filled_);
                fileEnd_ = fileOffset_ + got;
            }
        }
        filled_ += got;
        fileOffset_ += got;
    }
    std::memset(filled_, 0, kScanPadding);
    sanitizer::Forbid(filled_ + kScanPadding, static_cast<std::size_t>(bufferEnd - filled_));
}

}  // namespace tamur
