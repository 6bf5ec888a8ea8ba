// Methods called by nothing but their published slot do what their name says.
#include <gtest/gtest.h>

#include "support/accessor_kinds.h"
#include "models/element_lines.h"
#include "support/published/slots.h"

namespace tamur::test {
namespace {

template <class... Arguments>
HRESULT CallSlot(IUnknown& object, std::size_t slot, Arguments... arguments)
{
    using Method = HRESULT(STDMETHODCALLTYPE*)(IUnknown*, Arguments...);
    void** const vtable = *reinterpret_cast<void***>(&object);
    return reinterpret_cast<Method>(vtable[slot])(&object, arguments...);
}

// As many elements of one kind, with identifiers `kind` * 100, + 1 and so on.
std::vector<std::string> Elements(int kind, int count, std::string_view columns,
                                  std::initializer_list<std::string_view> points)
{
    std::vector<std::string> lines;
    for (int i = 0; i < count; ++i) {
        lines.push_back(ElementLine(kind, kind * 100 + i).Points(points).Columns(columns));
    }
    return lines;
}

// A model in which no two tables of the load accessor have the same size.
ModelText ModelOfEverything()
{
    ModelText model;
    model.Section("#Materiaux", {"A 1 0 0 0 0", "B 2 0 0 0 0"});
    model.Section("#Geometries",
                  {"S1 1 0 0 0 0 0 0 0 0 0 0 0 F 0", "S2 2 0 0 0 0 0 0 0 0 0 0 0 F 0"});
    model.Section("#Attaches", {"R1 7 - - -", "R2 1 - - -"});
    model.Section("#Groupes", {"2 1 1 G1 O", "2 2 1 G2 O"});
    std::vector<std::string> cases = {"1 Poids 1 G", "2 Chaleur 1 T", "3 Modes 3 M"};
    std::vector<std::string> parameters = {
        "3 3 2 80 85 90 0 1 1 2 1 0 0 0 0 0 0 0 0 0 0 0 0 1 w 41 N w 0.05 0.06"};
    const auto add = [&](int first, int count, const std::string& type, const std::string& rest) {
        for (int number = first; number < first + count; ++number) {
            cases.push_back(std::to_string(number) + " Cas " + type + " C");
            parameters.push_back(std::to_string(number) + " " + type + " " + rest);
        }
    };
    add(400, 6, "4", "O N N w 0 1 1 N 0 0 0 inf inf");
    add(200, 7, "2", "1 1.35 32767 0");
    add(250, 8, "2", "999 1.0 32767 0");  // no case 999: skipped
    add(900, 9, "9", "1 0 0 0 0 0 0 0 0 N 1 1");
    model.Section("#Cas", cases).Section("#TAB_PARAM_CAS", parameters);

    std::vector<std::string> lines;
    const auto append = [&](int kind, int count, std::string_view columns,
                            std::initializer_list<std::string_view> points) {
        const auto more = Elements(kind, count, columns, points);
        lines.insert(lines.end(), more.begin(), more.end());
    };
    append(5, 1, "1 1 0 0 0 0 0 0", {"0 0 0"});
    append(6, 2, "1 1 0 0 0 0 0 0 0 0", {"0 0 0", "1 0 0"});
    append(7, 3, "1 1 0 0 0 0 0 0", {"0 0 0", "1 0 0", "1 1 0"});
    append(8, 4, "1 0 0 -1 0 0", {});
    append(13, 5, "2 20 0 0 0 0", {});
    append(1, 2, "0", {"0 0 0"});
    append(2, 2, "1 1 0 0 1 1 1 1 1 1 0", {"0 0 0", "1 0 0"});
    for (const int kind : {3, 11, 17, 20}) {
        append(kind, 2, "1 1 1 1 1 1 1 0 0", {"0 0 0", "1 0 0", "1 1 0"});
    }
    for (const int kind : {4, 9, 12}) append(kind, 2, "1 1 0 0", {"0 0 0"});
    for (const int kind : {10, 15, 16, 21, 22}) append(kind, 2, "1 1 1 1", {"0 0 0", "1 0 0"});
    for (int i = 0; i < 2; ++i) lines.push_back(ElementLine(8).Columns("999 0 0 -1 0 0"));
    return model.Elements(lines);
}

class VtableCalls : public testing::Test {
 protected:
    ComPtr<ITAMURStructureReader> reader_ = Imported(ModelOfEverything());

