#include "host/file/file_scan.h"

#include <algorithm>
#include <cstring>

#include "host/file/header_names.h"
#include "host/file/texts.h"
#include "import/scan/characters.h"

namespace tamur::host {
namespace {

// Without its line end, and without what is after a NUL.
std::string_view TextOfLine(std::string_view line)
{
    if (line.ends_with('\n')) {
        line.remove_suffix(1);
        if (line.ends_with('\r')) line.remove_suffix(1);
    }
    return line.substr(0, line.find('\0'));
}

std::string_view WithoutBlanks(std::string_view text)
{
    while (!text.empty() && IsBlank(text[0])) text.remove_prefix(1);
    return text;
}

}  // namespace

bool FileScan::Has(SectionHeader plain) const
{
    for (std::size_t i = 0; i < headers_.size(); ++i) {
        const auto header = static_cast<SectionHeader>(i);
        if (PlainOf(header) == plain && Of(header).line != 0) return true;
    }
    return false;
}

bool FileScan::IsUtf16() const
{
    return start_.starts_with("\xFF\xFE") || start_.starts_with("\xFE\xFF") ||
           (start_.size() > 1 && start_[0] == '#' && start_[1] == '\0');
}

bool FileScan::HasOnlyReturns() const
{
    return hasReturn_ && !hasFeed_;
}

void FileScan::Add(std::string_view piece)
{
    hasReturn_ = hasReturn_ || piece.find('\r') != piece.npos;
    hasFeed_ = hasFeed_ || piece.find('\n') != piece.npos;
    if (start_.empty()) start_ = piece.substr(0, kUtf8Mark.size());
    while (!piece.empty()) {
        const std::size_t feed = piece.find('\n');
        const std::size_t size = feed == piece.npos ? piece.size() : feed + 1;
        AddLine(piece.substr(0, size), bytes_);
        bytes_ += size;
        piece.remove_prefix(size);
    }
}

void FileScan::AddLine(std::string_view line, std::uint64_t offset)
{
    if (isCut_) {
        ++cutRests_;
    } else {
        ++line_;
    }
    isCut_ = !line.ends_with('\n');
    const char first = line[0];
    if (first == '#') return AddSharp(line, offset);
    ++now_->lines;
    const bool isEmpty = first == '\n' || first == '\0' || line == "\r\n";
    if (isEmpty) {
        ++now_->empty;
        return;
    }
    if (now_ == &beforeHeaders_ && firstDataLine_ == 0) firstDataLine_ = Lines();
    if (!WithoutBlanks(line).starts_with('#')) return AddWord(line);
    // A blank makes it a line of data.
    if (const auto meant = HeaderMeantBy(TextOfLine(line))) AddNear(line, *meant);
}

// A line that is but one word may be a header that lost its "#". Few lines are; no file makes more
// work than that of some.
void FileScan::AddWord(std::string_view line)
{
    constexpr std::size_t kLongest = 32;
    constexpr std::uint32_t kMost = 1000;
    if (line.size() > kLongest || words_ == kMost) return;
    std::string_view word = WithoutBlanks(TextOfLine(line));
    while (!word.empty() && IsBlank(word.back())) word.remove_suffix(1);
    const auto isLetter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
    if (word.empty() || !isLetter(word[0]) || std::any_of(word.begin(), word.end(), IsBlank))
        return;
    ++words_;
    const auto meant = HeaderMeantBy('#' + std::string(word));
    if (!meant || named_[static_cast<std::size_t>(*meant)]) return;
    const std::string_view text = TextOfLine(line);
    named_[static_cast<std::size_t>(*meant)] = {AnsiToUtf8(text), PlaceOf(text), now_};
}

std::uint32_t FileScan::MeantEndOf(SectionHeader header) const
{
    std::uint32_t end = 0;
    for (std::size_t i = 0; i < kSectionHeaders.size(); ++i) {
        const auto& near = NearOf(static_cast<SectionHeader>(i));
        if (!near || near->within != &Of(header).stretch) continue;
        if (end == 0 || near->place.line < end) end = near->place.line;
    }
    return end;
}

void FileScan::AddSharp(std::string_view line, std::uint64_t offset)
{
    ++headerLines_;
    EndUnknown();
    const std::string_view text = TextOfLine(line);
    const auto known = std::find(kSectionHeaders.begin(), kSectionHeaders.end(), text);
    if (known == kSectionHeaders.end()) {
        now_ = &foreign_;
        if (const auto meant = HeaderMeantBy(text)) return AddNear(line, *meant);
        unknown_ = {AnsiToUtf8(text), PlaceOf(text), nullptr};
        dataBeforeUnknown_ = foreign_.Data();
        return;
    }
    FoundHeader& header = headers_[static_cast<std::size_t>(known - kSectionHeaders.begin())];
    if (header.line != 0) {
        now_ = &foreign_;
        const SectionHeader plain =
            PlainOf(static_cast<SectionHeader>(known - kSectionHeaders.begin()));
        return findings_.Add(RepeatedHeader(plain, Lines(), header.line));
    }
    header.line = Lines();
    header.offset = offset;
    now_ = &header.stretch;
}

// What is under a header decides how much it matters.
void FileScan::EndUnknown()
{
    if (!unknown_) return;
    const std::uint64_t lost = foreign_.Data() - dataBeforeUnknown_;
    findings_.Add({.code = lost > 0 ? Code::kUnknownHeader : Code::kUnknownHeaderAlone,
                   .place = unknown_->place,
                   .values = {unknown_->text, std::to_string(lost)}});
    unknown_.reset();
}

void FileScan::AddNear(std::string_view line, SectionHeader meant)
{
    std::optional<NearHeader>& near = near_[static_cast<std::size_t>(meant)];
    const bool isFirst = !near.has_value();
    if (!isFirst && !findings_.Holds(Code::kMisspeltHeader)) {
        return findings_.Count(Code::kMisspeltHeader);
    }
    const std::string_view text = TextOfLine(line);
    const bool isData = !text.starts_with('#');
    NearHeader found = {AnsiToUtf8(text), PlaceOf(text), isData ? now_ : nullptr};
    if (!isFirst) return findings_.Add(MisspeltHeader(found, meant));
    near = std::move(found);
}

Place FileScan::PlaceOf(std::string_view text) const
{
    return {.line = Lines(), .column = 1, .length = static_cast<std::uint32_t>(text.size())};
}

Finding MisspeltHeader(const NearHeader& near, SectionHeader meant)
{
    return {.code = Code::kMisspeltHeader,
            .place = near.place,
            .values = {near.text, std::string(PlainTextOf(meant))}};
}

Finding RepeatedHeader(SectionHeader header, std::uint32_t line, std::uint32_t countingLine)
{
    const std::string text(PlainTextOf(header));
    return {.code = Code::kRepeatedHeader,
            .place = {.line = line, .column = 1, .length = static_cast<std::uint32_t>(text.size())},
            .values = {text, std::to_string(countingLine)}};
}

}  // namespace tamur::host
