// The reader itself: its accessors, and what several imports leave in it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/accessor_kinds.h"
#include "models/every_table.h"
#include "conformance/load_model.h"
#include "support/message_boxes.h"
#include "support/open_files.h"
#include "support/record_values.h"
#include "support/texts.h"

namespace tamur::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(Reader, EveryGetterMakesANewAccessor)
{
    const auto reader = NewReader();
    for (const AccessorKind& kind : AccessorKinds()) {
        const auto one = kind.make(*reader);
        const auto other = kind.make(*reader);
        EXPECT_NE(one.Get(), other.Get()) << kind.name;
    }
}

TEST(Reader, HostHoldsTheOnlyReferenceToAnAccessor)
{
    const auto reader = NewReader();
    for (const AccessorKind& kind : AccessorKinds()) {
        const auto accessor = kind.make(*reader);
        EXPECT_EQ(accessor->AddRef(), 2u) << kind.name;
        EXPECT_EQ(accessor->Release(), 1u) << kind.name;
    }
}

TEST(Reader, AccessorsHoldNoReferenceToIt)
{
    const auto reader = NewReader();
    for (const AccessorKind& kind : AccessorKinds()) {
        const auto accessor = kind.make(*reader);
        EXPECT_EQ(reader->AddRef(), 2u) << kind.name;
        EXPECT_EQ(reader->Release(), 1u) << kind.name;
    }
}

TEST(Reader, HasNoMessagesBeforeAnyImport)
{
    EXPECT_THAT(Messages(*NewReader()), IsEmpty());
}

// ------------------------------------------------------------------ accessors and later imports

// Whether accessors of the table see what imports after them read. The others serve the array,
// the count or the copy that they were made with.
template <class Table>
constexpr bool SeesLaterImports()
{
    using PublicRecord = typename TableTraits<Table>::PublicRecord;
    return !(std::is_same_v<PublicRecord, TMRMaterial> ||
             std::is_same_v<PublicRecord, TMRSectionGeometry> ||
             std::is_same_v<PublicRecord, TMRAttache> || std::is_same_v<PublicRecord, TMRGroupe> ||
             std::is_same_v<PublicRecord, TMRFilaire> ||
             std::is_same_v<PublicRecord, TMRSurfacique> ||
             std::is_same_v<PublicRecord, TMROuverture> || std::is_same_v<PublicRecord, TMRParoi> ||
             std::is_same_v<PublicRecord, TMRCas>);
}

TEST(Reader, AccessorsMadeBeforeAnImportSeeItOrNotByTable)
{
    ForEachTable([](const char* name, auto table) {
        SCOPED_TRACE(name);
        const auto reader = NewReader();
        const auto earlier = table(*reader);
        ASSERT_EQ(earlier.Size(), 0);
        ASSERT_EQ(ImportText(*reader, EveryTable()), S_OK);
        if (SeesLaterImports<decltype(earlier)>()) {
            EXPECT_EQ(earlier.Size(), table(*reader).Size());
            EXPECT_GT(earlier.Size(), 0);
        } else {
            EXPECT_EQ(earlier.Size(), 0);
        }
    });
}

// Their rank is checked against the surfaces of today, not against the count that they tell.
TEST(Reader, SurfacesAreServedBeyondTheCountTakenEarlier)
{
    const auto reader = NewReader();
    const auto surfaces = Surfaciques(*reader);
    const auto openings = Ouvertures(*reader);
    const auto walls = Parois(*reader);
    ASSERT_EQ(ImportText(*reader, EveryTable()), S_OK);
    EXPECT_EQ(surfaces.At(0)->GroupNumber, 4);
    EXPECT_EQ(openings.At(0)->NbXMesh, 2);
    EXPECT_EQ(walls.At(0)->iSensPortee, 1);
}

