#include "host/file/import_audit.h"

#include <algorithm>
#include <cstring>

#include "host/file/header_names.h"
#include "host/file/refusals.h"
#include "host/file/texts.h"
#include "import/scan/characters.h"

namespace tamur::host {
namespace {

// What the one line of a setting is read as; null for the version, which is a text.
const Column* SettingOf(SectionHeader section)
{
    switch (section) {
        case SectionHeader::kServicePack: return &kServicePack;
        case SectionHeader::kWorkSpace: return &kWorkSpace;
        case SectionHeader::kTolerance: return &kTolerance;
        case SectionHeader::kRigidity: return &kRigidity;
        default: return nullptr;
    }
}

Kind KindOfTable(SectionHeader section)
{
    switch (PlainOf(section)) {
        case SectionHeader::kGroups: return Kind::kGroup;
        case SectionHeader::kMaterials: return Kind::kMaterial;
        case SectionHeader::kGeometries: return Kind::kSection;
        case SectionHeader::kReleases: return Kind::kRelease;
        default: return Kind::kCase;
    }
}

Kind KindOfParameters(std::int32_t number)
{
    switch (number) {
        case 2: return Kind::kCombination;
        case 3: return Kind::kModes;
        case 4: return Kind::kSeismicCase;
        case 9: return Kind::kEnvelope;
        default: return Kind::kNone;
    }
}

// Below 12.2A, as texts compare, bars end with their offset.
bool HasBarEnd(const std::string& version)
{
    return std::strncmp(version.c_str(), "12.2A", 6) >= 0;
}

bool IsUnread(const Problem& problem)
{
    return problem.what == Problem::What::kUnreadable ||
           problem.what == Problem::What::kTextInNumber;
}

}  // namespace

void ImportAudit::OnSection(SectionHeader header, std::uint64_t)
{
    CloseLine();
    EndSetting();
    if (IsExplained(SectionHeader::kCases)) lines_.MarkAnyCaseLost();
    section_ = header;
    explainedFrom_ = scan_.MeantEndOf(header);
    read_.insert(header);
    line_ = scan_.Of(header).line;
    column_ = 0;
    cutSize_ = 0;
    isValueRead_ = !IsSetting(header);
}

void ImportAudit::OnLine(std::string_view text, bool isCut)
{
    CloseLine();
    const bool isRest = cutSize_ != 0;
    line_ += isRest ? 0 : 1;
    column_ = isRest ? column_ + cutSize_ : 0;
    cutSize_ = isCut ? static_cast<std::uint32_t>(text.size()) : 0;
    now_ = {};
    now_.isExplained = isRest || (explainedFrom_ != 0 && line_ >= explainedFrom_);
    now_.line = line_;
    now_.column = column_;
    if (IsSetting(*section_)) return ReadSetting(text);
    SectionBalance& section = balance_.Of(*section_);
    const bool isEmpty = *text.data() == '\0';
    ++(isEmpty ? section.empty : section.data);
    if (isEmpty || !walksLines_) return;
    now_.isOpen = true;
    now_.isBlank = *SkipBlanks(text.data()) == '\0';
    switch (PlainOf(*section_)) {
        case SectionHeader::kCaseParameters: ReadParameterLine(text); break;
        case SectionHeader::kElements: ReadElementLine(text); break;
        default: ReadTableLine(KindOfTable(*section_), text); break;
    }
    if (!LineFindings::IsPlain(walk_.Last()) || !walk_.Last().references.empty()) text_ = text;
    CheckEnd(text, isCut);
}

// Only the line after the header is read, even if it is a header itself.
void ImportAudit::ReadSetting(std::string_view text)
{
    const char first = *text.data();  // a NUL where there is none
    const bool isHeader = first == '#';
    const bool isEmpty = *SkipBlanks(text.data()) == '\0';
    SectionBalance& section = balance_.Of(*section_);
    if (!isHeader) ++(first == '\0' ? section.empty : section.data);
    if (*section_ == SectionHeader::kVersion) version_ = AnsiToUtf8(text);
    const Column* const column = SettingOf(*section_);
    if (column == nullptr || isEmpty || isHeader) {
        isValueRead_ = column == nullptr && !isEmpty && !isHeader;
        return;
    }
    isValueRead_ = true;
    const WalkedLine& walked = walk_.WalkSetting(text, *column);
    if (*section_ == SectionHeader::kServicePack) servicePack_ = walked.value;
    lineFindings_.Add({.line = line_, .text = text}, walked, {});
}

// A setting that has no value.
void ImportAudit::EndSetting()
{
    if (isValueRead_ || !section_) return;
    isValueRead_ = true;
    // Without a service pack there is none; without a version the file is refused.
    if (*section_ <= SectionHeader::kServicePack) return;
    emptySettings_.insert(*section_);
    findings_.Add({.code = Code::kSettingEmpty,
                   .place = {.line = scan_.Of(*section_).line},
                   .values = {std::string(PlainTextOf(*section_))}});
}

void ImportAudit::ReadTableLine(Kind kind, std::string_view text)
{
    now_.kind = kind;
    const Layout& layout = LayoutOf(kind);
    walk_.Walk(text, 0, layout.groups, layout.isScanned);
}

void ImportAudit::ReadParameterLine(std::string_view text)
{
    std::size_t next = 0;
    std::int32_t caseNumber = 0;
    now_.isStartRead = walk_.ReadStart(text, 0, kParameterCase, caseNumber, next) &&
                       walk_.ReadStart(text, next, kParameterKind, now_.number, next);
    now_.caseNumber = caseNumber;
    now_.kind = KindOfParameters(now_.number);
    if (now_.kind != Kind::kNone) walk_.Walk(text, next, LayoutOf(now_.kind).groups, false);
}

void ImportAudit::ReadElementLine(std::string_view text)
{
    std::size_t next = 0;
    now_.isStartRead = walk_.ReadStart(text, 0, kElementKind, now_.number, next);
    now_.kind = KindOfElement(now_.number);
    if (now_.kind == Kind::kNone) return;
    std::span<const ColumnGroup> groups = LayoutOf(now_.kind).groups;
    if (now_.kind == Kind::kBar && !HasBarEnd(version_)) groups = groups.first(groups.size() - 1);
    walk_.Walk(text, next, groups, false);
}

// What of the file's line is not in the text that is read.
void ImportAudit::CheckEnd(std::string_view text, bool isCut)
{
    if (isCut) {
        findings_.Add(Spoken().Of({.code = Code::kLineCut, .place = {.line = line_}}));
        ExplainEnd();
    }
    const std::size_t nul = text.find('\0');
    if (nul == text.npos) return;
    std::string_view rest = text.substr(nul);
    rest.remove_prefix(
        std::min(rest.find_first_not_of(std::string_view("\0 \t\r", 4)), rest.size()));
    if (rest.empty()) return;
    ExplainEnd();
    if (!findings_.Holds(Code::kTextAfterNul)) return findings_.Count(Code::kTextAfterNul);
    findings_.Add(Spoken().Of({.code = Code::kTextAfterNul,
                               .place = {.line = line_,
                                         .column = column_ + static_cast<std::uint32_t>(nul) + 1,
                                         .length = static_cast<std::uint32_t>(text.size() - nul)},
                               .values = {AnsiToUtf8(rest)}}));
}

// What the line lacks is in the part of it that was said not to be read.
void ImportAudit::ExplainEnd()
{
    const auto what = walk_.Last().problem.what;
    if (what == Problem::What::kEnds || what == Problem::What::kListEnds ||
        what == Problem::What::kUnended) {
        MarkMisread();
        now_.isExplained = true;
    }
}

void ImportAudit::Drop(Code why)
{
    now_.dropped = why;
}

void ImportAudit::DropUnread()
{
    Drop(now_.isBlank ? Code::kBlankLine : Code::kUnreadableLine);
}

void ImportAudit::Drop(Finding why)
{
    now_.dropped = why.code;
    now_.why = std::move(why);
}

void ImportAudit::OnFinding(tamur::Finding finding)
{
    if (!walksLines_) return;
    const WalkedLine& walked = walk_.Last();
    const Problem& problem = walked.problem;
    constexpr std::uint8_t kPointsGroup = 1;
    const bool isShapeUnread = IsUnread(problem) && problem.group <= kPointsGroup;
    switch (finding) {
        case tamur::Finding::kUnknownKind:
            if (!now_.isStartRead) return DropUnread();
            return Drop({.code = Code::kUnknownKind, .values = {std::to_string(now_.number)}});
        case tamur::Finding::kParameterKindUnknown:
            if (!now_.isStartRead) return DropUnread();
            return Drop(
                {.code = Code::kParameterKindUnknown, .values = {std::to_string(now_.number)}});
        case tamur::Finding::kCountBeyondLine: return Drop(Code::kCountTooLarge);
        case tamur::Finding::kTooFewPoints:
            if (isShapeUnread) return Drop(Code::kUnreadableLine);
            return Drop(
                {.code = Code::kTooFewPoints, .values = {std::to_string(walked.pointCount)}});
        case tamur::Finding::kZeroLengthBar:
            return Drop(isShapeUnread ? Code::kUnreadableLine : Code::kNoLength);
        case tamur::Finding::kCaseTypeUnknown:
            if (IsUnread(problem) || now_.isBlank) return DropUnread();
            return Drop({.code = Code::kCaseTypeUnknown, .values = {std::to_string(walked.type)}});
        case tamur::Finding::kSelfWeightRefused: return RefuseLoad(Kind::kSelfWeight);
        case tamur::Finding::kThermalRefused: return RefuseLoad(Kind::kThermalLoad);
        case tamur::Finding::kCombinationOfNoCase:
            return DropCombination(cases_.CombinationOfNoCase(now_.caseNumber));
        case tamur::Finding::kCombinationSkipped:
            return DropCombination(cases_.SkipCombination(now_.caseNumber, walked.cases));
        // Of these the walk knows more.
        case tamur::Finding::kUnreadableColumn:
        case tamur::Finding::kMaterialReplaced:
        case tamur::Finding::kSectionReplaced:
        case tamur::Finding::kReleaseReplaced:
        case tamur::Finding::kCombinationUnended:
        case tamur::Finding::kListCountIgnored: return;
    }
}

// The first value is the case that is missing in the end.
void ImportAudit::DropCombination(Finding why)
{
    if (lines_.IsLostCase(std::stoi(why.values[0]))) now_.isExplained = true;
    Drop(std::move(why));
}

// A line of #Cas that gives no case, or another one.
void ImportAudit::LoseCase()
{
    if (now_.kind != Kind::kCase || now_.isExplained || now_.isBlank) return;
    const std::int64_t number = walk_.Last().identifier;
    if (number < 0) {
        lines_.MarkAnyCaseLost();
    } else {
        lines_.MarkLostCase(static_cast<std::int32_t>(number));
    }
}

void ImportAudit::RefuseLoad(Kind kind)
{
    const WalkedLine& walked = walk_.Last();
    cases_.AddLoad(kind, walked.caseNumber, line_, walked.identifier);
    Drop(cases_.RefuseLoad(kind, walked.caseNumber, line_, findings_));
    const bool isForLackOfCase =
        now_.dropped == Code::kLoadOfNoCase || now_.dropped == Code::kLoadOfOtherCase;
    const auto what = walked.problem.what;
    if (what == Problem::What::kFine || what == Problem::What::kLeftOver) {
        if (isForLackOfCase && lines_.IsLostCase(walked.caseNumber)) now_.isExplained = true;
        return;
    }
    // What could not be read explains what does not fit.
    Drop(Code::kUnreadableLine);
    now_.why.reset();
}

SpokenLine ImportAudit::Spoken() const
{
    const bool isParameters = section_ == SectionHeader::kCaseParameters;
    return {.kind = now_.kind,
            .line = now_.line,
            .column = now_.column,
            .text = text_,
            .identifier = isParameters ? now_.caseNumber : walk_.Last().identifier};
}

ReferenceCounts ImportAudit::Counts() const
{
    return {balance_.Of(Kind::kMaterial).records, balance_.Of(Kind::kSection).records,
            balance_.Of(Kind::kRelease).records};
}

void ImportAudit::CloseLine()
{
    if (!now_.isOpen) return;
    now_.isOpen = false;
    if (section_ == SectionHeader::kCaseParameters && !now_.dropped) KeepParameters();
    ++balance_.Of(now_.kind).lines;
    if (now_.dropped) {
        CloseDropped();
    } else {
        CloseKept();
    }
}

// Lines that end without a record although the import says nothing, or that replace a record.
void ImportAudit::KeepParameters()
{
    const WalkedLine& walked = walk_.Last();
    if (now_.kind == Kind::kModes) {
        if (modesLine_ != 0) {
            Drop({.code = Code::kModesRepeated, .values = {std::to_string(modesLine_)}});
        }
        modesLine_ = now_.line;
    }
    if (now_.kind != Kind::kCombination) return;
    if (walked.listCount == 0) {
        return Drop(IsUnread(walked.problem) ? Code::kUnreadableLine : Code::kCombinationEmpty);
    }
    const auto [entry, isNew] = combinations_.try_emplace(now_.caseNumber, now_.line);
    if (isNew) return;
    // The record of the line before is the one that goes.
    KindBalance& combinations = balance_.Of(Kind::kCombination);
    --combinations.records;
    ++combinations.dropped[Code::kCombinationRepeated];
    findings_.Add(Spoken().Of(
        {.code = Code::kCombinationRepeated, .values = {std::to_string(entry->second)}}));
    entry->second = now_.line;
}

void ImportAudit::CloseKept()
{
    const WalkedLine& walked = walk_.Last();
    ++balance_.Of(now_.kind).records;
    switch (now_.kind) {
        case Kind::kCase:
            cases_.AddCase(static_cast<std::int32_t>(walked.identifier), walked.type, now_.line);
            break;
        case Kind::kSelfWeight:
        case Kind::kThermalLoad:
            cases_.AddLoad(now_.kind, walked.caseNumber, now_.line, walked.identifier);
            break;
        case Kind::kCombination: break;  // served in another order
        default: lines_.Of(now_.kind).push_back(now_.line); break;
    }
    if (now_.isExplained) return lines_.MarkMisread(now_.line);
    if (now_.isBlank) {
        findings_.Add(Spoken().Of({.code = Code::kBlankLine}));
        return;
    }
    if (LineFindings::IsPlain(walked) && walked.references.empty() && walked.cases.empty()) return;
    const SpokenLine line = Spoken();
    if (LineFindings::IsMisread(walked)) MarkMisread();
    lineFindings_.Add(line, walked, Counts());
    if (now_.kind == Kind::kEnvelope) AddMissingCases(line);
}

void ImportAudit::AddMissingCases(const SpokenLine& line)
{
    for (const Reference& reference : walk_.Last().cases) {
        if (cases_.Has(reference.number) || lines_.IsLostCase(reference.number)) continue;
        const Code code = Code::kEnvelopeOfMissingCase;
        if (!findings_.Holds(code)) {
            findings_.Count(code);
            continue;
        }
        findings_.Add(line.Of({.code = code,
                               .place = line.PlaceOf(reference.text),
                               .values = {std::to_string(reference.number)}}));
    }
}

// Of parameters the case is what they were for.
void ImportAudit::MarkMisread()
{
    const bool isParameters = section_ == SectionHeader::kCaseParameters;
    lines_.MarkMisread(isParameters ? cases_.LineOf(now_.caseNumber) : now_.line);
    LoseCase();
}

void ImportAudit::CloseDropped()
{
    if (section_ == SectionHeader::kCaseParameters) MarkMisread();
    LoseCase();
    const Code code = *now_.dropped;
    const bool isLoad = now_.kind == Kind::kSelfWeight || now_.kind == Kind::kThermalLoad;
    const bool isInBook = isLoad && code != Code::kCountTooLarge;
    if (isInBook) {
        ++balance_.Of(now_.kind).records;  // until the book is closed
    } else {
        ++balance_.Of(now_.kind).dropped[code];
    }
    if (now_.isExplained) return;
    if (!findings_.Holds(code)) return findings_.Count(code);
    const SpokenLine line = Spoken();
    const Problem& problem = walk_.Last().problem;
    Finding finding = now_.why.value_or(Finding{.code = code});
    if (!now_.why && problem.column != nullptr) {
        finding.place = line.PlaceOf(problem.text);
        finding.values = {line.TextOf(problem.text)};
        finding.column = problem.column->name;
    }
    findings_.Add(line.Of(std::move(finding)));
}

bool ImportAudit::IsExplained(SectionHeader header) const
{
    return scan_.NearOf(header).has_value();
}

void ImportAudit::Finish(const std::string& path)
{
    CloseLine();
    EndSetting();
    scan_.Finish();
    if (refusal_ == Refusal::kCannotOpen) {
        whyRefused_ = WhyNotOpened(path);
        findings_.Add(*whyRefused_);
        return;
    }
    FileTail tail = ReadTail(path, scan_.Bytes());
    if (tail.error.empty() && IsCutShort()) tail.error = ReadErrorText();
    if (refusal_) {
        whyRefused_ = FindingOf(*refusal_, scan_, tail, version_);
        findings_.Add(*whyRefused_);
    }
    FinishFile(tail);
    FinishBalance(tail);
    if (refusal_ || !walksLines_) return;
    FinishTables();
    lineFindings_.Finish(balance_);
    FinishSections();
    FinishSettings();
    FinishDefaults();
}

// Whether less was read than was there when the text was looked at.
bool ImportAudit::IsCutShort() const
{
    for (std::size_t i = 0; i < kSectionHeaders.size(); ++i) {
        const auto header = static_cast<SectionHeader>(i);
        const FoundHeader& found = scan_.Of(header);
        const bool isNeeded = header == SectionHeader::kVersion ||
                              (!refusal_ && header != SectionHeader::kCaseParameters &&
                               (PlainOf(header) == header || scan_.Of(PlainOf(header)).line == 0));
        if (found.line != 0 && isNeeded && !read_.contains(header)) return true;
        const SectionBalance& section = balance_.sections[i];
        const std::uint64_t heard = section.empty + section.data;
        const std::uint64_t wanted = IsSetting(header)
                                         ? std::min<std::uint64_t>(found.stretch.lines, 1)
                                         : found.stretch.lines;
        if (read_.contains(header) && heard < wanted) return true;
    }
    return false;
}

// Cases and loads of which the last line decided, and what is served in another order.
void ImportAudit::FinishTables()
{
    const auto take = [this](Kind kind, CaseBook::Kept kept) {
        KindBalance& kinds = balance_.Of(kind);
        for (const auto& [why, count] : kept.dropped) {
            kinds.records -= count;
            kinds.dropped[why] += count;
        }
        lines_.Of(kind) = std::move(kept.lines);
    };
    take(Kind::kCase, cases_.KeptCases());
    take(Kind::kSelfWeight, cases_.KeptLoads(Kind::kSelfWeight));
    take(Kind::kThermalLoad, cases_.KeptLoads(Kind::kThermalLoad));
    const auto markAll = [this](Kind kind) {
        for (const std::uint32_t line : lines_.Of(kind)) lines_.MarkMisread(line);
    };
    if (IsExplained(SectionHeader::kCaseParameters)) markAll(Kind::kCase);
    if (IsExplained(SectionHeader::kGroups)) {
        markAll(Kind::kSelfWeight);
        markAll(Kind::kThermalLoad);
    }
    lines_.SortMisread();
    for (const auto& [number, line] : combinations_) {
        lines_.Of(Kind::kCombination).push_back(line);
    }
}

// What concerns the file as a whole. One cause is said once: what refused the file, or explains
// that a section is not there.
void ImportAudit::FinishFile(const FileTail& tail)
{
    for (std::size_t i = 0; i < kSectionHeaders.size(); ++i) {
        const auto header = static_cast<SectionHeader>(i);
        const auto& near = scan_.NearOf(header);
        if (!near) continue;
        const bool isByMark = scan_.HasByteOrderMark() && near->place.line == 1;
        const bool isSaid =
            isByMark || (whyRefused_ && whyRefused_->place.line == near->place.line);
        if (!isSaid) findings_.Add(MisspeltHeader(*near, header));
    }
    if (refusal_) return;
    if (!tail.error.empty()) {
        readError_ = ReadErrorAt(scan_, tail);
        findings_.Add(*readError_);
    }
    if (tail.dataLines > 0) findings_.Add(TextAfterEnd(scan_, tail));
    if (scan_.HasByteOrderMark()) {
        findings_.Add({.code = Code::kByteOrderMark, .place = {.line = 1}});
    } else if (scan_.BeforeHeaders().Data() > 0) {
        findings_.Add({.code = Code::kTextBeforeHeaders,
                       .place = {.line = scan_.FirstDataLine()},
                       .values = {std::to_string(scan_.BeforeHeaders().Data())}});
    }
    if (balance_.Of(SectionHeader::kElements).data +
                balance_.Of(SectionHeader::kElementsAccented).data ==
            0 &&
        !IsExplained(SectionHeader::kElements) && tail.dataLines == 0 && tail.error.empty()) {
        findings_.Add({.code = Code::kNoElements});
    }
}

void ImportAudit::FinishSections()
{
    const FoundHeader& parameters = scan_.Of(SectionHeader::kCaseParameters);
    const bool isRead = read_.contains(SectionHeader::kCaseParameters);
    if (!isRead && parameters.stretch.Data() > 0 && !lines_.IsAnyCaseLost()) {
        findings_.Add({.code = Code::kParametersNotRead,
                       .place = {.line = parameters.line},
                       .values = {std::to_string(parameters.stretch.Data())}});
    }
    // Where the plain spelling is there the accented one is not looked for.
    for (const SectionHeader accented :
         {SectionHeader::kMaterialsAccented, SectionHeader::kGeometriesAccented,
          SectionHeader::kElementsAccented}) {
        const FoundHeader& plain = scan_.Of(PlainOf(accented));
        const FoundHeader& other = scan_.Of(accented);
        if (plain.line == 0 || other.line == 0) continue;
        findings_.Add(RepeatedHeader(PlainOf(accented), other.line, plain.line));
    }
}

void ImportAudit::FinishSettings()
{
    for (SectionHeader section = SectionHeader::kVersion; IsSetting(section);
         section = static_cast<SectionHeader>(static_cast<int>(section) + 1)) {
        const FoundHeader& found = scan_.Of(section);
        const std::uint64_t further = found.stretch.Data() - balance_.Of(section).data;
        const bool isSaid = emptySettings_.contains(section) || scan_.MeantEndOf(section) != 0;
        if (further == 0 || isSaid) continue;
        findings_.Add({.code = Code::kLinesAfterSetting,
                       .place = {.line = found.line + 2},
                       .values = {std::string(PlainTextOf(section)), std::to_string(further)}});
    }
    if (!IsUsualVersion(version_)) {
        findings_.Add({.code = Code::kVersionOdd,
                       .place = {.line = scan_.Of(SectionHeader::kVersion).line + 1},
                       .values = {version_}});
    }
}

void ImportAudit::FinishDefaults()
{
    const auto add = [this](Code code, SectionHeader section, std::uint64_t users) {
        if (users == 0 || IsExplained(section)) return;
        findings_.Add({.code = code, .values = {std::to_string(users)}});
    };
    add(Code::kDefaultMaterial, SectionHeader::kMaterials, lineFindings_.DefaultMaterialUsers());
    add(Code::kDefaultSection, SectionHeader::kGeometries, lineFindings_.DefaultSectionUsers());
    add(Code::kNoReleases, SectionHeader::kReleases, lineFindings_.NoReleaseUsers());
}

void ImportAudit::FinishBalance(const FileTail& tail)
{
    balance_.lines = scan_.Lines() + tail.lines;
    balance_.cutRests = scan_.CutRests();
    balance_.headers = scan_.HeaderLines();
    balance_.beforeHeaders = scan_.BeforeHeaders().lines;
    balance_.foreign = scan_.Foreign().lines;
    balance_.afterEnd = tail.lines;
    for (std::size_t i = 0; i < kSectionHeaders.size(); ++i) {
        const auto header = static_cast<SectionHeader>(i);
        SectionBalance& section = balance_.Of(header);
        section.inFile = scan_.Of(header).stretch.lines;
        // Of a setting one line is read at most, of a section that is not read none. A file that
        // could not be read to its end is said to be so.
        const bool isPassedOver =
            IsSetting(header) || !read_.contains(header) || !tail.error.empty();
        if (isPassedOver) section.notRead = section.inFile - section.empty - section.data;
    }
}

}  // namespace tamur::host
