// The comparison of one table, for records of any type.
#pragma once

#include <tamur/ranges.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "host/diff/matching.h"
#include "host/diff/model_diff.h"

namespace tamur::host {

// What a record of the one model needs to be compared with one of the other.
struct ModelSide {
    // The kinds of elements and the numbers of the groups, by their ranks.
    std::vector<std::pair<int, int>> groups;
    const Identities* identities = nullptr;
};

// What all tables of both models share.
struct Comparing {
    explicit Comparing(double apart) : tolerance(apart) { after.identities = &identities; }
    Comparing(const Comparing&) = delete;
    Comparing& operator=(const Comparing&) = delete;

    Tolerance tolerance;
    Identities identities;
    ModelSide before, after;
};

template <class PublicRecord>
class RecordTable {
 public:
    RecordTable(Range<PublicRecord> range, const ModelSide& side)
        : range_(std::move(range)), side_(side)
    {
    }

    [[nodiscard]] LONG Size() const { return range_.Size(); }

    // Loads on a group have the number that the group has, not its rank.
    [[nodiscard]] Record<PublicRecord> At(LONG rank) const
    {
        Record<PublicRecord> record = range_.At(rank);
        if constexpr (requires { record->NumGrp; }) {
            PublicRecord& load = record.Get();
            const auto place = static_cast<std::size_t>(load.NumGrp) - 1;
            if (place < side_.groups.size() && side_.groups[place].first == load.ElemGrp) {
                load.NumGrp = side_.groups[place].second;
            }
        }
        return record;
    }

    [[nodiscard]] std::uint64_t DigestOf(PublicRecord& record, const Tolerance& tolerance,
                                         Part part = Part::kAll, std::string_view key = {}) const
    {
        RecordHash hash(tolerance, side_.identities, part, key);
        VisitFields(record, hash);
        return hash.Value();
    }

    [[nodiscard]] Entry EntryOf(LONG rank, const Tolerance& tolerance) const
    {
        Record<PublicRecord> record = At(rank);
        return WithKey(record.Get(), [&](const char* name, auto& value) {
            return Entry{KeyNumber(record.Get(), value, tolerance),
                         DigestOf(record.Get(), tolerance, Part::kAll, name), rank};
        });
    }

    [[nodiscard]] Entries AllEntries(const Tolerance& tolerance) const
    {
        const LONG size = Size();
        Entries entries;
        entries.reserve(static_cast<std::size_t>(size));
        for (LONG rank = 0; rank < size; ++rank) entries.push_back(EntryOf(rank, tolerance));
        return entries;
    }

    // The content becomes the digest of that part.
    void Digest(Entries& entries, const Tolerance& tolerance, Part part) const
    {
        for (Entry& entry : entries) {
            Record<PublicRecord> record = At(entry.rank);
            WithKey(record.Get(), [&](const char* name, auto&) {
                entry.content = DigestOf(record.Get(), tolerance, part, name);
            });
        }
    }

    [[nodiscard]] Key KeyAt(LONG rank) const
    {
        if (rank < 0) return {};
        Record<PublicRecord> record = At(rank);
        Key key;
        if constexpr (kIsGroup<PublicRecord>) key.emplace_back("Elem", ToValue(record->Elem));
        WithKey(record.Get(),
                [&](const char* name, auto& value) { key.emplace_back(name, ToValue(value)); });
        return key;
    }

 private:
    template <class Value>
    [[nodiscard]] static std::uint64_t KeyNumber(PublicRecord& record, Value& value,
                                                 const Tolerance& tolerance)
    {
        if constexpr (std::is_same_v<Value, BSTR>) {
            RecordHash hash(tolerance, nullptr);
            hash.Field("name", value);
            return hash.Value();
        } else {
            std::uint64_t key = static_cast<std::uint32_t>(value) ^ 0x80000000u;  // ascends
            if constexpr (kIsGroup<PublicRecord>) key |= std::uint64_t{record.Elem} << 32;
            return key;
        }
    }

    Range<PublicRecord> range_;
    const ModelSide& side_;
};

template <class PublicRecord>
class TableDiffOf : public TableDiff {
 public:
    TableDiffOf(ITAMURStructureReader& before, ITAMURStructureReader& after,
                std::shared_ptr<Comparing> comparing)
        : comparing_(std::move(comparing)),
          before_(Records<PublicRecord>(before), comparing_->before),
          after_(Records<PublicRecord>(after), comparing_->after)
    {
        Entries olds = before_.AllEntries(Near());
        Entries news = after_.AllEntries(Near());
        if constexpr (kIsReferredTo<PublicRecord>) IdentifyBefore(olds);
        Match(olds, news);
        for (const Entry& entry : olds) Add(What::kRemoved, entry.key, entry.rank, -1);
        for (const Entry& entry : news) Add(What::kAdded, entry.key, -1, entry.rank);
        SortChanges();
    }

