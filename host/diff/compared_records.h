// The tables of one type of record. Compiled once for each type: what does not need the type is in
// table_diff.cpp.
#pragma once

#include <tamur/ranges.h>

#include <memory>
#include <utility>

#include "host/diff/compared_tables.h"
#include "host/diff/comparing.h"

namespace tamur::host {

template <class PublicRecord>
class ComparedRecords : public ComparedTables {
 public:
    ComparedRecords(ITAMURStructureReader& before, ITAMURStructureReader& after,
                    std::shared_ptr<const Comparing> comparing)
        : comparing_(std::move(comparing)),
          before_(Records<PublicRecord>(before)),
          after_(Records<PublicRecord>(after))
    {
    }

    [[nodiscard]] Kind TheKind() const override { return KindOfTable(Range<PublicRecord>::Name()); }
    [[nodiscard]] bool AreElements() const override { return kIsElement<PublicRecord>; }
    [[nodiscard]] bool AreReferredTo() const override { return kIsReferredTo<PublicRecord>; }

    [[nodiscard]] Entries EntriesOf(Side side) const override
    {
        const LONG size = TableOf(side).Size();
        Entries entries;
        entries.reserve(static_cast<std::size_t>(size));
        for (LONG rank = 0; rank < size; ++rank) entries.push_back(EntryOf(side, rank));
        return entries;
    }

    void Digest(Side side, Entries& entries, Part part) const override
    {
        for (Entry& entry : entries) {
            Record<PublicRecord> record = At(side, entry.rank);
            WithKey(record.Get(), [&](const char* name, auto&) {
                entry.content = DigestOf(side, record.Get(), part, name);
            });
        }
    }

    [[nodiscard]] std::uint64_t WholeDigest(Side side, std::int32_t rank) const override
    {
        return DigestOf(side, At(side, rank).Get(), Part::kAll, {});
    }

    [[nodiscard]] Key KeyAt(Side side, std::int32_t rank) const override
    {
        if (rank < 0) return {};
        Record<PublicRecord> record = At(side, rank);
        Key key;
        if constexpr (kIsGroup<PublicRecord>) key.emplace_back("Elem", ToValue(record->Elem));
        WithKey(record.Get(),
                [&](const char* name, auto& value) { key.emplace_back(name, ToValue(value)); });
        return key;
    }

    [[nodiscard]] std::vector<FieldChange> Fields(std::int32_t before,
                                                  std::int32_t after) const override
    {
        Record<PublicRecord> old = At(Side::kBefore, before), now = At(Side::kAfter, after);
        return FieldComparison(comparing_->tolerance, comparing_->identities)
            .Compare(old.Get(), now.Get());
    }

 private:
    [[nodiscard]] const Range<PublicRecord>& TableOf(Side side) const
    {
        return side == Side::kBefore ? before_ : after_;
    }

    // Loads on a group have the number that the group has, not its rank.
    [[nodiscard]] Record<PublicRecord> At(Side side, LONG rank) const
    {
        Record<PublicRecord> record = TableOf(side).At(rank);
        if constexpr (requires { record->NumGrp; }) {
            PublicRecord& load = record.Get();
            load.NumGrp = comparing_->GroupNumber(side, load.ElemGrp, load.NumGrp);
        }
        return record;
    }

    [[nodiscard]] std::uint64_t DigestOf(Side side, PublicRecord& record, Part part,
                                         std::string_view key) const
    {
        RecordHash hash(comparing_->tolerance, comparing_->IdentitiesOf(side), part, key);
        VisitFields(record, hash);
        return hash.Value();
    }

    [[nodiscard]] Entry EntryOf(Side side, LONG rank) const
    {
        Record<PublicRecord> record = At(side, rank);
        return WithKey(record.Get(), [&](const char* name, auto& value) {
            return Entry{KeyNumber(record.Get(), value),
                         DigestOf(side, record.Get(), Part::kAll, name), rank};
        });
    }

    template <class Value>
    [[nodiscard]] std::uint64_t KeyNumber(PublicRecord& record, Value& value) const
    {
        if constexpr (std::is_same_v<Value, BSTR>) {
            RecordHash hash(comparing_->tolerance, nullptr);
            hash.Field("name", value);
            return hash.Value();
        } else {
            std::uint64_t key = static_cast<std::uint32_t>(value) ^ 0x80000000u;  // ascends
            if constexpr (kIsGroup<PublicRecord>) key |= std::uint64_t{record.Elem} << 32;
            return key;
        }
    }

    std::shared_ptr<const Comparing> comparing_;
    Range<PublicRecord> before_, after_;
};

}  // namespace tamur::host
