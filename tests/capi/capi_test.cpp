#include <tamur/tamur.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "models/every_table.h"
#include "models/generated.h"
#include "models/hostile_families.h"
#include "support/component_under_test.h"
#include "support/model_text.h"

namespace tamur::test {
namespace {

using testing::HasSubstr;

std::string Utf8Of(const std::filesystem::path& path)
{
    const std::u8string text = path.u8string();
    return std::string(text.begin(), text.end());
}

struct ModelCloser {
    void operator()(TamurModel* model) const { TamurClose(model); }
};
using Model = std::unique_ptr<TamurModel, ModelCloser>;

struct TableReleaser {
    void operator()(const TamurTable* table) const { TamurReleaseTable(table); }
};
using TablePointer = std::unique_ptr<const TamurTable, TableReleaser>;

Model Opened(const std::string& path, int check = 0)
{
    TamurModel* model = nullptr;
    TamurError error = {};
    EXPECT_EQ(TamurOpen(path.c_str(), check, &model, &error), TAMUR_OK) << error.text;
    return Model(model);
}

Model OpenedText(const std::string& text, int check = 0)
{
    const TemporaryFile file(text);
    return Opened(Utf8Of(file.Path()), check);
}

std::string Given(char* text)
{
    const std::string copy = text != nullptr ? text : "none";
    TamurReleaseText(text);
    return copy;
}

TablePointer TableFrom(const Model& model, int number)
{
    const TamurTable* table = nullptr;
    TamurError error = {};
    EXPECT_EQ(TamurGetTable(model.get(), number, &table, &error), TAMUR_OK) << error.text;
    return TablePointer(table);
}

template <class Row>
const Row* RowsOf(const TablePointer& table)
{
    EXPECT_EQ(table->row_size, sizeof(Row));
    return static_cast<const Row*>(table->rows);
}

struct Refused {
    int status;
    TamurError error;
};
Refused OpenRefused(const std::string& path, int check = 0)
{
    auto* model = reinterpret_cast<TamurModel*>(1);
    Refused refused = {};
    refused.status = TamurOpen(path.c_str(), check, &model, &refused.error);
    EXPECT_EQ(model, nullptr);
    return refused;
}

TEST(CInterface, HandsOverBarsWithTheirReferencesTextsAndLabels)
{
    const Model model = OpenedText(EveryTable().Text());
    const TablePointer bars = TableFrom(model, TAMUR_BARS);
    const TablePointer sections = TableFrom(model, TAMUR_SECTIONS);
    ASSERT_EQ(bars->count, 2u);
    const TamurBar& bar = RowsOf<TamurBar>(bars)[1];
    EXPECT_EQ(bar.length, 5);
    EXPECT_EQ(bar.whole_length, 5);
    EXPECT_EQ(bar.material, 1);
    EXPECT_EQ(bar.start_section, 1);
    EXPECT_EQ(bar.end_section, 0);
    EXPECT_STREQ(TamurTextAt(bars.get(), bar.type), "Poutre");
    ASSERT_EQ(bar.labels.stored, 1u);
    EXPECT_STREQ(TamurTextAt(bars.get(), bars->integers[bar.labels.start]), "B2");
    EXPECT_STREQ(TamurTextAt(sections.get(), RowsOf<TamurSection>(sections)[0].name), "S1");
}

TEST(CInterface, EveryTableHasTheRecordsOfTheContract)
{
    const TemporaryFile file(EveryTable().Text());
    const Model model = Opened(Utf8Of(file.Path()));
    const auto reader = NewReader();
    ASSERT_EQ(ImportFile(*reader.Get(), file.Path()), S_OK);
    int number = 0;
    tamur::ForEachTable(*reader, [&](const auto& table) {
        const TablePointer rows = TableFrom(model, ++number);
        EXPECT_GT(rows->count, 0u) << table.PlainName();
        EXPECT_EQ(rows->count, static_cast<std::uint64_t>(table.Size())) << table.PlainName();
    });
    EXPECT_EQ(number, TAMUR_MODAL - 1);
}

TEST(CInterface, ATableOutlivesItsModel)
{
    Model model = OpenedText(EveryTable().Text());
    const TablePointer nodes = TableFrom(model, TAMUR_NODES);
    model.reset();
    const TamurNode& node = RowsOf<TamurNode>(nodes)[0];
    EXPECT_EQ(node.position[2], 2);
    EXPECT_EQ(node.labels.count, 2);
    EXPECT_STREQ(TamurTextAt(nodes.get(), nodes->integers[node.labels.start + 1]), "N8");
}

// 49 999 announced labels take the room of those that there are.
TEST(CInterface, StoresNoMoreOfAListThanTheLineHolds)
{
    const Model model =
        OpenedText(ModelText()
                       .Section("#Geometries", {"S 1 2 3 4 5 6 7 8 9 10 11 49000 F 1 2 0"})
                       .Elements({"1 1 0 1 49999 0 0 0 A B"})
                       .Text());
    const TablePointer nodes = TableFrom(model, TAMUR_NODES);
    ASSERT_EQ(nodes->count, 1u);
    EXPECT_EQ(RowsOf<TamurNode>(nodes)[0].labels.count, 49999);
    EXPECT_EQ(nodes->integer_count, 2u);
    const TablePointer sections = TableFrom(model, TAMUR_SECTIONS);
    EXPECT_EQ(RowsOf<TamurSection>(sections)[0].outline.count, 98000);
    EXPECT_LE(sections->real_count, 20u);
    EXPECT_EQ(sections->reals[1], 2);
}

std::uint64_t BytesOfAllTables(const Model& model)
{
    std::uint64_t bytes = 0;
    for (int number = TAMUR_MATERIALS; number <= TAMUR_MESSAGES; ++number) {
        const TablePointer table = TableFrom(model, number);
        bytes += table->count * table->row_size + table->text_bytes;
        bytes += (table->real_count + table->text_count) * 8 + table->integer_count * 4;
    }
    return bytes;
}

// The rows of the shortest lines: a wall of three bytes has one of 248.
TEST(CInterface, AllTablesTakeMemoryInProportionToTheFile)
{
    constexpr std::uint64_t kTimes = 90;
    constexpr std::uint64_t kAtLeast = 64 << 10;
    for (const bench::MinimalLine& minimal : bench::MinimalLines()) {
        std::string text = ModelText().Text() + minimal.sections;
        for (int i = 0; i < 2000; ++i) text += minimal.line;
        EXPECT_LE(BytesOfAllTables(OpenedText(text)), kAtLeast + kTimes * text.size())
            << minimal.sections << minimal.line;
    }
    for (const bench::HostileFamily& family : bench::HostileFamilies()) {
        std::string text = ModelText().Text();
        family.write(text, std::max(family.size / 200, 1));
        EXPECT_LE(BytesOfAllTables(OpenedText(text)), kAtLeast + kTimes * text.size())
            << family.name;
    }
}

TEST(CInterface, SaysWhyAFileIsRefused)
{
    const Refused missing = OpenRefused("no-such-file.txt");
    EXPECT_EQ(missing.status, TAMUR_REFUSED);
    EXPECT_STREQ(missing.error.code, "TMR001");
    EXPECT_THAT(missing.error.text, HasSubstr("cannot be opened"));
    const TemporaryFile old("#Version\n9.9\n");
    for (const int check : {0, 1}) {
        const Refused refused = OpenRefused(Utf8Of(old.Path()), check);
        EXPECT_EQ(refused.status, TAMUR_REFUSED);
        EXPECT_STREQ(refused.error.code, "TMR004");
        EXPECT_THAT(refused.error.text, HasSubstr("9.9"));
    }
}

TEST(CInterface, CutsAnErrorBetweenCharacters)
{
    const TemporaryFile file("#Version\n1" + std::string(3000, '\xE9') + '\n');
    const Refused refused = OpenRefused(Utf8Of(file.Path()));
    EXPECT_EQ(refused.status, TAMUR_REFUSED);
    const std::string_view text = refused.error.text;
    EXPECT_LT(text.size(), sizeof refused.error.text);
    EXPECT_EQ(ToUtf8(FromUtf8(text)), text);
}

TEST(CInterface, AnswersWrongCalls)
{
    const Model model = OpenedText(EveryTable().Text());
    TamurError error = {};
    const TamurTable* table = nullptr;
    char* json = nullptr;
    TamurModel* opened = nullptr;
    EXPECT_EQ(TamurOpen(nullptr, 0, &opened, &error), TAMUR_WRONG_CALL);
    EXPECT_EQ(TamurOpen("x", 0, nullptr, nullptr), TAMUR_WRONG_CALL);
    for (const int number : {-1, 0, TAMUR_FINDING_COUNTS + 1, 1 << 30}) {
        EXPECT_EQ(TamurGetTable(model.get(), number, &table, &error), TAMUR_WRONG_CALL) << number;
        EXPECT_STREQ(error.text, "there is no table of that number");
    }
    EXPECT_EQ(TamurGetTable(nullptr, 1, &table, &error), TAMUR_WRONG_CALL);
    EXPECT_EQ(TamurGetTable(model.get(), 1, nullptr, &error), TAMUR_WRONG_CALL);
    EXPECT_EQ(TamurGetTable(model.get(), TAMUR_FINDINGS, &table, &error), TAMUR_WRONG_CALL);
    EXPECT_EQ(TamurDiff(model.get(), nullptr, 0, &json, &error), TAMUR_WRONG_CALL);
    EXPECT_EQ(TamurDiff(model.get(), model.get(), -1, &json, &error), TAMUR_WRONG_CALL);
    TamurClose(nullptr);
    TamurReleaseTable(nullptr);
    TamurReleaseText(nullptr);
}

TEST(CInterface, HasTheFindingsOfACheck)
{
    const Model model = OpenedText(EveryTable().Text(), 1);
    const TablePointer findings = TableFrom(model, TAMUR_FINDINGS);
    const TablePointer counts = TableFrom(model, TAMUR_FINDING_COUNTS);
    ASSERT_GT(findings->count, 0u);
    const TamurFinding& finding = RowsOf<TamurFinding>(findings)[0];
    EXPECT_THAT(TamurTextAt(findings.get(), finding.code), HasSubstr("TMR"));
    EXPECT_STRNE(TamurTextAt(findings.get(), finding.text),
                 TamurTextAt(findings.get(), finding.text_fr));
    std::int64_t all = 0;
    for (std::uint64_t i = 0; i < counts->count; ++i) {
        all += RowsOf<TamurFindingCount>(counts)[i].count;
    }
    EXPECT_EQ(all, static_cast<std::int64_t>(findings->count));
}

// Of use under sanitizers too: everything that a check looks at, and every row.
TEST(CInterface, ChecksModelsThatNoEngineerWouldWrite)
{
    int opened = 0;
    for (std::uint32_t i = 0; i < 200; ++i) {
        const TemporaryFile file(GeneratedModel(i));
        TamurModel* model = nullptr;
        if (TamurOpen(Utf8Of(file.Path()).c_str(), 1, &model, nullptr) != TAMUR_OK) continue;
        const Model owned(model);
        ++opened;
        EXPECT_GT(BytesOfAllTables(owned), 0u);
        EXPECT_GE(TableFrom(owned, TAMUR_FINDINGS)->count,
                  TableFrom(owned, TAMUR_FINDING_COUNTS)->count);
    }
    EXPECT_GT(opened, 100);
}

TEST(CInterface, ComparesModels)
{
    const Model before = OpenedText(EveryTable().Text());
    const Model after = OpenedText(ModelText().Text());
    TamurError error = {};
    char* json = nullptr;
    ASSERT_EQ(TamurDiff(before.get(), after.get(), 0, &json, &error), TAMUR_OK) << error.text;
    EXPECT_THAT(json, HasSubstr("\"same\":false"));
    TamurReleaseText(json);
    ASSERT_EQ(TamurDiff(before.get(), before.get(), 0, &json, &error), TAMUR_OK) << error.text;
    EXPECT_THAT(json, HasSubstr("\"same\":true"));
    TamurReleaseText(json);
}

TEST(CInterface, ServesSeveralThreadsFromOneModel)
{
    const Model model = OpenedText(EveryTable().Text(), 1);
    const Model other = OpenedText(EveryTable().Text());
    const auto work = [&](bool isSwapped) {
        for (int round = 0; round < 20; ++round) {
            for (int number = TAMUR_MATERIALS; number <= TAMUR_FINDING_COUNTS; ++number) {
                EXPECT_NE(TableFrom(model, number), nullptr);
            }
            char* json = nullptr;
            TamurDiff((isSwapped ? other : model).get(), (isSwapped ? model : other).get(), 0,
                      &json, nullptr);
            EXPECT_NE(json, nullptr);
            TamurReleaseText(json);
        }
    };
    std::thread first(work, false), second(work, true);
    first.join();
    second.join();
}

TEST(CInterface, ExportsAndShowsACheckedModel)
{
    const Model model = OpenedText(EveryTable().Text(), 1);
    const TemporaryFile place("");
    const std::string output = Utf8Of(place.Path()) + ".vtu";
    const int32_t cases[] = {1};
    TamurExportOptions options = {};
    options.cases = cases;
    options.case_count = 1;
    char* text = nullptr;
    TamurError error = {};
    ASSERT_EQ(TamurExport(model.get(), "m.txt", output.c_str(), &options, &text, &error), TAMUR_OK)
        << error.text;
    EXPECT_THAT(Given(text), HasSubstr("not written:"));
    EXPECT_EQ(TamurExport(model.get(), "m.txt", output.c_str(), nullptr, &text, &error),
              TAMUR_NOT_WRITTEN);
    EXPECT_THAT(error.text, HasSubstr("already"));
    options.replace = 1;
    ASSERT_EQ(TamurExport(model.get(), "m.txt", output.c_str(), &options, &text, &error), TAMUR_OK);
    TamurReleaseText(text);
    std::filesystem::remove(std::filesystem::path(std::u8string(output.begin(), output.end())));

    ASSERT_EQ(TamurView(model.get(), "m.txt", &text, &error), TAMUR_OK) << error.text;
    EXPECT_THAT(Given(text), HasSubstr("<!doctype html>"));
}

TEST(CInterface, WhatIsExportedWasChecked)
{
    const Model model = OpenedText(EveryTable().Text());
    char* text = nullptr;
    TamurError error = {};
    EXPECT_EQ(TamurView(model.get(), "", &text, &error), TAMUR_WRONG_CALL);
    EXPECT_EQ(TamurExport(model.get(), "", "a.csv", nullptr, &text, &error), TAMUR_WRONG_CALL);
    EXPECT_THAT(error.text, HasSubstr("without a check"));
    EXPECT_EQ(TamurExport(nullptr, "", "a.csv", nullptr, &text, &error), TAMUR_WRONG_CALL);
    EXPECT_EQ(TamurExport(model.get(), "", "", nullptr, &text, &error), TAMUR_WRONG_CALL);
    EXPECT_EQ(TamurView(model.get(), "", nullptr, &error), TAMUR_WRONG_CALL);
}

TEST(CInterface, TellsItsLayoutAndVersion)
{
    const std::string layout = TamurLayout();
    EXPECT_THAT(layout, HasSubstr("\nbars " + std::to_string(sizeof(TamurBar)) + "\n"));
    EXPECT_THAT(layout,
                HasSubstr("\nbars.start " + std::to_string(offsetof(TamurBar, start)) + " 24\n"));
    EXPECT_THAT(TamurVersion(), HasSubstr("."));
}

TEST(CInterface, RunsTheTool)
{
    testing::internal::CaptureStdout();
    const char* const arguments[] = {"--version"};
    EXPECT_EQ(TamurRunTool(1, arguments), 0);
    EXPECT_THAT(testing::internal::GetCapturedStdout(), HasSubstr("tamur "));
    EXPECT_EQ(TamurRunTool(1, nullptr), 2);
    EXPECT_EQ(TamurRunTool(-1, arguments), 2);
}

}  // namespace
}  // namespace tamur::test
