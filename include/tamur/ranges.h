// The tables of a reader as ranges of records:
//
//     for (const auto& node : tamur::Nodes(*reader)) use(node->identifier);
//
//     tamur::Records<TMRNode>(*reader);                       // the same, by its record
//     tamur::ForEachTable(*reader, [](const auto& table) {    // every table
//         std::cout << table.PlainName() << ": " << table.Size() << '\n';
//     });
//
// Every range holds its accessor; the reader must outlive it.
#pragma once

#include <tamur/component.h>
#include <tamur/records.h>

#include <cstddef>
#include <iterator>

namespace tamur {

// What the contract says of the table of a record: Accessor, its interface; kName and kPlainName;
// kGetAccessor, kGetCount and kGetAtRank, the methods that lead to a record. In <tamur/tables.h>.
template <class PublicRecord>
struct TableOf;

// The records that an accessor serves.
template <class RecordType>
class Range {
 public:
    using PublicRecord = RecordType;
    using Table = TableOf<PublicRecord>;
    using Accessor = typename Table::Accessor;

    static constexpr auto kGetCount = Table::kGetCount;
    static constexpr auto kGetAtRank = Table::kGetAtRank;

    explicit Range(ComPtr<Accessor> accessor) : accessor_(std::move(accessor)) {}

    class Iterator {
     public:
        using value_type = Record<PublicRecord>;
        using difference_type = std::ptrdiff_t;
        using iterator_category = std::input_iterator_tag;

        Iterator() = default;
        Iterator(const Range* range, LONG rank) : range_(range), rank_(rank) {}

        Record<PublicRecord> operator*() const { return range_->At(rank_); }
        Iterator& operator++()
        {
            ++rank_;
            return *this;
        }
        void operator++(int) { ++rank_; }
        bool operator==(const Iterator& other) const { return rank_ == other.rank_; }
        bool operator!=(const Iterator& other) const { return rank_ != other.rank_; }

     private:
        const Range* range_ = nullptr;
        LONG rank_ = 0;
    };

    // "AppuisPonctuels".
    [[nodiscard]] static const char* Name() { return Table::kName; }
    // What an engineer says: "point supports".
    [[nodiscard]] static const char* PlainName() { return Table::kPlainName; }

    // How many records there are: asked of the accessor each time.
    [[nodiscard]] LONG Size() const
    {
        LONG count = 0;
        Check((accessor_.Get()->*kGetCount)(&count), "counting records");
        return count;
    }

    // Throws ComponentError for a rank outside the table; surfaces, openings, walls and nodes
    // end the process then.
    [[nodiscard]] Record<PublicRecord> At(LONG rank) const
    {
        Record<PublicRecord> record;
        Check((accessor_.Get()->*kGetAtRank)(rank, &record.Get()), "reading a record");
        return record;
    }

    // The first record.
    [[nodiscard]] Iterator begin() const { return Iterator(this, 0); }
    // After the last record.
    [[nodiscard]] Iterator end() const { return Iterator(this, Size()); }

    // For its further methods, such as GetModes of that of loads.
    [[nodiscard]] Accessor& TheAccessor() const { return *accessor_; }

 private:
    ComPtr<Accessor> accessor_;
};

template <class Accessor>
using AccessorGetter = HRESULT (STDMETHODCALLTYPE ITAMURStructureReader::*)(Accessor**);

// A new accessor of that kind.
template <class Accessor>
ComPtr<Accessor> GetAccessor(ITAMURStructureReader& reader, AccessorGetter<Accessor> get)
{
    ComPtr<Accessor> accessor;
    Check((reader.*get)(accessor.Put()), "getting an accessor");
    return accessor;
}

// The table of a record.
template <class PublicRecord>
Range<PublicRecord> Records(ITAMURStructureReader& reader)
{
    return Range<PublicRecord>(GetAccessor<typename TableOf<PublicRecord>::Accessor>(
        reader, TableOf<PublicRecord>::kGetAccessor));
}

}  // namespace tamur

#include <tamur/tables.h>

namespace tamur {

// Calls visit(range) for every table, in the order of the contract.
template <class Visit>
void ForEachTable(ITAMURStructureReader& reader, Visit&& visit)
{
    ForEachTableType(
        [&](auto table) { visit(Records<typename decltype(table)::PublicRecord>(reader)); });
}

}  // namespace tamur