    [[nodiscard]] Kind TheKind() const override { return KindOfTable(Range<PublicRecord>::Name()); }

    [[nodiscard]] Description Describe(const Change& change) const override
    {
        Description description{before_.KeyAt(change.before), after_.KeyAt(change.after), {}, {}};
        if (change.what == What::kChanged || change.what == What::kMoved) {
            description.fields = Fields(change.before, change.after);
            description.movement = MovementIn(description.fields);
        }
        return description;
    }

 private:
    [[nodiscard]] const Tolerance& Near() const { return comparing_->tolerance; }

    void Match(Entries& olds, Entries& news)
    {
        TakePairs(By::kKeyAndContent, olds, news, [](const Entry&, const Entry&) {});
        // What was inserted before elements moves their contents from number to number.
        if constexpr (kIsElement<PublicRecord>) TakeRenumbered(olds, news);
        TakeChanged(olds, news);
        if constexpr (!kIsElement<PublicRecord>) {
            before_.Digest(olds, Near(), Part::kAll);
            after_.Digest(news, Near(), Part::kAll);
            TakeRenumbered(olds, news);
        }
    }

    void TakeRenumbered(Entries& olds, Entries& news)
    {
        TakePairs(By::kContent, olds, news, [this](const Entry& a, const Entry& b) {
            if constexpr (kIsReferredTo<PublicRecord>) Identify(a, b);
            Add(What::kRenumbered, a.key, a.rank, b.rank);
        });
    }

    void TakeChanged(Entries& olds, Entries& news)
    {
        const auto takeBy = [&](By by) {
            TakePairs(by, olds, news, [this](const Entry& a, const Entry& b) { AddChanged(a, b); });
        };
        // Of several with one key, those that are most alike.
        if (HasDoubles(olds) || HasDoubles(news)) {
            for (Part part : {Part::kPoints, Part::kAllButPoints}) {
                before_.Digest(olds, Near(), part);
                after_.Digest(news, Near(), part);
                takeBy(By::kKeyAndContent);
            }
        }
        takeBy(By::kKey);
    }

    void AddChanged(const Entry& a, const Entry& b)
    {
        if constexpr (kIsReferredTo<PublicRecord>) Identify(a, b);
        const auto fields = Fields(a.rank, b.rank);
        if (fields.empty()) return;  // the same, as the tolerance has it
        Add(MovementIn(fields) ? What::kMoved : What::kChanged, a.key, a.rank, b.rank);
    }

    [[nodiscard]] std::vector<FieldChange> Fields(LONG rankBefore, LONG rankAfter) const
    {
        Record<PublicRecord> before = before_.At(rankBefore), after = after_.At(rankAfter);
        return FieldComparison(Near(), comparing_->identities).Compare(before.Get(), after.Get());
    }

    // What is still there is itself, also when something else became like it.
    void IdentifyBefore(const Entries& olds)
    {
        for (const Entry& entry : olds) {
            Record<PublicRecord> record = before_.At(entry.rank);
            const std::uint64_t digest = before_.DigestOf(record.Get(), Near());
            comparing_->identities.Add(digest, digest);
        }
    }
    void Identify(const Entry& before, const Entry& after)
    {
        Record<PublicRecord> a = before_.At(before.rank), b = after_.At(after.rank);
        comparing_->identities.Add(after_.DigestOf(b.Get(), Near()),
                                   before_.DigestOf(a.Get(), Near()));
    }

    void Add(What what, std::uint64_t key, std::int32_t before, std::int32_t after)
    {
        changes_.push_back({what, before, after});
        if constexpr (!kHasName<PublicRecord>) order_.push_back(key);
    }

    // Changes by their keys; those of names by their ranks.
    void SortChanges()
    {
        std::vector<std::pair<std::uint64_t, Change>> sorted;
        sorted.reserve(changes_.size());
        for (std::size_t i = 0; i < changes_.size(); ++i) {
            const Change& change = changes_[i];
            const std::int32_t rank = change.before < 0 ? change.after : change.before;
            sorted.emplace_back(order_.empty() ? static_cast<std::uint64_t>(rank) : order_[i],
                                change);
        }
        std::stable_sort(sorted.begin(), sorted.end(),
                         [](const auto& a, const auto& b) { return a.first < b.first; });
        for (std::size_t i = 0; i < sorted.size(); ++i) changes_[i] = sorted[i].second;
        order_ = {};
        changes_.shrink_to_fit();
    }

    std::shared_ptr<Comparing> comparing_;
    RecordTable<PublicRecord> before_;
    RecordTable<PublicRecord> after_;
    std::vector<std::uint64_t> order_;
};

}  // namespace tamur::host
