// No line of a file is unaccounted for, whatever the file; and following an import changes nothing.
#include "host/file/balance.h"

#include <gmock/gmock.h>
#include <tamur/ranges.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <string>

#include "models/changes.h"
#include "support/scratch_file.h"
#include "checked_file.h"
#include "com/object.h"
#include "host/file/import_audit.h"
#include "models/seeds.h"
#include "reader/observed_reader.h"
#include "reader/structure_reader.h"
#include "support/effort.h"
#include "support/message_boxes.h"
#include "support/read_everything.h"

namespace tamur::test {
namespace {

// Calls visit(path, what it is) for the samples, the seeds and a share of their changes.
void ForEachModel(
    const std::function<void(const std::filesystem::path&, const std::string&)>& visit)
{
    for (const char* name : {"batiment", "hall", "portique"}) visit(SampleFile(name), name);
    const ScratchFile scratch;
    std::size_t next = 0;
    for (const Seed& seed : Seeds()) {
        scratch.Write(seed.text);
        visit(scratch.Path(), seed.name);
        const Changes changes(seed.text);
        for (; next < changes.Count(); next += kEveryAuditedChange) {
            scratch.Write(changes.Apply(next));
            visit(scratch.Path(), seed.name + ", change " + std::to_string(next));
        }
        next -= changes.Count();
    }
}

// The records of each table, by its name.
std::map<std::string, std::size_t> CountsOf(ITAMURStructureReader& reader)
{
    std::map<std::string, std::size_t> counts;
    ForEachTable(reader, [&](const auto& table) {
        counts[table.Name()] = static_cast<std::size_t>(table.Size());
    });
    return counts;
}

// The import adds a material and a section by itself where there are none.
std::size_t Added(host::Kind kind, std::size_t records)
{
    const bool hasDefault = kind == host::Kind::kMaterial || kind == host::Kind::kSection;
    return hasDefault && records == 0 ? 1 : 0;
}

TEST(Balance, IsEvenAndHasTheRecordsOfTheTables)
{
    ForEachModel([](const std::filesystem::path& path, const std::string& what) {
        const CheckedFile file(path);
        const host::Balance& balance = file.imported.balance;
        EXPECT_TRUE(balance.AddsUp()) << what;
        if (!file.imported.reader) return;
        const auto counts = CountsOf(*file.imported.reader);
        for (int i = 0; i < host::kKindCount; ++i) {
            const auto kind = static_cast<host::Kind>(i);
            const std::string name(host::TableNameOf(kind));
            if (name.empty()) continue;
            const std::size_t records = balance.Of(kind).records;
            EXPECT_EQ(records + Added(kind, records), counts.at(name)) << what << ' ' << name;
            EXPECT_EQ(file.imported.lines.Of(kind).size(), records) << what << ' ' << name;
        }
    });
}

TEST(Balance, IsOddWhenALineIsMissing)
{
    host::Balance balance = CheckedFile(SampleFile("hall")).imported.balance;
    ASSERT_TRUE(balance.AddsUp());
    ++balance.lines;
    EXPECT_FALSE(balance.AddsUp());
    --balance.lines;
    --balance.Of(host::Kind::kBar).records;
    EXPECT_FALSE(balance.AddsUp());
    ++balance.Of(host::Kind::kBar).dropped[host::Code::kNoLength];
    EXPECT_TRUE(balance.AddsUp());
    ++balance.Of(SectionHeader::kElementsAccented).empty;
    EXPECT_FALSE(balance.AddsUp());
}

TEST(Balance, SaysWhyLinesAreDropped)
{
    const CheckedFile file = CheckText(ModelText()
                                           .Elements({"1 1 0 1 0 0 0 0 0 0 0 7", "", "14 1",
                                                      "2 1 0 2 0 0 0 0 0 0 0 0 0", "1 2 0 0 0"})
                                           .Text());
    const host::Balance& balance = file.imported.balance;
    EXPECT_EQ(balance.Of(host::Kind::kNode).lines, 2);
    EXPECT_EQ(balance.Of(host::Kind::kNode).records, 1);
    EXPECT_EQ(balance.Of(host::Kind::kNode).dropped.at(host::Code::kTooFewPoints), 1);
    EXPECT_EQ(balance.Of(host::Kind::kBar).dropped.at(host::Code::kNoLength), 1);
    EXPECT_EQ(balance.Of(host::Kind::kNone).dropped.at(host::Code::kUnknownKind), 1);
    EXPECT_EQ(balance.sections[static_cast<std::size_t>(SectionHeader::kElements)].empty, 1);
}

// The line of a record begins with its kind and identifier.
template <class PublicRecord>
void ExpectLines(const CheckedFile& file, host::Kind kind,
                 const std::vector<std::string>& linesOfFile)
{
    std::size_t rank = 0;
    for (const auto& record : Records<PublicRecord>(*file.imported.reader)) {
        const std::uint32_t line = file.imported.lines.At(kind, rank++);
        ASSERT_NE(line, 0);
        std::string start = std::to_string(host::ElementNumberOf(kind)) + ' ';
        start += std::to_string(record->identifier) + ' ';
        EXPECT_THAT(linesOfFile.at(line - 1), testing::StartsWith(start));
    }
}

TEST(RecordLines, LeadToTheLinesOfTheRecords)
{
    const CheckedFile file(SampleFile("batiment"));
    std::ifstream stream(SampleFile("batiment"), std::ios::binary);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    ExpectLines<TMRNode>(file, host::Kind::kNode, lines);
    ExpectLines<TMRFilaire>(file, host::Kind::kBar, lines);
    ExpectLines<TMRSurfacique>(file, host::Kind::kSurface, lines);
    ExpectLines<TMRParoi>(file, host::Kind::kWall, lines);
    std::size_t rank = 0;
    for (const auto& combination : Records<TMRCombinaison>(*file.imported.reader)) {
        const std::uint32_t line = file.imported.lines.At(host::Kind::kCombination, rank++);
        EXPECT_THAT(lines.at(line - 1),
                    testing::StartsWith(std::to_string(combination->iNumCas) + " 2 "));
    }
}

// As the component makes it, but linked in, where its message boxes can be caught.
ComPtr<ITAMURStructureReader> NewPlainReader()
{
    ComPtr<ITAMURStructureReader> reader;
    auto* const created = new com::CComObject<CTAMURStructureReader>;
    created->AddRef();
    *reader.Put() = created;
    return reader;
}

TEST(Observing, ChangesNothing)
{
    const CaughtMessageBoxes boxes;
    struct Silent final : ImportObserver {
        void OnText(std::string_view) override {}
        void OnSection(SectionHeader, std::uint64_t) override {}
        void OnLine(std::string_view, bool) override {}
        void OnFinding(Finding) override {}
        void OnRefusal(Refusal) override {}
    } silent;
    ForEachModel([&](const std::filesystem::path& path, const std::string& what) {
        const auto plain = NewPlainReader();
        const HRESULT result = ImportFile(*plain, path);
        const auto observed = NewObservedReader(silent);
        EXPECT_EQ(ImportFile(*observed, path), result) << what;
        EXPECT_EQ(ReadEverything(*observed), ReadEverything(*plain)) << what;
        host::Findings findings;
        const host::ImportedFile checked = host::ImportFile(Utf8Path(path), findings);
        EXPECT_EQ(bool(checked.reader), result == S_OK) << what;
        if (!checked.reader) return;
        EXPECT_EQ(ReadEverything(*checked.reader), ReadEverything(*plain)) << what;
    });
}

// What the import says of an element's line that it could not read to its end.
class Unread final : public ImportObserver {
 public:
    explicit Unread(host::Findings& findings) : audit_(findings) {}

