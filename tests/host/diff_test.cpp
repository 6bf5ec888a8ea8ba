// What changed from one model to another.
#include "host/diff/model_diff.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <fstream>
#include <sstream>

#include "host/diff/field_changes.h"
#include "models/every_table.h"
#include "models/one_of_each.h"
#include "models/seeds.h"
#include "support/message_boxes.h"

namespace tamur::host {
namespace {

using test::ElementLine;
using test::Imported;
using test::ModelText;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

std::string TextOf(const Value& value)
{
    if (const auto* number = std::get_if<long long>(&value.is)) return std::to_string(*number);
    if (const auto* real = std::get_if<double>(&value.is)) {
        std::ostringstream text;
        text << *real;
        return text.str();
    }
    if (const auto* text = std::get_if<std::string>(&value.is)) return *text;
    if (const auto* point = std::get_if<TMR3DPnt>(&value.is)) {
        return TextOf({point->x}) + "," + TextOf({point->y}) + "," + TextOf({point->z});
    }
    if (const auto* list = std::get_if<std::vector<Value>>(&value.is)) {
        return std::to_string(list->size()) + " values";
    }
    return "null";
}

// "changed bar 7: Angle 0 -> 5"
std::string TextOf(const TableDiff& table, const Change& change)
{
    constexpr const char* kNames[] = {"changed", "moved", "added", "removed", "renumbered"};
    const Description description = table.Describe(change);
    std::string text = kNames[static_cast<int>(change.what)];
    text += " " + std::string(NounOf(table.TheKind(), Language::kEnglish));
    for (const Key& key : {description.before, description.after}) {
        if (!key.empty()) text += " " + TextOf(key.back().second);
        if (!description.fields.empty()) break;  // there the other is the same
    }
    std::string between = ": ";
    for (const FieldChange& field : description.fields) {
        text += between + field.field + (field.isTurned ? " turned " : " ") + TextOf(field.before) +
                " -> " + TextOf(field.after);
        between = ", ";
    }
    return text;
}

std::vector<std::string> TextsOf(const ModelDiff& diff)
{
    std::vector<std::string> texts;
    for (const TableDiff& table : diff.tables) {
        for (const Change& change : table.Changes()) texts.push_back(TextOf(table, change));
    }
    return texts;
}

std::vector<std::string> Changes(const std::string& before, const std::string& after,
                                 double tolerance = 0)
{
    const auto a = Imported(before), b = Imported(after);
    return TextsOf(Compare(*a, *b, tolerance));
}
std::vector<std::string> Changes(const ModelText& before, const ModelText& after,
                                 double tolerance = 0)
{
    return Changes(before.Text(), after.Text(), tolerance);
}
std::vector<std::string> ElementChanges(const std::vector<std::string>& before,
                                        const std::vector<std::string>& after, double tolerance = 0)
{
    return Changes(ModelText().Elements(before), ModelText().Elements(after), tolerance);
}

bool IsSame(const std::string& before, const std::string& after)
{
    const auto a = test::NewReader(), b = test::NewReader();
    if (FAILED(test::ImportText(*a, before)) || FAILED(test::ImportText(*b, after))) return true;
    return Compare(*a, *b).IsEmpty() && Compare(*a, *b, 1e-6).IsEmpty();
}

std::string Node(int identifier, const std::string& point)
{
    return ElementLine(1, identifier).Points({point}).Columns("0");
}

TEST(Diffs, OfAModelWithItselfAreEmpty)
{
    const test::CaughtMessageBoxes boxes;  // some seeds are refused
    for (const test::Seed& seed : test::Seeds()) {
        EXPECT_TRUE(IsSame(seed.text, seed.text)) << seed.name;
    }
    EXPECT_TRUE(IsSame(test::EveryTable().Text(), test::EveryTable().Text()));
}

std::string WithElementsReversed(const std::string& text)
{
    const std::string header = "#Elements\n";
    const std::size_t start = text.find(header) + header.size();
    std::istringstream rest(text.substr(start));
    std::vector<std::string> lines;
    for (std::string line; std::getline(rest, line);) lines.push_back(line + "\n");
    std::string reversed = text.substr(0, start);
    std::for_each(lines.rbegin(), lines.rend(), [&](const std::string& l) { reversed += l; });
    return reversed;
}

TEST(Diffs, DoNotSeeTheOrderOfElements)
{
    const std::string twice =
        ModelText()
            .Elements({Node(1, "0 0 0"), Node(1, "1 0 0"), Node(2, "1 0 0"), Node(1, "0 0 0")})
            .Text();
    for (const std::string& text : {test::EveryTable().Text(), twice}) {
        EXPECT_NE(WithElementsReversed(text), text);
        EXPECT_TRUE(IsSame(text, WithElementsReversed(text)));
    }
}

// Changes one value of a record: the one that is `number`th in the order of the contract.
class Changer {
 public:
    explicit Changer(int number) : number_(number) {}

