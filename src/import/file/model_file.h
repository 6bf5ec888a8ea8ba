// The model file as lines and sections.
#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "import/observer.h"
#include "import/file/section_header.h"
#include "import/scan/characters.h"
#include "model/sanitizer.h"
#include "platform/platform.h"

namespace tamur {

// One line without its line end. The text ends at the first NUL, which is there in any case, and
// is readable for kScanPadding bytes past `end`. Valid until the next line is read.
struct Line {
    const char* text = "";
    const char* end = text;  // where the line ends in the file: at the NUL or, after one, later

    [[nodiscard]] bool IsEmpty() const { return *text == '\0'; }
    [[nodiscard]] bool IsHeader() const { return *text == '#'; }

    // Whether a count of things that take a character each can be meant for this line.
    [[nodiscard]] bool Holds(std::int32_t count) const;
};

// Reads a file as a text stream would: carriage return plus line feed is one line end, a lone
// carriage return is an ordinary character, Ctrl-Z ends the file, and a line of more than 49999
// characters is cut there, the rest being a line of its own.
//
// The file passes through a buffer and is never held whole. The first search for a header passes
// over the file once and notes where all headers are.
class ModelFile {
 public:
    // `source` must outlive this object. `observer` may be null.
    explicit ModelFile(platform::BlockSource& source, ImportObserver* observer = nullptr);

    // Goes to the line after the first line of the file that equals the header. False, and at
    // the end of the file, when there is none.
    bool FindSectionHeader(SectionHeader header);
    bool FindSectionHeader(SectionHeader plain, SectionHeader accented)
    {
        return FindSectionHeader(plain) || FindSectionHeader(accented);
    }

    // Reads the next line, which an observer does not hear of. False at the end of the file, with
    // an empty line.
    bool ReadModelLine(Line& line);

    // Reads the line after the header of a setting, whatever it is.
    bool ReadSettingLine(Line& line);

    // Reads the next line of the section that holds data: empty lines are passed over, a header
    // or the end of the file ends the section.
    bool ReadDataLine(Line& line);

    // Tells the observer, if there is one, about the line read last.
    void Report(Finding finding) const
    {
        if (observer_ != nullptr) observer_->OnFinding(finding);
    }

 private:
    static constexpr std::uint64_t kAbsent = ~std::uint64_t{0};

    struct Extent {
        std::size_t text;  // length of the line without its line end
        std::size_t next;  // from the start of the line to that of the next
    };

    [[nodiscard]] static Extent MeasureLine(const char* begin, const char* end);
    bool ReadUnusualLine(Line& line);
    void Announce(const Line& line) const;  // to the observer
    void IndexHeaders();
    void IndexBuffer();
    void NoteHeader(const char* begin, const char* end);
    void Seek(std::uint64_t offset);
    void Fill();

    [[nodiscard]] bool IsEndInBuffer() const { return fileOffset_ >= fileEnd_; }
    [[nodiscard]] std::uint64_t OffsetOf(const char* place) const
    {
        return fileOffset_ - static_cast<std::uint64_t>(filled_ - place);
    }

    // What of the buffer the sanitizer lets be touched: all that is filled, or the line in hand
    // with its NUL.
    void Show() const { sanitizer::Allow(buffer_.get(), Shown()); }
    void ShowOnly(const Line& line) const
    {
        sanitizer::Forbid(buffer_.get(), Shown());
        sanitizer::Allow(line.text, static_cast<std::size_t>(line.end - line.text) + 1);
    }
    [[nodiscard]] std::size_t Shown() const
    {
        return static_cast<std::size_t>(filled_ + kScanPadding - buffer_.get());
    }

    platform::BlockSource& source_;
    ImportObserver* observer_;
    std::unique_ptr<char[]> buffer_;
    std::unique_ptr<char[]> cutLine_;  // made when the first line is cut

    // The part of the file in the buffer that is not read yet, and where it continues.
    char* next_;
    char* filled_;
    std::uint64_t fileOffset_ = 0;     // of filled_
    std::uint64_t fileEnd_ = kAbsent;  // of the text, once it was seen

    bool isIndexed_ = false;
    std::array<std::uint64_t, kSectionHeaders.size()> headers_;
};

}  // namespace tamur
