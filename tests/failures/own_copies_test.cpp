// What an accessor that is a copy keeps when its reader has gone: what it serves and nothing else.
#include <gtest/gtest.h>

#include "models/every_table.h"
#include "linked/memory_watch.h"
#include "support/record_values.h"

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define TAMUR_ADDRESS_SANITIZER
#endif
#endif

namespace tamur::test {
namespace {

// Two cases, a bar and a message, and that many nodes.
std::string ModelWithNodes(int count)
{
    std::string text =
        ModelText()
            .Section("#Materiaux", {"S355 2.1e11 0.3 78500 1.2e-5 0.02"})
            .Section("#Geometries", {"P 1 2 3 4 5 6 7 8 9 10 11 2 S 0 0 1 0 5 6"})
            .Section("#Attaches", {"ART 7 Rotule A B"})
            .Section("#Cas", {"1 Permanent 1 G", "2 Vent 1 W"})
            .Elements({ElementLine(2, 41)
                           .Points({"0 0 0", "0 0 3"})
                           .Labels({"B1", "B2"})
                           .Columns("1 1 0 0 1 1 1 1 1 1 0"),
                       // The case does not exist, so the load is refused with a message.
                       ElementLine(8, 42).Columns("99 0 0 -1 0 0")})
            .Text();
    for (int i = 0; i < count; ++i) text += "1 " + std::to_string(i) + " 0 1 1 1 2 3 N 0 0 0 0\n";
    return text;
}

// Not by `reader = {}`: within templates clang 14 forgets to destroy what is assigned.
void LetGo(ComPtr<ITAMURStructureReader>& reader)
{
    reader = ComPtr<ITAMURStructureReader>();
}

constexpr int kManyNodes = 20000;
constexpr std::int64_t kBytesOfManyNodes = std::int64_t{40} * kManyNodes;

// Gets an accessor of such a model, has the reader go and calls `use(accessor)`. Returns how many
// bytes were alive before that.
template <class Get, class Use>
std::int64_t BytesKept(int nodes, Get get, Use use)
{
    const TemporaryFile file(ModelWithNodes(nodes));
    const String name(Wide(file.Path().string()).c_str());
    (void)NewReader();  // the class object stays
    MemoryWatch memory;
    std::int64_t kept = 0;
    {
        auto reader = NewReader();
        EXPECT_EQ(reader->Import(name.Get()), S_OK);
        const auto accessor = get(*reader);
        EXPECT_GT(memory.BytesAlive(), nodes / kManyNodes * kBytesOfManyNodes);
        LetGo(reader);
        kept = memory.BytesAlive();
        use(accessor);
    }
    EXPECT_EQ(memory.BlocksAlive(), 0);
    return kept;
}

template <class Get, class Use>
void ExpectNothingElseKept(Get get, Use use)
{
    EXPECT_EQ(BytesKept(kManyNodes, get, use), BytesKept(0, get, use));
}

TEST(OwnCopies, CasesKeepNothingElse)
{
    const auto get = [](ITAMURStructureReader& reader) { return Cas(reader); };
    const auto use = [](const auto& cases) {
        ASSERT_EQ(cases.Size(), 2);
        EXPECT_EQ(cases.At(1)->Num, 2);
        EXPECT_EQ(Utf8(cases.At(0)->Titre), "Permanent");
        EXPECT_EQ(Utf8(cases.At(1)->Code), "W");
    };
    ExpectNothingElseKept(get, use);
    constexpr std::int64_t kTwoCases = 1000;
    EXPECT_LT(BytesKept(0, get, use), kTwoCases);
}

TEST(OwnCopies, MessagesKeepNothingElse)
{
    const auto get = [](ITAMURStructureReader& reader) {
        return GetAccessor(reader, &ITAMURStructureReader::GetMessageAccessor);
    };
    const auto use = [](const auto& messages) {
        BSTR text = nullptr;  // lent
        EXPECT_EQ(messages->GetMessageAtRank(0, &text), S_OK);
        EXPECT_EQ(Utf8(text), "ATTENTION: Import Poids propre cas numéro 99 impossible");
    };
    ExpectNothingElseKept(get, use);
    constexpr std::int64_t kOneMessage = 1000;
    EXPECT_LT(BytesKept(0, get, use), kOneMessage);
}

TEST(OwnCopies, BarsKeepNothingElse)
{
    ExpectNothingElseKept([](ITAMURStructureReader& reader) { return Filaires(reader); },
                          [](const auto& bars) {
                              ASSERT_EQ(bars.Size(), 1);
                              const auto bar = bars.At(0);
                              EXPECT_EQ(bar->identifier, 41);
                              EXPECT_EQ(Utf8(bar->FilaireMaterial.MaterialName), "S355");
                              EXPECT_EQ(Utf8(bar->StartSection.SectionLib), "P");
                              EXPECT_EQ(bar->EndSection.epureSec.pTabPoints[2], 5.0);
                              EXPECT_EQ(Utf8(bar->EndConnection.Def), "B");
                              EXPECT_EQ(bar->endPoint.z, 3.0);
                              // The labels are still told; their texts were the reader's and have
                              // gone with it.
                              EXPECT_EQ(bar->ElemLabels.nbLabels, 2);
                              EXPECT_NE(bar->ElemLabels.tabLabels[0], bar->ElemLabels.tabLabels[1]);
                          });
}

#ifdef TAMUR_ADDRESS_SANITIZER

// So a host that lets its reader go too early finds that out.
TEST(OwnCopiesDeathTest, ViewsAndLentLabelsAfterTheirReaderAreReportedAsErrors)
{
    ForEachTable([](const char* name, auto table) {
        SCOPED_TRACE(name);
        auto reader = Imported(EveryTable());
        const auto bars = Filaires(*reader);  // keeps what bars are made of, and saves no view
        const auto records = table(*reader);
        using PublicRecord = typename TableTraits<decltype(table(*reader))>::PublicRecord;
        constexpr bool kIsCopy =
            std::is_same_v<PublicRecord, TMRFilaire> || std::is_same_v<PublicRecord, TMRCas>;
        LetGo(reader);
        if constexpr (kIsCopy) {
            (void)records.At(0);
        } else {
            EXPECT_DEATH((void)records.At(0), "heap-use-after-free");
        }
    });

    auto reader = Imported(EveryTable());
    const auto bar = Filaires(*reader).At(0);
    LetGo(reader);
    EXPECT_DEATH((void)TextsOf(bar->ElemLabels), "heap-use-after-free");
}

#endif

}  // namespace
}  // namespace tamur::test