    // The first slot counts, the second gives the record at a rank: the last one has that key.
    template <class PublicRecord, class Key>
    static void ExpectTable(IUnknown& accessor, std::size_t countSlot, std::size_t recordSlot,
                            LONG count, Key PublicRecord::*key, Key keyOfLast)
    {
        LONG counted = -1;
        EXPECT_EQ(CallSlot(accessor, countSlot, &counted), S_OK);
        EXPECT_EQ(counted, count);
        Record<PublicRecord> record;
        EXPECT_EQ(CallSlot(accessor, recordSlot, LONG{count - 1}, record.Put()), S_OK);
        EXPECT_EQ(record.Get().*key, keyOfLast);
    }

    // Of the accessors that serve one table.
    template <class Range, class PublicRecord, class Key>
    static void ExpectTable(const Range& range, LONG count, Key PublicRecord::*key, Key keyOfLast)
    {
        ExpectTable(range.TheAccessor(), 3, 4, count, key, keyOfLast);
    }
};

TEST_F(VtableCalls, ReaderImportsWithItsFirstSlot)
{
    const TemporaryFile file(ModelText().Text());
    const String path(Wide(file.Path().string()).c_str());
    EXPECT_EQ(CallSlot(*NewReader(), SlotOf("ITAMURStructureReader", "Import"), path.Get()), S_OK);
}

TEST_F(VtableCalls, ReaderGivesTheAccessorsInTheirOrder)
{
    std::size_t slot = SlotOf("ITAMURStructureReader", "GetMaterialAccessor");
    for (const AccessorKind& kind : AccessorKinds()) {
        ComPtr<IUnknown> accessor;
        ASSERT_EQ(CallSlot(*reader_, slot++, accessor.Put()), S_OK);
        ComPtr<IUnknown> same;
        EXPECT_EQ(accessor->QueryInterface(*kind.id, same.PutVoid()), S_OK) << kind.name;
    }
    EXPECT_EQ(slot, SlotOf("ITAMURStructureReader", "GetStructureGlobalData"));
}

TEST_F(VtableCalls, ReaderGivesTheSettingsWithItsLastSlot)
{
    TMRStructureData data = {};
    EXPECT_EQ(CallSlot(*reader_, SlotOf("ITAMURStructureReader", "GetStructureGlobalData"), &data),
              S_OK);
    EXPECT_EQ(data.tol3D, 0.001);
}

TEST_F(VtableCalls, AccessorsCountFirstAndThenGiveRecords)
{
    ExpectTable(Materials(*reader_), 2, &TMRMaterial::E, 2.0);
    ExpectTable(Sections(*reader_), 2, &TMRSectionGeometry::Sx, 2.0);
    ExpectTable(Attaches(*reader_), 2, &TMRAttache::Rotules, static_cast<unsigned char>(1));
    ExpectTable(Groupes(*reader_), 2, &TMRGroupe::Num, 2);
    ExpectTable(Filaires(*reader_), 2, &TMRFilaire::identifier, LONG{201});
    ExpectTable(Surfaciques(*reader_), 2, &TMRSurfacique::identifier, LONG{301});
    ExpectTable(Ouvertures(*reader_), 2, &TMROuverture::identifier, LONG{1701});
    ExpectTable(Parois(*reader_), 2, &TMRParoi::identifier, LONG{2001});
    ExpectTable(AppuisPonctuels(*reader_), 2, &TMRAppuiPonctuel::identifier, LONG{401});
    ExpectTable(AppuisLineaires(*reader_), 2, &TMRAppuiLineaire::identifier, LONG{1001});
    ExpectTable(AppuisSurfaciques(*reader_), 2, &TMRAppuiSurfacique::identifier, LONG{1101});
    ExpectTable(Cas(*reader_), 25, &TMRCas::Num, 908);
    ExpectTable(Nodes(*reader_), 2, &TMRNode::identifier, LONG{101});
    ExpectTable(Masses(*reader_), 2, &TMRMasse::identifier, LONG{901});
    ExpectTable(Cables(*reader_), 2, &TMRCable::identifier, LONG{2101});
    ExpectTable(Lines(*reader_), 2, &TMRLine::identifier, LONG{2201});
    ExpectTable(LinesInterieur(*reader_), 2, &TMRLineInterieur::lIdentifier, LONG{1601});
    ExpectTable(Deplacements(*reader_), 2, &TMRDeplacement::identifier, LONG{1201});
    ExpectTable(SurfacicSections(*reader_), 2, &TMRSurfacicSection::identifier, LONG{1501});
}

TEST_F(VtableCalls, NodeAccessorGivesAllNodesWithItsThirdSlot)
{
    Record<TMRNode> nodes[2];
    TMRNode raw[2] = {};
    EXPECT_EQ(CallSlot(Nodes(*reader_).TheAccessor(), SlotOf("ITMRNodeAccessor", "GetNodes"), raw),
              S_OK);
    for (int i = 0; i < 2; ++i) *nodes[i].Put() = raw[i];
    EXPECT_EQ(nodes[1]->identifier, 101);
}

TEST_F(VtableCalls, MessageAccessorCountsFirstAndThenLendsTexts)
{
    const auto accessor = GetAccessor(*reader_, &ITAMURStructureReader::GetMessageAccessor);
    LONG count = 0;
    EXPECT_EQ(CallSlot(*accessor, 3, &count), S_OK);
    EXPECT_EQ(count, 2);
    BSTR text = nullptr;
    EXPECT_EQ(CallSlot(*accessor, 4, LONG{1}, &text), S_OK);
    EXPECT_EQ(Utf8(text), "ATTENTION: Import Poids propre cas numéro 999 impossible");
}

// The slots of a load table by the names of its methods.
#define LOAD_TABLE(countMethod, recordMethod) \
    *loads, SlotOf("ITMRChargeAccessor", #countMethod), SlotOf("ITMRChargeAccessor", #recordMethod)

TEST_F(VtableCalls, LoadAccessorServesEveryTableFromItsSlots)
{
    const auto loads = GetAccessor(*reader_, &ITAMURStructureReader::GetChargeAccessor);
    ExpectTable(LOAD_TABLE(GetNbChargesPonctuelles, GetChargePonctuelleAtRank), 1,
                &TMRChargePonctuelle::identifier, LONG{500});
    ExpectTable(LOAD_TABLE(GetNbChargesLineaires, GetChargeLineaireAtRank), 2,
                &TMRChargeLineaire::identifier, LONG{601});
    ExpectTable(LOAD_TABLE(GetNbChargesSurfaciques, GetChargeSurfaciqueAtRank), 3,
                &TMRChargeSurfacique::identifier, LONG{702});
    ExpectTable(LOAD_TABLE(GetNbChargesPoidsPropre, GetChargePoidsPropreAtRank), 4,
                &TMRChargePoidsPropre::identifier, LONG{803});
    ExpectTable(LOAD_TABLE(GetNbChargesThermiques, GetChargeThermiqueAtRank), 5,
                &TMRChargeThermique::identifier, LONG{1304});
    ExpectTable(LOAD_TABLE(GetNbChargesSismiques, GetChargeSismiqueAtRank), 6,
                &TMRChargeSismique::iNumCas, 405);
    ExpectTable(LOAD_TABLE(GetNbCombinaisons, GetCombinaisonAtRank), 7, &TMRCombinaison::iNumCas,
                206);
    ExpectTable(LOAD_TABLE(GetNbEnveloppes, GetEnveloppeAtRank), 9, &TMREnveloppe::iNumCas, 908);
}

TEST_F(VtableCalls, LoadAccessorServesWhatIsNoTableFromItsSlots)
{
    const auto loads = GetAccessor(*reader_, &ITAMURStructureReader::GetChargeAccessor);
    int skipped = -1;
    EXPECT_EQ(CallSlot(*loads, SlotOf("ITMRChargeAccessor", "GetNbCombinaisonsSkipped"), &skipped),
              S_OK);
    EXPECT_EQ(skipped, 8);
    Record<TMRCombinaison> combination;
    EXPECT_EQ(CallSlot(*loads, SlotOf("ITMRChargeAccessor", "GetCombinaisonOfCasNum"), LONG{203},
                       combination.Put()),
              S_OK);
    EXPECT_EQ(combination->iNumCas, 203);
    Record<TMRModes> modes;
    EXPECT_EQ(CallSlot(*loads, SlotOf("ITMRChargeAccessor", "GetModes"), modes.Put()), S_OK);
    EXPECT_EQ(modes->dPercentY, 85.0);
}

}  // namespace
}  // namespace tamur::test