TEST(Reader, BarAccessorKeepsItsBarsWhileAnImportAddsMore)
{
    const auto reader = Imported(EveryTable());
    const auto earlier = Filaires(*reader);
    ASSERT_EQ(ImportText(*reader, EveryTable()), S_OK);
    EXPECT_EQ(earlier.Size(), 2);
    EXPECT_EQ(Filaires(*reader).Size(), 4);
    EXPECT_EQ(Utf8(earlier.At(1)->FilaireMaterial.MaterialName), "S235");
    EXPECT_THAT(TextsOf(earlier.At(1)->ElemLabels), ElementsAre("B2"));
}

// ------------------------------------------------------------------ several imports

TEST(Reader, SecondImportExtendsSomeTablesAndRestartsOthers)
{
    const auto reader = Imported(EveryTable());
    ASSERT_EQ(ImportText(*reader, EveryTable()), S_OK);
    ForEachTable([&](const char* name, auto table) {
        using PublicRecord = typename TableTraits<decltype(table(*reader))>::PublicRecord;
        const LONG once = table(*Imported(EveryTable())).Size();
        constexpr bool kRestarts = std::is_same_v<PublicRecord, TMRSectionGeometry> ||
                                   std::is_same_v<PublicRecord, TMRGroupe> ||
                                   std::is_same_v<PublicRecord, TMRCas>;
        // The combinations that hosts see are one for each number.
        constexpr bool kReplacesByNumber = std::is_same_v<PublicRecord, TMRCombinaison>;
        EXPECT_EQ(table(*reader).Size(), kRestarts || kReplacesByNumber ? once : 2 * once) << name;
    });
}

TEST(Reader, FailedImportsLeaveEveryTableAsItWas)
{
    const CaughtMessageBoxes boxes;
    const auto reader = Imported(EveryTable());
    const auto sizes = [&] {
        std::vector<LONG> all;
        ForEachTable([&](const char*, auto table) { all.push_back(table(*reader).Size()); });
        return all;
    };
    const auto before = sizes();
    EXPECT_EQ(ImportFile(*reader, "no-such-file.txt"), E_FAIL);
    EXPECT_EQ(ImportText(*reader, ModelText("9.9").Section("#Cas", {"1 G 1 G 0"})), E_FAIL);
    EXPECT_EQ(
        ImportText(*reader,
                   ModelText::Empty().Section("#Version", {"12.1"}).Section("#Cas", {"1 G 1 G 0"})),
        E_FAIL);
    EXPECT_EQ(sizes(), before);
    EXPECT_EQ(ModesOf(*reader)->dPercentX, 90);
}

TEST(Reader, SkippedCountSurvivesAFailedImport)
{
    const auto reader = Imported(LoadModel({"10 C 2 C 0"}, {"10 2 99 1 32767 0"}));
    EXPECT_EQ(ImportText(*reader, "#Version\n12.1\n"), E_FAIL);
    EXPECT_EQ(SkippedOf(*reader), 1);
}

TEST(Reader, HoldsTheFilesOfAllImportsThatMissedASettingUntilItGoes)
{
    const std::string missingRigidity = "#Version\n12.1\n#Espace\n2\n#Tolerance\n1\n";
    const TemporaryFile first(missingRigidity);
    const TemporaryFile second(missingRigidity);
    auto reader = NewReader();
    EXPECT_EQ(ImportFile(*reader, first.Path()), E_FAIL);
    EXPECT_EQ(ImportFile(*reader, second.Path()), E_FAIL);
    EXPECT_EQ(ImportText(*reader, ModelText()), S_OK);
    EXPECT_TRUE(IsHeldOpen(first.Path()));
    EXPECT_TRUE(IsHeldOpen(second.Path()));
    const auto accessor = GetAccessor(*reader, &ITAMURStructureReader::GetNodeAccessor);
    reader = {};
    EXPECT_FALSE(IsHeldOpen(first.Path()));
    EXPECT_FALSE(IsHeldOpen(second.Path()));
}

}  // namespace
}  // namespace tamur::test
