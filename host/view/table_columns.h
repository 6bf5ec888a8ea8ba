// The records of a table as columns: a column for each field, by its type.
#pragma once

#include <tamur/records.h>
#include <tamur/utf8.h>

#include <bit>
#include <cstdint>
#include <cstring>
#include <string>
#include <type_traits>
#include <unordered_map>
#include <vector>

#include "host/view/data_block.h"

namespace tamur::host::view {

// Texts and points, each once, for columns that say which.
class Texts {
 public:
    static constexpr std::int32_t kNull = -1;

    std::int32_t Add(std::string text);
    std::int32_t Add(BSTR text) { return text == nullptr ? kNull : Add(ToUtf8(ViewOf(text))); }

    // One after the other, each ended by a NUL, which none of them holds.
    [[nodiscard]] std::string Joined() const;

 private:
    std::unordered_map<std::string, std::int32_t> places_;
    std::vector<const std::string*> texts_;
};

class Points {
 public:
    std::int32_t Add(const TMR3DPnt& point);
    [[nodiscard]] std::string Write(DataBlock& block) const;

 private:
    struct Bits {
        std::uint64_t x, y, z;
        friend bool operator==(const Bits&, const Bits&) = default;
    };
    struct Hash {
        std::size_t operator()(const Bits& bits) const;
    };

    std::unordered_map<Bits, std::int32_t, Hash> places_;
    std::vector<double> x_, y_, z_;
};

enum class ColumnType : std::uint8_t { kInt, kReal, kText, kPoint };

struct Column {
    std::string name;
    ColumnType type = ColumnType::kInt;
    bool isList = false;
    std::string table = {};  // integers that are places in that table, -1 for none
    std::vector<std::int32_t> ints = {};
    std::vector<double> reals = {};
    std::vector<std::int32_t> counts = {};  // of a list: of each row
};

// Collects records, which all have the same fields in the same order.
class TableColumns {
 public:
    TableColumns(Texts& texts, Points& points) : texts_(texts), points_(points) {}

    template <class PublicRecord>
    void Add(PublicRecord& record)
    {
        next_ = 0;
        ++rows_;
        VisitFields(record, *this);
    }
    // A column that no record has, with a value for each row. `table`: the values are places in it,
    // -1 for none.
    void AddColumn(std::string name, ColumnType type, std::vector<std::int32_t> values,
                   std::string table = {});
    void AddInts(std::string name, std::vector<std::int32_t> values, std::string table = {})
    {
        AddColumn(std::move(name), ColumnType::kInt, std::move(values), std::move(table));
    }
    // Of a table that has no records of the contract.
    void SetRows(std::size_t rows) { rows_ = rows; }

    [[nodiscard]] std::string Write(std::string_view name, DataBlock& block) const;

    template <class Value>
    void Field(const char* name, Value& value)
    {
        if constexpr (kIsReferred<Value>) {
            return;  // a copy of a record of another table: the row says which
        } else if constexpr (std::is_class_v<Value> && !std::is_same_v<Value, TMR3DPnt>) {
            Nested(name, value);
        } else {
            Put(ColumnFor<Value>(name, false), value);
        }
    }
    template <class Value, std::size_t kCount>
    void Field(const char* name, Value (&values)[kCount])
    {
        PutList(name, values, static_cast<int>(kCount));
    }
    template <class Value>
    void Array(const char* name, Value* values, int count)
    {
        PutList(name, values, WrittenCount(values, count));
    }

 private:
    // A number of values as written may be far beyond what its line holds: the rest is all alike,
    // and told by the count, which is a field of its own.
    static constexpr int kUsualCount = 100;

    template <class Value>
    static constexpr bool kIsReferred =
        std::is_same_v<Value, TMRMaterial> || std::is_same_v<Value, TMRSectionGeometry> ||
        std::is_same_v<Value, TMRAttache>;

    template <class Value>
    static bool IsNothing(const Value& value)
    {
        if constexpr (std::is_same_v<Value, BSTR>) {
            return ViewOf(value).empty();
        } else if constexpr (std::is_class_v<Value>) {
            return false;  // corners, which are never more than their line holds
        } else {
            return value == Value{};
        }
    }
    template <class Value>
    static int WrittenCount(const Value* values, int count)
    {
        while (count > kUsualCount && IsNothing(values[count - 1])) --count;
        return count;
    }

    template <class Value>
    void Nested(const char* name, Value& value)
    {
        const std::size_t length = prefix_.size();
        prefix_.append(name).append(".");
        VisitFields(value, *this);
        prefix_.resize(length);
    }
    template <class Value>
    Column& ColumnFor(const char* name, bool isList)
    {
        if (next_ == columns_.size()) {
            columns_.push_back({.name = prefix_ + name, .type = kTypeOf<Value>, .isList = isList});
        }
        return columns_[next_++];
    }
    template <class Value>
    void PutList(const char* name, Value* values, int count)
    {
        Column& column = ColumnFor<std::remove_cv_t<Value>>(name, true);
        column.counts.push_back(count);
        for (int i = 0; i < count; ++i) Put(column, values[i]);
    }

    void Put(Column& column, double value) { column.reals.push_back(value); }
    void Put(Column& column, BSTR value) { column.ints.push_back(texts_.Add(value)); }
    void Put(Column& column, const TMR3DPnt& value) { column.ints.push_back(points_.Add(value)); }
    template <class Integer>
    void Put(Column& column, Integer value)
    {
        column.ints.push_back(static_cast<std::int32_t>(value));
    }

    template <class Value>
    static constexpr ColumnType kTypeOf = std::is_same_v<Value, double>     ? ColumnType::kReal
                                          : std::is_same_v<Value, BSTR>     ? ColumnType::kText
                                          : std::is_same_v<Value, TMR3DPnt> ? ColumnType::kPoint
                                                                            : ColumnType::kInt;

    Texts& texts_;
    Points& points_;
    std::vector<Column> columns_;
    std::string prefix_;
    std::size_t next_ = 0;
    std::size_t rows_ = 0;
};

}  // namespace tamur::host::view