    template <class Type>
    void Field(const char* name, Type& value)
    {
        // Without their arrays these cannot change.
        if (!IsCount(name) && std::string_view(name) != "Code") Change(name, value);
    }
    template <class Type>
    void Array(const char* name, Type* values, int count)
    {
        for (int i = 0; i < count; ++i) Change(name, values[i], true);
    }

    [[nodiscard]] const std::string& Changed() const { return changed_; }

 private:
    template <class Type, std::size_t kCount>
    void Change(const char* name, Type (&values)[kCount])
    {
        Array(name, values, kCount);
    }
    template <class Type>
    void Change(const char* name, Type& value, bool isLent = false)
    {
        if constexpr (std::is_class_v<Type>) {
            VisitFields(value, *this);
        } else if (number_-- == 0) {
            changed_ = name;
            if constexpr (std::is_same_v<Type, BSTR>) {
                static const String kLent(OLESTR("other"));
                if (!isLent) SysFreeString(value);
                value = isLent ? kLent.Get() : SysAllocString(OLESTR("other"));
            } else {
                value = static_cast<Type>(value + 1);
            }
        }
    }

    int number_;
    std::string changed_;
};

// Each with one value changed is told by its digest and has one change, but what says again what
// others say.
template <class Range>
void ExpectOneChangePerValue(const Range& table)
{
    using Record = typename std::decay_t<Range>::PublicRecord;
    const Tolerance exact;
    const Identities none;
    int values = 0;
    for (std::string changed = "any"; !changed.empty(); ++values) {
        auto before = table.At(0), after = table.At(0);
        Changer changer(values);
        VisitFields(after.Get(), changer);
        changed = changer.Changed();
        const bool isSame = changed.empty() || changed == "RealLength";
        const auto changes = FieldComparison(exact, none).Compare(before.Get(), after.Get());
        EXPECT_EQ(changes.size(), isSame ? 0 : 1) << Range::Name() << ' ' << changed;
        RecordHash a(exact, nullptr), b(exact, nullptr);
        VisitFields(before.Get(), a);
        VisitFields(after.Get(), b);
        EXPECT_EQ(a.Value() == b.Value(), isSame) << Range::Name() << ' ' << changed;
    }
    EXPECT_GT(values, 2) << typeid(Record).name();
}

TEST(Diffs, SeeEachValueOfEachRecordOnce)
{
    const auto reader = Imported(test::EveryTable());
    tamur::ForEachTable(*reader, [](const auto& table) {
        ASSERT_GT(table.Size(), 0) << table.Name();
        ExpectOneChangePerValue(table);
    });
}

TEST(Diffs, NameWhatWasAddedAndRemovedInEveryTable)
{
    const auto everything = Imported(test::EveryTable()), nothing = Imported(ModelText());
    for (const auto& [a, b, what] : {std::tuple(&*everything, &*nothing, What::kRemoved),
                                     std::tuple(&*nothing, &*everything, What::kAdded)}) {
        const ModelDiff diff = Compare(*a, *b);
        for (const TableDiff& table : diff.tables) {
            // A model without materials and sections has one of each that the import made.
            const Kind kind = table.TheKind();
            const std::size_t others = kind == Kind::kMaterial || kind == Kind::kSection ? 1 : 0;
            EXPECT_GT(table.CountOf(what), 0u) << TableNameOf(kind);
            EXPECT_EQ(table.CountOf(what) + others, table.Changes().size()) << TableNameOf(kind);
        }
    }
}

TEST(Diffs, SeeChangesOfElements)
{
    const auto nodes = [](const std::string& labels, const std::string& column) {
        return ElementLine(1).Points({"0 0 0"}).Labels({labels}).Columns(column);
    };
    EXPECT_THAT(ElementChanges({nodes("A", "0")}, {nodes("B", "3")}),
                ElementsAre("changed node 7: ElemLabels.tabLabels[0] A -> B, blocage 0 -> 3"));
    EXPECT_THAT(ElementChanges({Node(1, "0 0 0"), Node(2, "1 0 0")}, {Node(2, "1 0 0.5")}),
                ElementsAre("removed node 1", "moved node 2: Geometrie 1,0,0 -> 1,0,0.5"));
}

TEST(Diffs, OfBarsThatMovedDoNotTellTheirLengths)
{
    const auto bar = [](const char* end) {
        return test::BarTables().Elements(
            {ElementLine(2).Points({"0 0 0", end}).Columns(test::Text(test::BarColumns()))});
    };
    EXPECT_THAT(Changes(bar("3 4 0"), bar("30 40 0")),
                ElementsAre("moved bar 7: endPoint 3,4,0 -> 30,40,0"));
}

TEST(Diffs, TakeWhatWasRenumberedAsItself)
{
    EXPECT_THAT(
        ElementChanges({Node(1, "0 0 0"), Node(2, "1 0 0"), Node(3, "2 0 0")},
                       {Node(1, "9 9 9"), Node(2, "0 0 0"), Node(3, "1 0 0"), Node(4, "2 0 0")}),
        ElementsAre("renumbered node 1 2", "added node 1", "renumbered node 2 3",
                    "renumbered node 3 4"));
}

TEST(Diffs, PairSeveralOfOneNumberByWhatIsAlike)
{
    const auto node = [](const char* point, const char* column) {
        return std::string(ElementLine(1).Points({point}).Columns(column));
    };
    const std::vector<std::string> before = {node("0 0 0", "1"), node("1 0 0", "2"),
                                             node("2 0 0", "3")};
    std::vector<std::string> after = {node("2 0 0", "4"), node("1 1 0", "2"), node("0 0 0", "1")};
    const auto expected = UnorderedElementsAre("changed node 7: blocage 3 -> 4",
                                               "moved node 7: Geometrie 1,0,0 -> 1,1,0");
    std::sort(after.begin(), after.end());
    do {
        EXPECT_THAT(ElementChanges(before, after), expected);
    } while (std::next_permutation(after.begin(), after.end()));
}

// Two bars on the first and the second of each table.
ModelText Bars(const std::vector<std::string>& materials, const std::string& columns1,
               const std::string& columns2)
{
    return ModelText()
        .Section("#Materiaux", materials)
        .Section("#Geometries", {test::SectionLine("R1", 100, "2 X 1 2 3 4")})
        .Section("#Attaches", {"ART 7 Rotule A B"})
        .Elements({ElementLine(2, 1).Points({"0 0 0", "1 0 0"}).Columns(columns1),
                   ElementLine(2, 2).Points({"0 1 0", "1 1 0"}).Columns(columns2)});
}

TEST(Diffs, FollowReferencesAndNotPlaces)
{
    const ModelText before = Bars({"C25 1 2 3 4 5", "S235 6 7 8 9 10"}, "1 2 0 0 4 1 1 1 1 1 5",
                                  "1 2 0 0 4 2 1 1 1 1 5");
    EXPECT_THAT(Changes(before, Bars({"X 0 0 0 0 0", "S235 6 7 8 9 10", "C25 1 2 3 4 5"},
                                     "1 2 0 0 4 3 1 1 1 1 5", "1 2 0 0 4 2 1 1 1 1 5")),
                ElementsAre("added material X"));
    EXPECT_THAT(Changes(before, Bars({"C25 1 2 3 4 5", "S235 6 7 8 9 10"}, "1 2 0 0 4 2 1 1 1 1 5",
                                     "1 2 0 0 4 2 1 1 1 1 5")),
                ElementsAre("changed bar 1: FilaireMaterial C25 -> S235"));
    // A changed or renamed material is one change, and none of its bars.
    EXPECT_THAT(Changes(before, Bars({"C25 1.5 2 3 4 5", "S235JR 6 7 8 9 10"},
                                     "1 2 0 0 4 1 1 1 1 1 5", "1 2 0 0 4 2 1 1 1 1 5")),
                ElementsAre("changed material C25: E 1 -> 1.5", "renumbered material S235 S235JR"));
}

TEST(Diffs, TellMaterialsOfOneNameApart)
{
    const auto bars = [](const char* material) {
        return Bars({"C25 1 2 3 4 5", "C25 6 2 3 4 5"}, material, "1 2 0 0 4 2 1 1 1 1 5");
    };
    EXPECT_THAT(Changes(bars("1 2 0 0 4 1 1 1 1 1 5"), bars("1 2 0 0 4 2 1 1 1 1 5")),
                ElementsAre("changed bar 1: FilaireMaterial.E 1 -> 6"));
}

ModelText SelfWeight(const std::vector<std::string>& groups, const std::string& group)
{
    return ModelText()
        .Section("#Groupes", groups)
        .Section("#Cas", {"1 G 1 G 0"})
        .Elements({ElementLine(8).Columns("1 0 0 -1 2 " + group)});
}

TEST(Diffs, OfLoadsOnGroupsSeeTheGroup)
{
    const ModelText before = SelfWeight({"2 5 2 A Oui", "2 6 2 B Oui"}, "6");
    EXPECT_THAT(Changes(before, SelfWeight({"2 6 2 B Oui", "2 5 2 A Oui"}, "6")), IsEmpty());
    EXPECT_THAT(Changes(before, SelfWeight({"2 5 2 A Oui", "2 6 2 B Oui"}, "5")),
                ElementsAre("changed self-weight load 7: NumGrp 6 -> 5"));
    EXPECT_THAT(Changes(before, SelfWeight({"2 5 2 A Oui"}, "6")), ElementsAre("removed group 6"));
}

TEST(Diffs, MatchCasesByTheirNumbers)
{
    const auto model = [](const char* title, const char* factors) {
        return ModelText()
            .Section("#Cas", {std::string("1 ") + title + " 1 G 0", "2 Q 1 Q 0", "10 ELU 2 ELU 0"})
            .Section("#TAB_PARAM_CAS", {factors});
    };
    EXPECT_THAT(Changes(model("G", "10 2 1 1.35 32767 0"), model("Perm", "10 2 1 1.5 32767 0")),
                ElementsAre("changed load case 1: Titre G -> Perm",
                            "changed combination 10: pCoeff[0] 1.35 -> 1.5"));
    EXPECT_THAT(Changes(model("G", "10 2 1 1.35 32767 0"), model("G", "10 2 1 1.35 2 1 32767 0")),
                ElementsAre("changed combination 10: pNumCas 1 values -> 2 values, "
                            "pCoeff 1 values -> 2 values"));
}

TEST(Diffs, SeeOutlinesThatAreTurned)
{
    const auto opening = [](std::initializer_list<std::string_view> points) {
        return std::vector<std::string>{ElementLine(17).Points(points).Columns("1 1")};
    };
    EXPECT_THAT(
        ElementChanges(opening({"0 0 0", "1 0 0", "1 1 0"}), opening({"1 1 0", "0 0 0", "1 0 0"})),
        ElementsAre("changed opening 7: Surface.tabPoints turned 3 values -> 3 values"));
    EXPECT_THAT(ElementChanges(opening({"0 0 0", "1 0 0", "1 1 0"}),
                               opening({"0 0 0", "1 0 0", "1 1 0", "0 1 0"})),
                ElementsAre("changed opening 7: Surface.tabPoints 3 values -> 4 values"));
    EXPECT_THAT(
        ElementChanges(opening({"0 0 0", "1 0 0", "1 1 0"}), opening({"0 0 0", "1 0 0", "1 2 0"})),
        ElementsAre("moved opening 7: Surface.tabPoints[2] 1,1,0 -> 1,2,0"));
}

TEST(Diffs, TakeNumbersWithinTheToleranceAsTheSame)
{
    const auto before = Node(1, "1 2 3"), after = Node(1, "1.0009 2 3"),
               other = Node(5, "1.0001 2 3");
    EXPECT_THAT(ElementChanges({before}, {after}, 0.001), IsEmpty());
    EXPECT_THAT(ElementChanges({before}, {after}, 0.0008), testing::SizeIs(1));
    EXPECT_THAT(ElementChanges({before}, {other}, 0.001), ElementsAre("renumbered node 1 5"));
    const auto materials = [](const char* line) {
        return ModelText().Section("#Materiaux", {line});
    };
    const ModelText steel = materials("S 2.1e11 0.3 78500 1.2e-5 0.02");
    EXPECT_THAT(Changes(steel, materials("S 2.1001e11 0.3 78500 1.2e-5 0.02"), 0.001), IsEmpty());
    EXPECT_THAT(Changes(steel, materials("S 2.1e11 0.3 78500 1.3e-5 0.02"), 0.001),
                ElementsAre("changed material S: alpha 1.2e-05 -> 1.3e-05"));
}

TEST(Diffs, HaveTheRestOfTheModel)
{
    const auto a = Imported(ModelText());
    const auto b = Imported(ModelText()
                                .Section("#Cas", {"5 Modal 3 M 0"})
                                .Section("#TAB_PARAM_CAS", {"5 3 2 90 91 92 1 1 1 2 2 3 3 4 4 5 5 "
                                                            "6 6 7 7 8 8 1 mot 41 O mot 0.05 0.06"})
                                .Elements({test::SelfWeightLine(2)}));
    const ModelDiff diff = Compare(*a, *b);
    EXPECT_THAT(diff.messagesAdded, ElementsAre(test::SelfWeightWarning(2)));
    EXPECT_THAT(diff.messagesRemoved, IsEmpty());
    EXPECT_THAT(Compare(*b, *a).messagesRemoved, ElementsAre(test::SelfWeightWarning(2)));
    ASSERT_FALSE(diff.modes.empty());
    EXPECT_EQ(diff.modes[0].field, "dPercentX");
    EXPECT_EQ(diff.skippedCombinations.after, 0);
    EXPECT_THAT(diff.settings, IsEmpty());
}

TEST(Diffs, OfOutlinesWithEqualCornersTakeNoLonger)
{
    // Turned at each corner and compared from it on, this would take minutes.
    const int corners = 400000;
    std::vector<TMR3DPnt> before(corners), after(corners);
    before.back().x = 1;
    after.back().x = 2;
    EXPECT_FALSE(IsTurned(before.data(), after.data(), corners, Tolerance()));
}

}  // namespace
}  // namespace tamur::host
