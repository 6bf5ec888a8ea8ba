#include "host/file/line_walk.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <type_traits>

#include "host/file/texts.h"
#include "import/scan/characters.h"
#include "import/scan/number.h"

namespace tamur::host {
namespace {

// A line has no more characters, so that a larger count cannot be meant.
constexpr std::int32_t kLargestCount = 49999;

constexpr std::int32_t kEndOfTerms = 32767;

template <class Scanner>
inline constexpr bool kIsStream = std::is_same_v<Scanner, StreamScanner>;

}  // namespace

Span LineWalk::WordAt(const char* begin) const
{
    return {PlaceOf(begin), PlaceOf(EndOfWord(begin))};
}

void LineWalk::Restart(std::string_view text)
{
    text_ = text.data();
    end_ = text.data() + text.size();
    line_.identifier = -1;
    line_.pointCount = 0;
    line_.caseNumber = 0;
    line_.type = 0;
    line_.value = 0;
    line_.listCount = 0;
    line_.problem = Problem();
    line_.oddities.clear();
    line_.references.clear();
    line_.cases.clear();
    line_.utf8 = Span();
    line_.textBeforeNumbers = Words();
    group_ = 0;
    labelCount_ = 0;
    announced_ = 0;
    listCode_ = 'F';
    isListIgnored_ = false;
    isAfterWord_ = false;
}

bool LineWalk::ReadStart(std::string_view text, std::size_t first, const Column& column,
                         std::int32_t& value, std::size_t& next)
{
    if (first == 0) Restart(text);
    StreamScanner tokens(text_ + first, end_);
    value = 0;
    const bool isRead = ReadNumber(tokens, column, value);
    next = isRead ? static_cast<std::size_t>(tokens.Place() - text_) : text.size();
    return isRead;
}

const WalkedLine& LineWalk::WalkSetting(std::string_view text, const Column& column)
{
    const ColumnGroup group = {std::span(&column, 1)};
    return Walk(text, 0, std::span(&group, 1), true);
}

const WalkedLine& LineWalk::Walk(std::string_view text, std::size_t first,
                                 std::span<const ColumnGroup> groups, bool isScanned)
{
    if (first == 0) Restart(text);
    if (isScanned) {
        FormatScanner columns(text_ + first);
        WalkGroups(columns, groups);
    } else {
        StreamScanner tokens(text_ + first, end_);
        WalkGroups(tokens, groups);
    }
    return line_;
}

template <class Scanner>
void LineWalk::WalkGroups(Scanner& scanner, std::span<const ColumnGroup> groups)
{
    for (const ColumnGroup& group : groups) {
        group_ = static_cast<std::uint8_t>(&group - groups.data());
        bool goesOn;
        if (group.times == Times::kUpToMarker) {
            goesOn = WalkTerms(scanner, group);
        } else if constexpr (kIsStream<Scanner>) {
            goesOn = group.times == Times::kUpToInfinity
                         ? WalkSpectrum(scanner, group)
                         : WalkGroup(scanner, group, TimesOf(group));
        } else {
            goesOn = WalkGroup(scanner, group, TimesOf(group));
        }
        if (!goesOn) return;
    }
    if (!isListIgnored_) NoteRest(scanner.Place());
}

std::int32_t LineWalk::TimesOf(const ColumnGroup& group) const
{
    const std::int32_t items = isListIgnored_ ? 0 : std::max(line_.listCount, 0);
    switch (group.times) {
        case Times::kEachPoint: return line_.pointCount;
        case Times::kEachLabel: return labelCount_;
        case Times::kEachItem: return items;
        case Times::kEachItemOfS: return listCode_ == 'S' ? items : 0;
        case Times::kRadius:
            return (listCode_ == 'C' || listCode_ == 'F') && !isListIgnored_ ? 1 : 0;
        default: return 1;
    }
}

// False when the line does not go on.
template <class Scanner>
bool LineWalk::WalkGroup(Scanner& scanner, const ColumnGroup& group, std::int32_t times)
{
    announced_ = group.times == Times::kOnce || group.times == Times::kRadius ? 0 : times;
    held_ = 0;
    passedOverStart_ = scanner.Place();
    const std::int64_t rounds = std::int64_t{times} * group.repeated;
    for (std::int64_t i = 0; i < rounds; ++i, ++held_) {
        for (const Column& column : group.columns) {
            if (!Read(scanner, column)) return false;
            if (column.role != Role::kPassedOver) passedOverStart_ = scanner.Place();
        }
    }
    announced_ = 0;
    return line_.problem.what != Problem::What::kImpossibleCount;
}

// Pairs of a case and its factor, up to the marker.
template <class Scanner>
bool LineWalk::WalkTerms(Scanner& scanner, const ColumnGroup& group)
{
    for (;;) {
        const char* const place = SkipBlanks(scanner.Place());
        for (const Column& column : group.columns) {
            const bool isEnd = *SkipBlanks(scanner.Place()) == '\0';
            if (isEnd) {
                NoteProblem({Problem::What::kUnended, &column, WordAt(place)});
                return false;
            }
            if (!Read(scanner, column)) return false;
            const bool isMarker =
                column.role == Role::kCase && line_.cases.back().number == kEndOfTerms;
            if (!isMarker) continue;
            line_.cases.pop_back();
            return true;
        }
        ++line_.listCount;
    }
}

bool LineWalk::WalkSpectrum(StreamScanner& tokens, const ColumnGroup& group)
{
    for (;;) {
        bool isMarker = false;
        for (const Column& column : group.columns) {
            const char* const begin = SkipBlanks(tokens.Place());
            std::string_view word;
            tokens >> word;
            if (tokens.Failed()) {
                NoteProblem({Problem::What::kUnended, &column, WordAt(begin)});
                return false;
            }
            isMarker = isMarker || word == "inf";
            const std::string number(word);
            FormatScanner scanner(number.c_str());
            double value = 0;
            scanner >> value;
            const std::size_t length =
                scanner.Failed() ? 0 : static_cast<std::size_t>(scanner.Place() - number.c_str());
            if (length == word.size()) continue;
            if (length == 0) {
                NoteProblem({Problem::What::kUnreadable, &column, WordAt(begin)});
            } else {
                NoteGlue(column, begin, begin + length);
            }
        }
        if (isMarker) return true;
    }
}

template <class Scanner>
bool LineWalk::Read(Scanner& scanner, const Column& column)
{
    switch (column.type) {
        case ColumnType::kInteger: {
            std::int32_t value = 0;
            return ReadNumber(scanner, column, value);
        }
        case ColumnType::kReal: {
            double value = 0;
            return ReadNumber(scanner, column, value);
        }
        case ColumnType::kWord: return ReadWord(scanner, column);
        default: break;
    }
    if constexpr (kIsStream<Scanner>) {
        if (column.type == ColumnType::kUnsigned) {
            std::uint32_t value = 0;
            return ReadNumber(scanner, column, value);
        }
        if (column.type == ColumnType::kUnsigned16) {
            std::uint16_t value = 0;
            return ReadNumber(scanner, column, value);
        }
        const char* const place = scanner.Place();
        char value = 'F';
        scanner >> value;
        if (scanner.Failed()) {
            NoteFailure(column, place);
            return false;
        }
        if (column.role == Role::kListCode) listCode_ = value;
    }
    isAfterWord_ = false;
    return true;
}

template <class Scanner, class T>
bool LineWalk::ReadNumber(Scanner& scanner, const Column& column, T& value)
{
    const char* const place = scanner.Place();
    scanner >> value;
    if (scanner.Failed()) {
        NoteFailure(column, place);
        return false;
    }
    // The stream passes the blank after a number.
    const char* const next = scanner.Place();
    const bool isFirstAfterText = isAfterWord_ && line_.textBeforeNumbers.column == nullptr;
    if (isFirstAfterText) NoteTextBefore(SkipBlanks(place));
    isAfterWord_ = false;
    const bool isGlued = *next != '\0' && !IsBlank(*next) && !IsBlank(next[-1]);
    if (isGlued) NoteGlue(column, SkipBlanks(place), next);
    if constexpr (std::is_floating_point_v<T>) {
        if (std::isinf(value) && IsDigit(next[-1])) {
            NoteOddity(Oddity::What::kInfinite, column, WordAt(SkipBlanks(place)), 0);
        }
    } else {
        const char* const begin = SkipBlanks(place);
        NoteInteger(column, begin, next, static_cast<std::int64_t>(value));
    }
    return true;
}

template <class Scanner>
bool LineWalk::ReadWord(Scanner& scanner, const Column& column)
{
    const char* const place = scanner.Place();
    std::string_view word;
    scanner >> word;
    if (scanner.Failed()) {
        NoteFailure(column, place);
        return false;
    }
    isAfterWord_ = true;
    const char* const end = word.data() + word.size();
    const bool isCut = word.size() == kLongestColumn && *end != '\0' && !IsBlank(*end);
    const Span text = {PlaceOf(word.data()), PlaceOf(end)};
    lastWord_ = {&column, text};
    if (!kIsStream<Scanner> && isCut) NoteProblem({Problem::What::kWordCut, &column, text});
    if (line_.utf8.end == 0 && LooksLikeUtf8(word)) line_.utf8 = text;
    return true;
}

void LineWalk::NoteInteger(const Column& column, const char* begin, const char* end,
                           std::int64_t value)
{
    const std::int32_t number = static_cast<std::int32_t>(value);
    line_.value = number;
    switch (column.role) {
        case Role::kIdentifier: line_.identifier = value; break;
        case Role::kPointCount:
        case Role::kLabelCount:
        case Role::kListCount: NoteCount(column, begin, number); break;
        case Role::kCase:
            line_.caseNumber = number;
            line_.cases.push_back({&column, number, WordAt(begin)});
            break;
        case Role::kMaterial:
        case Role::kSection:
        case Role::kRelease: line_.references.push_back({&column, number, WordAt(begin)}); break;
        case Role::kLowByte:
            line_.type = number & 0xFF;
            if (value < 0 || value > 255) {
                NoteOddity(Oddity::What::kLowByte, column, WordAt(begin), line_.type);
            }
            break;
        default: break;
    }
    const bool isKnown =
        column.largestCode == 0 || (value >= column.smallestCode && value <= column.largestCode);
    if (!isKnown) NoteOddity(Oddity::What::kCode, column, WordAt(begin), value);
    const bool isUnsigned =
        column.type == ColumnType::kUnsigned || column.type == ColumnType::kUnsigned16;
    if (isUnsigned && *begin == '-' && value != 0) {
        NoteOddity(Oddity::What::kNegative, column, WordAt(begin), value);
    }
    const bool isAtLimit = number == std::numeric_limits<std::int32_t>::max() ||
                           number == std::numeric_limits<std::int32_t>::min();
    if (isUnsigned || !isAtLimit || end == begin) return;
    const IntegerText written = ReadIntegerText(begin);
    const std::uint64_t magnitude = static_cast<std::uint64_t>(value < 0 ? -value : value);
    if (written.magnitude != magnitude) {
        NoteOddity(Oddity::What::kClamped, column, WordAt(begin), value);
    }
}

// A count beyond any line drops an element, which is not walked on, or ignores a list.
void LineWalk::NoteCount(const Column& column, const char* begin, std::int32_t value)
{
    // Points take a character each at least.
    const std::size_t count = static_cast<std::size_t>(std::max(value, 0));
    const bool isImpossible =
        column.role == Role::kPointCount ? strnlen(text_, count) < count : value > kLargestCount;
    const bool isElement = column.role != Role::kListCount;
    if (isImpossible || value < 0) {
        Problem problem = {
            isImpossible ? Problem::What::kImpossibleCount : Problem::What::kNegativeCount, &column,
            WordAt(begin)};
        problem.announced = value;
        NoteProblem(problem);
        isListIgnored_ = isListIgnored_ || !isElement;
    }
    const std::int32_t kept = isImpossible ? 0 : std::max(value, 0);
    if (column.role == Role::kPointCount) line_.pointCount = kept;
    if (column.role == Role::kLabelCount) labelCount_ = kept;
    if (column.role == Role::kListCount) line_.listCount = isImpossible ? 0 : value;
}

void LineWalk::NoteGlue(const Column& column, const char* begin, const char* end)
{
    const auto what = *end == ',' ? Problem::What::kDecimalComma : Problem::What::kGlued;
    NoteProblem({what, &column, WordAt(begin), PlaceOf(end)});
}

void LineWalk::NoteFailure(const Column& column, const char* place)
{
    const char* const begin = SkipBlanks(place);
    Problem problem = {Problem::What::kUnreadable, &column, WordAt(begin)};
    problem.announced = announced_;
    problem.held = held_;
    if (*begin == '\0') {
        // Of columns that are not read all are there or none; some are others that were moved.
        if (column.role == Role::kPassedOver) return NoteRest(passedOverStart_);
        if (column.role == Role::kOptional) return;
        problem.what = announced_ > 0 ? Problem::What::kListEnds : Problem::What::kEnds;
    } else if (column.role == Role::kPassedOver) {
        return NoteRest(begin);
    } else if (isAfterWord_) {
        problem.what = Problem::What::kTextInNumber;
    }
    NoteProblem(problem);
}

void LineWalk::NoteRest(const char* place)
{
    const char* const begin = SkipBlanks(place);
    if (*begin == '\0') return;
    const char* end = begin + std::strlen(begin);
    while (IsBlank(end[-1])) --end;
    NoteProblem({Problem::What::kLeftOver, nullptr, {PlaceOf(begin), PlaceOf(end)}});
}

void LineWalk::NoteTextBefore(const char* number)
{
    line_.textBeforeNumbers = lastWord_;
    line_.textBeforeNumbers.text.end = WordAt(number).end;
}

void LineWalk::NoteProblem(const Problem& problem)
{
    if (line_.problem.what != Problem::What::kFine) return;
    line_.problem = problem;
    line_.problem.group = group_;
}

void LineWalk::NoteOddity(Oddity::What what, const Column& column, Span text, std::int64_t value)
{
    constexpr std::size_t kMost = 8;
    if (line_.oddities.size() < kMost) line_.oddities.push_back({what, &column, text, value});
}

}  // namespace tamur::host
