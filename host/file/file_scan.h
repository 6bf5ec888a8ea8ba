// The text of a model file as it is, before anything is read of it: its lines, its headers, and
// what is between them.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "host/findings/findings.h"
#include "import/file/section_header.h"

namespace tamur::host {

// A stretch of lines: those under a header, without it.
struct Stretch {
    std::uint64_t lines = 0;
    std::uint64_t empty = 0;

    [[nodiscard]] std::uint64_t Data() const { return lines - empty; }
};

// A line that is nearly a header.
struct NearHeader {
    std::string text;  // UTF-8
    Place place;
    const Stretch* within = nullptr;  // that it is a line of data of; null when it ends that
};

// A header that the import knows, where it counts.
struct FoundHeader {
    std::uint32_t line = 0;  // 0 for one that is nowhere
    std::uint64_t offset = 0;
    Stretch stretch;
};

class FileScan {
 public:
    explicit FileScan(Findings& findings) : findings_(findings) {}
    FileScan(const FileScan&) = delete;
    FileScan& operator=(const FileScan&) = delete;

    // The next piece of the text: it begins where a line does.
    void Add(std::string_view piece);
    // After the last one.
    void Finish() { EndUnknown(); }

    // Of the section with that header, by its spelling; the accented one as it is.
    [[nodiscard]] const FoundHeader& Of(SectionHeader header) const
    {
        return headers_[static_cast<std::size_t>(header)];
    }
    // By either spelling.
    [[nodiscard]] bool Has(SectionHeader plain) const;

    // The first line that seems to mean a section, by its plain header. Further ones are findings.
    [[nodiscard]] const std::optional<NearHeader>& NearOf(SectionHeader plain) const
    {
        const auto i = static_cast<std::size_t>(plain);
        return near_[i] || Has(plain) ? near_[i] : named_[i];
    }
    // The first line of the section from which on its lines seem to be of another; 0 for none.
    [[nodiscard]] std::uint32_t MeantEndOf(SectionHeader header) const;

    [[nodiscard]] std::uint64_t Bytes() const { return bytes_; }
    // Lines of the file, and those that the import makes of what is cut off them.
    [[nodiscard]] std::uint32_t Lines() const { return line_; }
    [[nodiscard]] std::uint64_t CutRests() const { return cutRests_; }
    [[nodiscard]] std::uint64_t HeaderLines() const { return headerLines_; }
    [[nodiscard]] const Stretch& BeforeHeaders() const { return beforeHeaders_; }
    [[nodiscard]] std::uint32_t FirstDataLine() const { return firstDataLine_; }  // of those
    [[nodiscard]] const Stretch& Foreign() const { return foreign_; }  // unknown or repeated
    [[nodiscard]] bool HasByteOrderMark() const { return start_.starts_with("\xEF\xBB\xBF"); }
    [[nodiscard]] bool IsUtf16() const;
    // No line ends where the import ends one.
    [[nodiscard]] bool HasOnlyReturns() const;

 private:
    void AddLine(std::string_view line, std::uint64_t offset);
    void AddSharp(std::string_view line, std::uint64_t offset);
    void EndUnknown();
    void AddWord(std::string_view line);
    void AddNear(std::string_view line, SectionHeader meant);
    [[nodiscard]] Place PlaceOf(std::string_view line) const;

    Findings& findings_;
    std::array<FoundHeader, kSectionHeaders.size()> headers_;
    std::array<std::optional<NearHeader>, kSectionHeaders.size()> near_;
    // Header words without their "#", which may be anything where the section is there.
    std::array<std::optional<NearHeader>, kSectionHeaders.size()> named_;
    std::uint32_t words_ = 0;
    Stretch beforeHeaders_;
    Stretch foreign_;
    Stretch* now_ = &beforeHeaders_;  // what the lines belong to
    std::string start_;
    std::uint64_t bytes_ = 0;
    std::uint32_t line_ = 0;
    std::uint64_t cutRests_ = 0;
    std::uint64_t headerLines_ = 0;
    std::uint32_t firstDataLine_ = 0;
    bool isCut_ = false;
    bool hasReturn_ = false;
    bool hasFeed_ = false;
    std::optional<NearHeader> unknown_;  // the header of the section that is passed over now
    std::uint64_t dataBeforeUnknown_ = 0;
};

// What is said of a line that is nearly a header.
[[nodiscard]] Finding MisspeltHeader(const NearHeader& near, SectionHeader meant);

// A section that is there once more.
[[nodiscard]] Finding RepeatedHeader(SectionHeader header, std::uint32_t line,
                                     std::uint32_t countingLine);

}  // namespace tamur::host
