// Walks along a line as the import does, with the import's own scanners, and notes where the line
// and what is read from it differ.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include "host/file/columns.h"
#include "import/scan/format_scanner.h"
#include "import/scan/stream_scanner.h"

namespace tamur::host {

// A part of a line, in characters from its start.
struct Span {
    std::uint32_t begin = 0;
    std::uint32_t end = 0;
};

// What is first wrong with a line; everything after it may be a consequence.
struct Problem {
    enum class What : std::uint8_t {
        kFine,
        kUnreadable,    // the text stands where the column is
        kTextInNumber,  // the same, right after texts: one of them has a blank
        kEnds,          // the line ends before the column
        kListEnds,      // the line ends within the values of a list or of points or labels
        kDecimalComma,  // of the text only what is before `read` is taken
        kGlued,         // the same: the next column begins within the text
        kLeftOver,      // after the last column
        kImpossibleCount,
        kNegativeCount,
        kUnended,  // no end marker
        kWordCut,  // the rest of the word is the next column
    };
    What what = What::kFine;
    const Column* column = nullptr;
    Span text;
    std::uint32_t read = 0;      // the end of what was taken of the text
    std::int32_t announced = 0;  // of a list
    std::int32_t held = 0;
    std::uint8_t group = 0;  // of the layout, from 0: where it is
};

// A column that was read and does not hold what is written.
struct Oddity {
    enum class What : std::uint8_t { kLowByte, kClamped, kNegative, kInfinite, kCode };
    What what;
    const Column* column;
    Span text;
    std::int64_t value;
};

// A number by which a line names another record.
struct Reference {
    const Column* column;
    std::int32_t number;
    Span text;
};

struct Words {
    const Column* column = nullptr;
    Span text;
};

// What a line holds, as far as other lines depend on it.
struct WalkedLine {
    std::int64_t identifier = -1;
    std::int32_t pointCount = 0;
    std::int32_t caseNumber = 0;
    std::int32_t type = 0;       // of a load case
    std::int32_t value = 0;      // of a setting
    std::int32_t listCount = 0;  // as it counts; of a combination, its complete pairs
    Problem problem;
    std::vector<Oddity> oddities;
    std::vector<Reference> references;
    std::vector<Reference> cases;  // that a combination or an envelope names
    Span utf8;                     // a text that looks like UTF-8; empty when none does
    // The first text that a number follows, with that: it may be one text with a blank.
    Words textBeforeNumbers;
};

class LineWalk {
 public:
    // The text is readable as the scanners need it. Columns before `first` are not walked.
    const WalkedLine& Walk(std::string_view text, std::size_t first,
                           std::span<const ColumnGroup> groups, bool isScanned);

    // The one column of a line.
    const WalkedLine& WalkSetting(std::string_view text, const Column& column);

    // What an element or parameter line begins with; false, with a problem, when it cannot be read.
    // `next` is where the columns after it begin.
    bool ReadStart(std::string_view text, std::size_t first, const Column& column,
                   std::int32_t& value, std::size_t& next);

    [[nodiscard]] const WalkedLine& Last() const { return line_; }

 private:
    void Restart(std::string_view text);

    template <class Scanner>
    void WalkGroups(Scanner& scanner, std::span<const ColumnGroup> groups);
    template <class Scanner>
    bool WalkGroup(Scanner& scanner, const ColumnGroup& group, std::int32_t times);
    template <class Scanner>
    bool WalkTerms(Scanner& scanner, const ColumnGroup& group);
    bool WalkSpectrum(StreamScanner& tokens, const ColumnGroup& group);
    [[nodiscard]] std::int32_t TimesOf(const ColumnGroup& group) const;

    template <class Scanner>
    bool Read(Scanner& scanner, const Column& column);
    template <class Scanner, class T>
    bool ReadNumber(Scanner& scanner, const Column& column, T& value);
    template <class Scanner>
    bool ReadWord(Scanner& scanner, const Column& column);

    void NoteInteger(const Column& column, const char* begin, const char* end, std::int64_t value);
    void NoteCount(const Column& column, const char* begin, std::int32_t value);
    void NoteGlue(const Column& column, const char* begin, const char* end);
    void NoteFailure(const Column& column, const char* place);
    void NoteRest(const char* place);
    void NoteTextBefore(const char* number);
    void NoteProblem(const Problem& problem);
    void NoteOddity(Oddity::What what, const Column& column, Span text, std::int64_t value);

    [[nodiscard]] std::uint32_t PlaceOf(const char* at) const
    {
        return static_cast<std::uint32_t>(at - text_);
    }
    [[nodiscard]] Span WordAt(const char* begin) const;

    const char* text_ = "";
    const char* end_ = text_;
    WalkedLine line_;
    std::uint8_t group_ = 0;
    const char* passedOverStart_ = text_;  // after the last column that the import reads
    Words lastWord_;
    std::int32_t labelCount_ = 0;
    std::int32_t announced_ = 0;  // of the list that is being walked, 0 outside of lists
    std::int32_t held_ = 0;
    char listCode_ = 'F';
    bool isListIgnored_ = false;
    bool isAfterWord_ = false;
};

}  // namespace tamur::host
