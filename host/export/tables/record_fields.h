// The columns of a table, and the cells of its records.
#pragma once

#include <tamur/records.h>

#include <cmath>
#include <concepts>
#include <cstddef>
#include <string>
#include <type_traits>
#include <vector>

#include "host/diff/field_rules.h"
#include "host/export/tables/table_writer.h"
#include "host/export/tables/units.h"

namespace tamur::host {

inline Cell ToCell(BSTR text)
{
    return text == nullptr ? Cell() : Cell(ToUtf8(ViewOf(text)));
}
inline Cell ToCell(double number)
{
    return number;
}
template <class Whole>
requires(std::is_integral_v<Whole> || std::is_enum_v<Whole>) Cell ToCell(Whole number)
{
    return static_cast<std::int64_t>(number);
}

// The name by which others call the records of a table.
inline BSTR NameOf(const TMRMaterial& record)
{
    return record.MaterialName;
}
inline BSTR NameOf(const TMRSectionGeometry& record)
{
    return record.SectionLib;
}
inline BSTR NameOf(const TMRAttache& record)
{
    return record.AttacheLib;
}

// Goes over the fields that make a row: `Derived` has Add(name, value) for each cell, and Enter
// and Leave around the fields of a record within it. Arrays are lists, in tables of their own; of
// labels the first is in the row.
template <class Derived>
class RowVisitor {
 public:
    template <class Value>
    void Field(const char* name, Value& value)
    {
        if constexpr (kIsReferredTo<Value>) {
            Self().Add(name, NameOf(value));
        } else if constexpr (std::is_same_v<Value, TMRElementLabels>) {
            Self().Add(name, value.nbLabels > 0 ? value.tabLabels[0] : BSTR());
            Self().Add("ElemLabels.nbLabels", value.nbLabels);
        } else if constexpr (std::is_class_v<Value>) {
            Self().Enter(name);
            VisitFields(value, Self());
            Self().Leave();
        } else {
            Self().Add(name, value);
        }
    }
    template <class Value, std::size_t kCount>
    void Field(const char* name, Value (&values)[kCount])
    {
        for (std::size_t i = 0; i < kCount; ++i) Self().AddElement(name, i, values[i]);
    }
    template <class Value>
    void Array(const char*, Value*, int)
    {
    }

 private:
    Derived& Self() { return static_cast<Derived&>(*this); }
};

class ColumnsOfRow : public RowVisitor<ColumnsOfRow> {
 public:
    ColumnsOfRow(std::string_view table, std::vector<TableColumn>& columns)
        : table_(table), columns_(columns)
    {
    }

    template <class Value>
    void Add(const std::string& name, const Value&)
    {
        std::string path = prefix_ + name;
        const std::string_view unit = UnitOf(table_, path);
        columns_.push_back({std::move(path), unit});
    }
    template <class Value>
    void AddElement(const char* name, std::size_t place, const Value& value)
    {
        Add(std::string(name) + '[' + std::to_string(place + 1) + ']', value);
    }
    void Enter(const char* name) { prefix_ += std::string(name) + '.'; }
    void Leave()
    {
        prefix_.pop_back();
        prefix_.resize(prefix_.rfind('.') + 1);  // no point: rfind + 1 is 0
    }

 private:
    std::string_view table_;
    std::vector<TableColumn>& columns_;
    std::string prefix_;
};

class CellsOfRow : public RowVisitor<CellsOfRow> {
 public:
    explicit CellsOfRow(std::vector<Cell>& cells) : cells_(cells) {}

    template <class Value>
    void Add(const char*, const Value& value)
    {
        cells_.push_back(ToCell(value));
    }
    template <class Value>
    void AddElement(const char*, std::size_t, const Value& value)
    {
        cells_.push_back(ToCell(value));
    }
    void Enter(const char*) {}
    void Leave() {}

 private:
    std::vector<Cell>& cells_;
};

}  // namespace tamur::host
