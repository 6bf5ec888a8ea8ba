#include "host/diff/table_diff.h"

#include <algorithm>

#include "host/diff/matching.h"

namespace tamur::host {
namespace {

// Pairs the records of both tables: first those that are the same, then those that are called the
// same, and what is left was removed or added.
class Matcher {
 public:
    Matcher(const ComparedTables& tables, Identities& identities)
        : tables_(tables),
          identities_(identities),
          olds_(tables.EntriesOf(Side::kBefore)),
          news_(tables.EntriesOf(Side::kAfter))
    {
    }

    std::vector<Change> Changes()
    {
        if (tables_.AreReferredTo()) IdentifyBefore();
        Match();
        for (const Entry& entry : olds_) Add(What::kRemoved, entry.key, entry.rank, -1);
        for (const Entry& entry : news_) Add(What::kAdded, entry.key, -1, entry.rank);
        return Sorted();
    }

 private:
    struct KeyedChange {
        std::uint64_t key;
        Change change;
    };

    void Match()
    {
        TakePairs(By::kKeyAndContent, olds_, news_, [](const Entry&, const Entry&) {});
        // What was inserted before elements moves their contents from number to number.
        if (tables_.AreElements()) TakeRenumbered();
        TakeChanged();
        if (!tables_.AreElements()) {
            Digest(Part::kAll);
            TakeRenumbered();
        }
    }

    void TakeRenumbered()
    {
        TakePairs(By::kContent, olds_, news_, [this](const Entry& a, const Entry& b) {
            Identify(a, b);
            Add(What::kRenumbered, a.key, a.rank, b.rank);
        });
    }

    void TakeChanged()
    {
        const auto takeBy = [&](By by) {
            TakePairs(by, olds_, news_,
                      [this](const Entry& a, const Entry& b) { AddChanged(a, b); });
        };
        // Of several with one key, those that are most alike.
        if (HasDoubles(olds_) || HasDoubles(news_)) {
            for (Part part : {Part::kPoints, Part::kAllButPoints}) {
                Digest(part);
                takeBy(By::kKeyAndContent);
            }
        }
        takeBy(By::kKey);
    }

    void AddChanged(const Entry& a, const Entry& b)
    {
        Identify(a, b);
        const auto fields = tables_.Fields(a.rank, b.rank);
        if (fields.empty()) return;  // the same, as the tolerance has it
        Add(MovementIn(fields) ? What::kMoved : What::kChanged, a.key, a.rank, b.rank);
    }

    void Digest(Part part)
    {
        tables_.Digest(Side::kBefore, olds_, part);
        tables_.Digest(Side::kAfter, news_, part);
    }

    // What is still there is itself, also when something else became like it.
    void IdentifyBefore()
    {
        for (const Entry& entry : olds_) {
            const std::uint64_t digest = tables_.WholeDigest(Side::kBefore, entry.rank);
            identities_.Add(digest, digest);
        }
    }
    void Identify(const Entry& before, const Entry& after)
    {
        if (!tables_.AreReferredTo()) return;
        identities_.Add(tables_.WholeDigest(Side::kAfter, after.rank),
                        tables_.WholeDigest(Side::kBefore, before.rank));
    }

    void Add(What what, std::uint64_t key, std::int32_t before, std::int32_t after)
    {
        // What is referred to has a name, whose key says nothing of its order.
        if (tables_.AreReferredTo()) key = static_cast<std::uint64_t>(before < 0 ? after : before);
        changes_.push_back({key, {what, before, after}});
    }

    std::vector<Change> Sorted()
    {
        std::stable_sort(changes_.begin(), changes_.end(),
                         [](const KeyedChange& a, const KeyedChange& b) { return a.key < b.key; });
        std::vector<Change> sorted;
        sorted.reserve(changes_.size());
        for (const KeyedChange& keyed : changes_) sorted.push_back(keyed.change);
        return sorted;
    }

    const ComparedTables& tables_;
    Identities& identities_;
    Entries olds_, news_;
    std::vector<KeyedChange> changes_;
};

}  // namespace

TableDiff::TableDiff(std::unique_ptr<ComparedTables> tables, Identities& identities)
    : tables_(std::move(tables)), changes_(Matcher(*tables_, identities).Changes())
{
}

std::size_t TableDiff::CountOf(What what) const
{
    return static_cast<std::size_t>(
        std::count_if(changes_.begin(), changes_.end(),
                      [what](const Change& change) { return change.what == what; }));
}

Description TableDiff::Describe(const Change& change) const
{
    Description description{tables_->KeyAt(Side::kBefore, change.before),
                            tables_->KeyAt(Side::kAfter, change.after),
                            {},
                            {}};
    if (change.what == What::kChanged || change.what == What::kMoved) {
        description.fields = tables_->Fields(change.before, change.after);
        description.movement = MovementIn(description.fields);
    }
    return description;
}

}  // namespace tamur::host
