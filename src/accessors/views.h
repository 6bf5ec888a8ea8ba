// How an accessor sees its table: what counts as its size, and what an outside rank does.
#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "model/model.h"
#include "platform/platform.h"

namespace tamur {

// Every view has:
//   Count()             the number of records that the accessor reports
//   CheckRank(rank)     whether there is such a record; for some views a rank outside the table
//                       ends the process instead
//   At(rank)            the record, for a rank that passed the check
//   Referred()          the tables that it refers to, where it does
//   kCopyFailure        the result when memory for a copy runs out

// A model without anything in it.
const Model& NoModel();

// Hosts read one rank after the other, and labels lie where the file had them: those of a record
// soon to be read are fetched meanwhile.
template <class Records>
void PrefetchLabels(const Records& records, std::size_t rank)
{
    constexpr std::size_t kAhead = 4;
    if constexpr (requires { records[rank].labels; }) {
        if (rank + kAhead < records.Size()) records[rank + kAhead].labels.Prefetch();
    }
}

// The records that a table held when the view was made; `find(model)` gives the table. It is found
// through the model at each call: some tables outlive the model, and the view must not.
template <class Find>
class ArrayView {
 public:
    static constexpr HRESULT kCopyFailure = E_OUTOFMEMORY;

    ArrayView(const Model& model, Find find)
        : model_(model),
          find_(find),
          first_(FirstOf(find(model))),
          count_(static_cast<LONG>(find(model).Size()))
    {
    }

    [[nodiscard]] LONG Count() const { return count_; }
    [[nodiscard]] bool CheckRank(LONG rank) const { return rank >= 0 && rank < count_; }
    [[nodiscard]] const auto& At(LONG rank) const
    {
        return AllOf(find_(model_))[first_ + static_cast<std::size_t>(rank)];
    }

 private:
    template <class Record>
    static const Table<Record>& AllOf(const Table<Record>& table)
    {
        return table;
    }
    template <class Record>
    static const Table<Record>& AllOf(const Generation<Record>& generation)
    {
        return generation.all;
    }
    template <class Record>
    static std::size_t FirstOf(const Table<Record>&)
    {
        return 0;
    }
    template <class Record>
    static std::size_t FirstOf(const Generation<Record>& generation)
    {
        return generation.first;
    }

    const Model& model_;
    Find find_;
    std::size_t first_;
    LONG count_;
};

// The records that the table holds now.
template <class Records>
class LiveView {
 public:
    static constexpr HRESULT kCopyFailure = E_OUTOFMEMORY;

    LiveView(const Model& model, const Records& records) : model_(model), records_(records) {}

    [[nodiscard]] LONG Count() const { return static_cast<LONG>(records_.Size()); }
    [[nodiscard]] bool CheckRank(LONG rank) const { return rank >= 0 && rank < Count(); }
    [[nodiscard]] const auto& At(LONG rank) const
    {
        PrefetchLabels(records_, static_cast<std::size_t>(rank));
        return records_[static_cast<std::size_t>(rank)];
    }
    [[nodiscard]] const BarTables& Referred() const { return *model_.barTables; }

 private:
    const Model& model_;
    const Records& records_;
};

// The records that the table holds now; a rank outside it breaks the contract.
template <class Record>
class CheckedView : public LiveView<Table<Record>> {
 public:
    static constexpr HRESULT kCopyFailure = E_FAIL;

    CheckedView(const Model& model, const Table<Record>& table)
        : LiveView<Table<Record>>(model, table)
    {
    }

    [[nodiscard]] bool CheckRank(LONG rank) const
    {
        if (!LiveView<Table<Record>>::CheckRank(rank))
            platform::FailContract("rank outside the table");
        return true;
    }
};

// The same, reporting the number of records of when the view was made.
template <class Record>
class FrozenCountView : public CheckedView<Record> {
 public:
    FrozenCountView(const Model& model, const Table<Record>& table)
        : CheckedView<Record>(model, table), count_(static_cast<LONG>(table.Size()))
    {
    }

    [[nodiscard]] LONG Count() const { return count_; }

 private:
    LONG count_;
};

// The bars of when the view was made, as a copy of its own: a share in the bars and what they are
// made of, none of which changes once read, and the number of bars.
class SharedBars {
 public:
    static constexpr HRESULT kCopyFailure = E_OUTOFMEMORY;

    explicit SharedBars(std::shared_ptr<const BarTables> tables)
        : tables_(std::move(tables)), count_(static_cast<LONG>(tables_->bars.Size()))
    {
    }

    [[nodiscard]] LONG Count() const { return count_; }
    [[nodiscard]] bool CheckRank(LONG rank) const { return rank >= 0 && rank < count_; }
    [[nodiscard]] const Bar& At(LONG rank) const
    {
        return tables_->bars[static_cast<std::size_t>(rank)];
    }
    [[nodiscard]] const BarTables& Referred() const { return *tables_; }

 private:
    std::shared_ptr<const BarTables> tables_;
    LONG count_;
};

// The load cases that were not disabled when the view was made, with texts of their own.
class CasesCopy {
 public:
    static constexpr HRESULT kCopyFailure = E_OUTOFMEMORY;

    explicit CasesCopy(const CaseTable& table);

    [[nodiscard]] LONG Count() const { return static_cast<LONG>(cases_.size()); }
    [[nodiscard]] bool CheckRank(LONG rank) const { return rank >= 0 && rank < Count(); }
    [[nodiscard]] const LoadCase& At(LONG rank) const
    {
        return cases_[static_cast<std::size_t>(rank)];
    }

 private:
    std::vector<LoadCase> cases_;
    std::unique_ptr<char[]> texts_;
};

}  // namespace tamur
