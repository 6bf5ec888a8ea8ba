// Follows one import and says what of the file did not become what it says.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>

#include "host/file/balance.h"
#include "host/file/case_book.h"
#include "host/file/file_scan.h"
#include "host/file/file_tail.h"
#include "host/file/line_findings.h"
#include "host/file/line_walk.h"
#include "host/findings/findings.h"
#include "host/record_lines.h"
#include "import/observer.h"

namespace tamur::host {

class ImportAudit final : public ImportObserver {
 public:
    // With `walksLines` false it only learns why the file was refused, or not read to its end, and
    // which version it has, in a fraction of the time.
    explicit ImportAudit(Findings& findings, bool walksLines = true)
        : findings_(findings), walksLines_(walksLines), scan_(findings), lineFindings_(findings)
    {
    }

    void OnText(std::string_view lines) override { scan_.Add(lines); }
    void OnSection(SectionHeader header, std::uint64_t offset) override;
    void OnLine(std::string_view text, bool isCut) override;
    void OnFinding(tamur::Finding finding) override;
    void OnRefusal(Refusal why) override { refusal_ = why; }

    // After the import. `path` is UTF-8: what is after the text is read from there.
    void Finish(const std::string& path);

    [[nodiscard]] const std::optional<Finding>& WhyRefused() const { return whyRefused_; }
    [[nodiscard]] const std::optional<Finding>& WhyNotWhole() const { return readError_; }
    [[nodiscard]] const std::string& Version() const { return version_; }  // UTF-8
    [[nodiscard]] std::int32_t ServicePack() const { return servicePack_; }
    [[nodiscard]] const Balance& TheBalance() const { return balance_; }
    [[nodiscard]] RecordLines& Lines() { return lines_; }

 private:
    // The line that is being read.
    struct Current {
        bool isOpen = false;
        Kind kind = Kind::kNone;
        bool isBlank = false;
        bool isStartRead = true;  // what the line is could be read
        std::optional<Code> dropped;
        std::optional<Finding> why;   // it was dropped, when the walk does not tell
        bool isExplained = false;     // by what is said elsewhere
        std::int32_t number = 0;      // its kind, or that of its parameters
        std::int32_t caseNumber = 0;  // of parameters
        std::uint32_t line = 0;
        std::uint32_t column = 0;  // characters of the file's line before it
    };
    void ReadSetting(std::string_view text);
    void ReadTableLine(Kind kind, std::string_view text);
    void ReadParameterLine(std::string_view text);
    void ReadElementLine(std::string_view text);
    void CheckEnd(std::string_view text, bool isCut);
    void EndSetting();

    void CloseLine();
    void CloseKept();
    void CloseDropped();
    void MarkMisread();
    void KeepParameters();
    void Drop(Code why);
    void Drop(Finding why);
    void DropUnread();
    void RefuseLoad(Kind kind);
    void DropCombination(Finding why);
    void LoseCase();
    void ExplainEnd();
    void AddMissingCases(const SpokenLine& line);
    [[nodiscard]] SpokenLine Spoken() const;
    [[nodiscard]] ReferenceCounts Counts() const;

    void FinishTables();
    void FinishFile(const FileTail& tail);
    void FinishSections();
    void FinishSettings();
    void FinishDefaults();
    void FinishBalance(const FileTail& tail);
    [[nodiscard]] bool IsCutShort() const;
    [[nodiscard]] bool IsExplained(SectionHeader header) const;

    Findings& findings_;
    bool walksLines_;
    FileScan scan_;
    LineWalk walk_;
    LineFindings lineFindings_;
    CaseBook cases_;
    Balance balance_;
    RecordLines lines_;
    std::optional<Refusal> refusal_;
    std::optional<Finding> whyRefused_;
    std::optional<Finding> readError_;
    std::string version_;
    std::int32_t servicePack_ = -1;

    std::optional<SectionHeader> section_;
    std::set<SectionHeader> read_;
    std::set<SectionHeader> emptySettings_;
    bool isValueRead_ = true;  // of the setting
    Current now_;
    std::string text_;  // of the current line, when there is something to say about it
    std::uint32_t line_ = 0;
    std::uint32_t explainedFrom_ = 0;  // the line from which on the lines are of another section
    std::uint32_t column_ = 0;
    std::uint32_t cutSize_ = 0;  // of the line before, when the current one is its rest

    std::map<std::int32_t, std::uint32_t> combinations_;  // from the case to the line
    std::uint32_t modesLine_ = 0;
};

}  // namespace tamur::host
