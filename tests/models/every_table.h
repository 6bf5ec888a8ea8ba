// A model with records in every table, and all tables in one list, for tests that hold for all
// of them.
#pragma once

#include <string>
#include <type_traits>

#include "models/element_lines.h"

namespace tamur::test {

// Two bars, one record at least in every other table, nothing empty that can be filled.
inline ModelText EveryTable()
{
    const std::string constants = " 1 2 3 4 5 6 7 8 9 10 11 ";
    return ModelText()
        .Section("#Materiaux", {"C25 3e10 0.2 25000 1e-5 0.05", "S235 2.1e11 0.3 78500 1e-5 0.02"})
        .Section("#Geometries", {"S1" + constants + "2 S 0 0 1 0 5 6",
                                 "C1" + constants + "4 C 0 0 1 0 1 1 0 1 0.5"})
        .Section("#Attaches", {"ART1 7 Rotule A B", "ENC 0 Encastre C D"})
        .Section("#Groupes", {"2 3 2 Poutres_principales Oui", "3 4 3 Dalles Non"})
        .Section("#Cas", {"1 G 1 Perm 0", "2 T 1 Therm 0", "4 Seisme 4 S 0", "9 Env 9 E 0",
                          "10 Comb 2 ELU 0", "11 Comb2 2 ELS 0"})
        .Section("#TAB_PARAM_CAS",
                 {"10 2 1 1.35 2 1.5 32767 0", "11 2 1 1 32767 0",
                  "5 3 2 90 91 92 1 1 1 2 2 3 3 4 4 5 5 6 6 7 7 8 8 1 mot 41 O mot 0.05 0.06",
                  "4 4 O N N mot 0 0.8 0.9 O 1 2 0 0.1 2.5 0.5 3.5 inf inf",
                  "9 9 1 2 3 4 5 6 7 8 9 O 2 1 2"})
        .Elements({
            ElementLine(1).Points({"0 1 2"}).Labels({"N7", "N8"}).Columns("3"),
            ElementLine(2)
                .Points({"0 0 0", "3 4 0"})
                .Labels({"B1"})
                .Columns("3 2 0 0 4 1 1 2 1 2 5"),
            ElementLine(2)
                .Points({"0 0 0", "0 4 3"})
                .Labels({"B2"})
                .Columns("3 2 0 0 4 2 2 1 2 1 5"),
            ElementLine(3)
                .Points({"0 0 0", "1 0 0", "1 1 0"})
                .Labels({"S"})
                .Columns("4 3 1 1 2 2 0.2"),
            ElementLine(4).Points({"0 0 0"}).Labels({"A"}).Columns("1 1 0 45 1 2 3 4 5 6"),
            ElementLine(5).Points({"1 2 3"}).Columns("1 1 10 20 30 40 50 60"),
            ElementLine(6).Points({"0 0 0", "1 1 1"}).Columns("1 2 1 2 3 4 5 6 7 8"),
            ElementLine(7).Points({"0 0 0", "1 0 0", "1 1 0"}).Columns("1 3 1 2 3 4 5 6"),
            ElementLine(8).Columns("1 0 0 -1 2 3"),
            ElementLine(9).Points({"0 0 0"}).Labels({"M"}).Columns("1 2 3 4 5 6"),
            ElementLine(10).Points({"0 0 0", "1 0 0"}).Labels({"AL"}).Columns("1 2 0 0 1 2 3"),
            ElementLine(11).Points({"0 0 0", "1 0 0", "1 1 0"}).Labels({"AS"}).Columns("1 3 1 2 3"),
            ElementLine(12).Points({"0 0 0"}).Columns("1 1 2 3 4 5 6"),
            ElementLine(13).Columns("2 15 0.5 0.6 2 3"),
            ElementLine(15).Points({"0 0 0", "1 0 0"}).Columns("2"),
            ElementLine(16).Points({"0 0 0", "1 0 0"}).Labels({"LI"}).Columns("2"),
            ElementLine(17).Points({"0 0 0", "1 0 0", "1 1 0"}).Labels({"O"}).Columns("2 3"),
            ElementLine(20)
                .Points({"0 0 0", "1 0 0", "1 1 0"})
                .Labels({"P"})
                .Columns("1 O N 1 1 2 3 4 5 O 1 0.5 1 1 1 1 2 2 2 2 3 3 3 3 4 4 4 4 0.1 0.2 0.3"),
            ElementLine(21).Points({"0 0 0", "1 0 0"}).Columns("1 0 1 1"),
            ElementLine(22).Points({"0 0 0", "1 0 0"}).Labels({"L"}).Columns("1 0 2 0.5 1 1.5"),
        });
}

template <class Table>
struct TableTraits;

template <class Table>
struct TableTraits<const Table> : TableTraits<Table> {
};

template <class PublicRecordType>
struct TableTraits<Range<PublicRecordType>> {
    using PublicRecord = PublicRecordType;
    using Accessor = typename TableOf<PublicRecord>::Accessor;

    static HRESULT AtRank(Accessor& accessor, LONG rank, PublicRecord* record)
    {
        return (accessor.*TableOf<PublicRecord>::kGetAtRank)(rank, record);
    }

    static constexpr bool kEndsTheProcess = kRankEndsTheProcess<PublicRecord>;
};

// Calls visit(name, table) for every table, with table(reader) giving the range.
template <class Visitor>
void ForEachTable(Visitor&& visit)
{
    ForEachTableType([&](auto table) {
        visit(table.kName, [](ITAMURStructureReader& reader) {
            return Records<typename decltype(table)::PublicRecord>(reader);
        });
    });
}

}  // namespace tamur::test
