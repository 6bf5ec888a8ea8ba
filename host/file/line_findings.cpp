#include "host/file/line_findings.h"

#include <algorithm>

#include "host/file/texts.h"

namespace tamur::host {
namespace {

using Values = std::vector<std::string>;

// Short lines that are held until it is known whether all of their kind are so.
constexpr std::size_t kMostHeld = 1000;

Code CodeOf(const Problem& problem, Kind kind)
{
    switch (problem.what) {
        case Problem::What::kTextInNumber: return Code::kBlankInText;
        case Problem::What::kListEnds: return Code::kListShort;
        case Problem::What::kDecimalComma: return Code::kDecimalComma;
        case Problem::What::kGlued: return Code::kColumnSplit;
        case Problem::What::kWordCut: return Code::kWordCut;
        case Problem::What::kLeftOver: return Code::kTextLeftOver;
        case Problem::What::kImpossibleCount:
        case Problem::What::kNegativeCount: return Code::kCountIgnored;
        case Problem::What::kUnended:
            return kind == Kind::kSeismicCase ? Code::kSpectrumUnended : Code::kCombinationUnended;
        default: return Code::kUnreadableColumn;
    }
}

Code CodeOf(Oddity::What what)
{
    switch (what) {
        case Oddity::What::kLowByte: return Code::kCutToByte;
        case Oddity::What::kClamped: return Code::kClamped;
        case Oddity::What::kNegative: return Code::kNegativeUnsigned;
        case Oddity::What::kInfinite: return Code::kInfinite;
        default: return Code::kUnknownCode;
    }
}

// Releases and parameters have texts further on, where a blank moves nothing that counts.
bool MayHaveMoved(Kind kind, const WalkedLine& walked)
{
    return walked.textBeforeNumbers.column != nullptr && kind != Kind::kRelease &&
           kind != Kind::kModes && kind != Kind::kSeismicCase;
}

}  // namespace

std::string SpokenLine::TextOf(Span span) const
{
    return AnsiToUtf8(text.substr(span.begin, span.end - span.begin));
}

Finding SpokenLine::Of(Finding finding) const
{
    if (finding.place.line == 0) finding.place.line = line;
    finding.kind = kind;
    finding.identifier = identifier;
    return finding;
}

template <class MakeValues>
void LineFindings::Report(Code code, const SpokenLine& line, Span span, const Column* column,
                          MakeValues values)
{
    if (!findings_.Holds(code)) return findings_.Count(code);
    Finding finding = {.code = code, .place = line.PlaceOf(span), .values = values()};
    if (column != nullptr) finding.column = column->name;
    findings_.Add(line.Of(std::move(finding)));
}

bool LineFindings::IsMisread(const WalkedLine& walked)
{
    const auto isOther = [](const Oddity& oddity) { return oddity.what != Oddity::What::kCode; };
    return walked.problem.what != Problem::What::kFine ||
           std::any_of(walked.oddities.begin(), walked.oddities.end(), isOther);
}

void LineFindings::Add(const SpokenLine& line, const WalkedLine& walked,
                       const ReferenceCounts& counts)
{
    AddUtf8(line, walked);
    if (walked.problem.what == Problem::What::kEnds) return AddEnd(line, walked.problem);
    if (walked.problem.what != Problem::What::kFine) return AddProblem(line, walked);
    for (const Oddity& oddity : walked.oddities) AddOddity(line, oddity);
    AddReferences(line, walked, counts);
}

void LineFindings::AddProblem(const SpokenLine& line, const WalkedLine& walked)
{
    const Problem& problem = walked.problem;
    const Code code = CodeOf(problem, line.kind);
    if (code == Code::kTextLeftOver && MayHaveMoved(line.kind, walked)) {
        return AddMoved(line, walked);
    }
    Report(code, line, problem.text, problem.column, [&]() -> Values {
        switch (code) {
            case Code::kListShort:
                return {std::to_string(problem.announced), std::to_string(problem.held)};
            case Code::kCombinationUnended: return {std::to_string(walked.listCount)};
            default:
                return {
                    line.TextOf(problem.text),
                    line.TextOf({problem.text.begin, std::max(problem.read, problem.text.begin)})};
        }
    });
}

// A column too many, in a line where a text with a blank makes one.
void LineFindings::AddMoved(const SpokenLine& line, const WalkedLine& walked)
{
    const Words& words = walked.textBeforeNumbers;
    Report(Code::kColumnsMoved, line, words.text, words.column, [&]() -> Values {
        return {line.TextOf(words.text), line.TextOf(walked.problem.text)};
    });
}

void LineFindings::AddEnd(const SpokenLine& line, const Problem& problem)
{
    Ends& ends = ends_[{line.kind, problem.column}];
    ++ends.count;
    if (ends.findings.size() == kMostHeld) return;
    ends.findings.push_back(line.Of({.code = Code::kLineEndsEarly,
                                     .place = line.PlaceOf(problem.text),
                                     .column = problem.column->name}));
}

// An unknown code is said once of a column: it may be the rule in a file.
void LineFindings::AddOddity(const SpokenLine& line, const Oddity& oddity)
{
    const Code code = CodeOf(oddity.what);
    if (code == Code::kUnknownCode) {
        UnknownCodes& unknown = unknownCodes_[{line.kind, oddity.column}];
        if (unknown.count++ > 0) return;
        unknown.first = line.Of({.code = code,
                                 .place = line.PlaceOf(oddity.text),
                                 .values = {line.TextOf(oddity.text)},
                                 .column = oddity.column->name});
        return;
    }
    Report(code, line, oddity.text, oddity.column, [&]() -> Values {
        return {line.TextOf(oddity.text), std::to_string(oddity.value)};
    });
}

// An empty table is said once, at the end.
void LineFindings::AddReferences(const SpokenLine& line, const WalkedLine& walked,
                                 const ReferenceCounts& counts)
{
    const auto isAsBefore = [&](const Reference& reference) {
        const auto same = [&](const Reference& other) {
            return other.column->role == reference.column->role &&
                   (other.number == reference.number);
        };
        return &*std::find_if(walked.references.begin(), walked.references.end(), same) !=
               &reference;
    };
    bool usesMaterial = false, usesSection = false, usesRelease = false;
    for (const Reference& reference : walked.references) {
        const Role role = reference.column->role;
        const std::uint64_t count = role == Role::kMaterial  ? counts.materials
                                    : role == Role::kSection ? counts.sections
                                                             : counts.releases;
        bool& usesNone = role == Role::kMaterial  ? usesMaterial
                         : role == Role::kSection ? usesSection
                                                  : usesRelease;
        usesNone = usesNone || count == 0;
        const bool isThere =
            reference.number >= 1 && static_cast<std::uint64_t>(reference.number) <= count;
        if (count == 0 || isThere || isAsBefore(reference)) continue;
        const Code code = role == Role::kMaterial  ? Code::kNoSuchMaterial
                          : role == Role::kSection ? Code::kNoSuchSection
                                                   : Code::kNoSuchRelease;
        Report(code, line, reference.text, reference.column,
               [&]() -> Values { return {std::to_string(reference.number)}; });
    }
    defaultMaterialUsers_ += usesMaterial ? 1 : 0;
    defaultSectionUsers_ += usesSection ? 1 : 0;
    noReleaseUsers_ += usesRelease ? 1 : 0;
}

// The whole file is, if one text is.
void LineFindings::AddUtf8(const SpokenLine& line, const WalkedLine& walked)
{
    if (hasUtf8_ || walked.utf8.end == 0) return;
    hasUtf8_ = true;
    Report(Code::kUtf8Text, line, walked.utf8, nullptr, [&]() -> Values {
        return {
            std::string(line.text.substr(walked.utf8.begin, walked.utf8.end - walked.utf8.begin))};
    });
}

void LineFindings::Finish(const Balance& balance)
{
    for (auto& [where, unknown] : unknownCodes_) {
        unknown.first.values.push_back(std::to_string(unknown.count));
        findings_.Add(std::move(unknown.first));
    }
    for (auto& [where, ends] : ends_) {
        const std::uint64_t lines = balance.Of(where.first).records;
        if (where.first != Kind::kNone && lines > 1 && ends.count == lines) {
            Finding absent = std::move(ends.findings.front());
            absent.code = Code::kColumnsAbsent;
            absent.identifier = Finding::kNoIdentifier;
            absent.values = {std::to_string(lines)};
            findings_.Add(std::move(absent));
            continue;
        }
        const std::uint64_t unheld = ends.count - ends.findings.size();
        for (Finding& finding : ends.findings) findings_.Add(std::move(finding));
        for (std::uint64_t i = 0; i < unheld; ++i) findings_.Count(Code::kLineEndsEarly);
    }
}

}  // namespace tamur::host