    void OnText(std::string_view lines) override { audit_.OnText(lines); }
    void OnSection(SectionHeader header, std::uint64_t offset) override
    {
        Close();
        audit_.OnSection(header, offset);
        isInElements_ =
            header == SectionHeader::kElements || header == SectionHeader::kElementsAccented;
    }
    void OnLine(std::string_view text, bool isCut) override
    {
        Close();
        audit_.OnLine(text, isCut);
    }
    void OnFinding(Finding finding) override
    {
        isUnread_ = isUnread_ || finding == Finding::kUnreadableColumn;
        audit_.OnFinding(finding);
    }
    void OnRefusal(Refusal why) override { audit_.OnRefusal(why); }

    std::size_t Finish(const std::string& path)
    {
        Close();
        audit_.Finish(path);
        return unread_;
    }

 private:
    void Close()
    {
        unread_ += isUnread_ && isInElements_ ? 1 : 0;
        isUnread_ = false;
    }

    host::ImportAudit audit_;
    bool isInElements_ = false;
    bool isUnread_ = false;
    std::size_t unread_ = 0;
};

// The walk along a line ends where the import's reading ends.
TEST(LineWalk, StopsWhereTheImportStops)
{
    using host::Code;
    std::size_t compared = 0;
    ForEachModel([&](const std::filesystem::path& path, const std::string& what) {
        host::Findings findings;
        Unread unread(findings);
        const auto reader = NewObservedReader(unread);
        (void)ImportFile(*reader, path);
        const std::size_t ofImport = unread.Finish(Utf8Path(path));
        std::size_t stops = 0, perhaps = 0;
        for (const host::Finding& finding : findings.InFileOrder()) {
            if (host::ElementNumberOf(finding.kind) == 0) continue;
            switch (finding.code) {
                case Code::kUnreadableColumn:
                case Code::kBlankInText:
                case Code::kListShort:
                case Code::kLineEndsEarly: ++stops; break;
                case Code::kColumnsAbsent: stops += std::stoul(finding.values[0]); break;
                // The line may end too early all the same, or because of that.
                case Code::kTextAfterNul:
                case Code::kLineCut:
                case Code::kUnreadableLine:
                case Code::kColumnSplit:
                case Code::kDecimalComma:
                case Code::kCountIgnored: ++perhaps; break;
                default: break;
            }
        }
        EXPECT_LE(stops, ofImport) << what;
        EXPECT_GE(stops + perhaps, ofImport) << what;
        compared += ofImport;
    });
    EXPECT_GT(compared, 200);
}

// Hosts keep the reader; the audit that followed its first import is gone by then.
TEST(Observing, EndsWithTheImport)
{
    const CheckedFile file(SampleFile("hall"));
    EXPECT_EQ(ImportText(*file.imported.reader, "#Version\n12.1\n"), E_FAIL);
    EXPECT_EQ(ImportFile(*file.imported.reader, SampleFile("portique")), S_OK);
}

}  // namespace
}  // namespace tamur::test
