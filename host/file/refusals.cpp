#include "host/file/refusals.h"

#include <cstdlib>

#include "host/file/header_names.h"
#include "import/scan/characters.h"

namespace tamur::host {
namespace {

// A needed section is not there: because of what happened to the whole file, or to its header.
Finding FindingOfMissing(SectionHeader header, const FileScan& scan, const FileTail& tail)
{
    const std::string text(PlainTextOf(header));
    if (scan.IsUtf16()) return {.code = Code::kUtf16, .place = {.line = 1}};
    if (scan.HasOnlyReturns()) return {.code = Code::kOnlyReturns, .place = {.line = 1}};
    const auto& nearHeader = scan.NearOf(header);
    if (nearHeader && !(scan.HasByteOrderMark() && nearHeader->place.line == 1)) {
        return {.code = Code::kSettingMisspelt,
                .place = nearHeader->place,
                .values = {nearHeader->text, text}};
    }
    if (scan.HasByteOrderMark()) return {.code = Code::kByteOrderMark, .place = {.line = 1}};
    if (tail.dataLines > 0) return TextAfterEnd(scan, tail);
    if (scan.Bytes() == 0) return {.code = Code::kEmptyFile};
    if (header == SectionHeader::kVersion) return {.code = Code::kNoVersion};
    return {.code = Code::kSettingMissing, .values = {text}};
}

// The version is below 10.1 as text; as a number it need not be.
Finding FindingOfVersion(const FileScan& scan, const std::string& version)
{
    const std::uint32_t line = scan.Of(SectionHeader::kVersion).line + 1;
    const bool isAbsent =
        version.find_first_not_of(" \t\r") == version.npos || version.starts_with('#');
    if (isAbsent) return {.code = Code::kVersionAbsent, .place = {.line = line - 1}};
    const double number = std::strtod(version.c_str(), nullptr);
    const bool isWritten = !version.empty() && version[0] >= '0' && version[0] <= '9';
    const Code code = isWritten && number < 10.1 ? Code::kVersionTooOld : Code::kVersionUnreadable;
    return {.code = code, .place = {.line = line}, .values = {version}};
}

}  // namespace

Finding ReadErrorAt(const FileScan& scan, const FileTail& tail)
{
    return {.code = Code::kReadError,
            .place = {.line = scan.Lines()},
            .values = {std::to_string(scan.Lines()), tail.error}};
}

Finding TextAfterEnd(const FileScan& scan, const FileTail& tail)
{
    return {.code = Code::kTextAfterEnd,
            .place = {.line = scan.Lines()},
            .values = {std::to_string(tail.dataLines)}};
}

// "14.1E2": two digits, a point, digits, and perhaps a letter with digits.
bool IsUsualVersion(const std::string& version)
{
    const char* at = version.c_str();
    const auto skipDigits = [&at] {
        const char* const first = at;
        while (IsDigit(*at)) ++at;
        return at - first;
    };
    if (skipDigits() != 2 || *at++ != '.' || skipDigits() == 0) return false;
    const bool isLetter = (*at >= 'A' && *at <= 'Z') || (*at >= 'a' && *at <= 'z');
    if (isLetter) ++at;
    skipDigits();
    constexpr std::size_t kLongest = 31;
    return version.size() <= kLongest && SkipBlanks(at) == version.c_str() + version.size();
}

Finding FindingOf(Refusal refusal, const FileScan& scan, const FileTail& tail,
                  const std::string& version)
{
    if (!tail.error.empty()) return ReadErrorAt(scan, tail);
    if (refusal == Refusal::kVersion) {
        return scan.Has(SectionHeader::kVersion)
                   ? FindingOfVersion(scan, version)
                   : FindingOfMissing(SectionHeader::kVersion, scan, tail);
    }
    for (const SectionHeader header :
         {SectionHeader::kWorkSpace, SectionHeader::kTolerance, SectionHeader::kRigidity}) {
        if (!scan.Has(header)) return FindingOfMissing(header, scan, tail);
    }
    return ReadErrorAt(scan, tail);
}

}  // namespace tamur::host
