// Who frees what, kept in books over random sequences of calls: every string and block that a host
// is given is made for it, and gone after one call of the function for its kind.
#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <utility>

#include "models/every_table.h"
#include "linked/ownership_ledger.h"
#include "linked/quiet_boxes.h"
#include "failures/seed_files.h"

namespace tamur::test {
namespace {

// What a host holds: freed when it goes.
using Held = std::shared_ptr<void>;

// A host that reads whatever comes to its mind and keeps some of it for a while.
class RestlessHost {
 public:
    RestlessHost(ITAMURStructureReader& reader, const OwnershipLedger& ledger, unsigned seed)
        : reader_(reader), ledger_(ledger), random_(seed)
    {
    }

    void Act()
    {
        switch (Choose(10)) {
            case 0:
            case 1:
            case 2: Drop(); break;
            case 3: ReadAllNodes(); break;
            case 4: ReadModes(); break;
            case 5: ReadMessage(); break;
            default: ReadRecord(); break;
        }
    }

 private:
    std::size_t Choose(std::size_t count) { return random_() % count; }

    void Drop()
    {
        if (held_.empty()) return;
        std::swap(held_[Choose(held_.size())], held_.back());
        held_.pop_back();
    }

    template <class PublicRecord>
    void Keep(Record<PublicRecord> record)
    {
        ExpectLabelsLent(record.Get());
        held_.push_back(std::make_shared<Record<PublicRecord>>(std::move(record)));
    }

    template <class PublicRecord>
    void ExpectLabelsLent(const PublicRecord& record)
    {
        if constexpr (requires { record.ElemLabels; }) {
            const TMRElementLabels& labels = record.ElemLabels;
            EXPECT_EQ(labels.tabLabels != nullptr, labels.nbLabels != 0);
            for (int i = 0; i < labels.nbLabels; ++i) {
                EXPECT_FALSE(ledger_.IsAlive(labels.tabLabels[i]));
            }
        }
    }

    void ReadRecord()
    {
        std::size_t wanted = Choose(TableCount());
        ForEachTable([&](const char*, auto table) {
            if (wanted-- != 0) return;
            const auto records = table(reader_);
            if (records.Size() == 0) return;
            Keep(records.At(static_cast<LONG>(Choose(static_cast<std::size_t>(records.Size())))));
        });
    }

    void ReadAllNodes()
    {
        const auto nodes = Nodes(reader_);
        std::vector<TMRNode> bulk(static_cast<std::size_t>(nodes.Size()));
        Check(nodes.TheAccessor().GetNodes(bulk.data()), "GetNodes");
        for (const TMRNode& node : bulk) {
            Record<TMRNode> record;
            *record.Put() = node;
            Keep(std::move(record));
        }
    }

    void ReadModes()
    {
        Record<TMRModes> modes;
        const auto loads = GetAccessor(reader_, &ITAMURStructureReader::GetChargeAccessor);
        Check(loads->GetModes(modes.Put()), "GetModes");
        Keep(std::move(modes));
    }

    // The accessor owns the texts: one is made at the first call, for itself, and is the same each
    // time.
    void ReadMessage()
    {
        const auto messages = GetAccessor(reader_, &ITAMURStructureReader::GetMessageAccessor);
        LONG count = 0;
        Check(messages->GetNbMessages(&count), "GetNbMessages");
        if (count == 0) return;
        const std::uint64_t made = ledger_.Made();
        const LONG rank = static_cast<LONG>(Choose(static_cast<std::size_t>(count)));
        BSTR one = nullptr;
        BSTR other = nullptr;
        Check(messages->GetMessageAtRank(rank, &one), "GetMessageAtRank");
        Check(messages->GetMessageAtRank(rank, &other), "GetMessageAtRank");
        EXPECT_EQ(one, other);
        EXPECT_EQ(ledger_.Made(), made + 1);
    }

    static std::size_t TableCount()
    {
        std::size_t count = 0;
        ForEachTableType([&](auto) { ++count; });
        return count;
    }

    ITAMURStructureReader& reader_;
    const OwnershipLedger& ledger_;
    std::mt19937 random_;
    std::vector<Held> held_;
};

// Returns how many strings and blocks were made.
std::uint64_t LetAHostRead(const std::string& text, unsigned seed)
{
    constexpr int kActs = 3000;
    const TemporaryFile file(text);
    const OwnershipLedger ledger;
    {
        const auto reader = NewReader();
        (void)ImportFile(*reader, file.Path());
        RestlessHost host(*reader, ledger, seed);
        for (int i = 0; i < kActs; ++i) host.Act();
    }
    EXPECT_EQ(ledger.Alive(), 0u);
    EXPECT_EQ(ledger.WrongFrees(), 0u);
    return ledger.Made();
}

TEST(Ownership, EverythingHandedOutIsFreedOnceByTheFunctionOfItsKind)
{
    const QuietBoxes boxes;
    std::uint64_t made = LetAHostRead(EveryTable().Text(), 1);
    unsigned number = 2;
    for (const Seed& seed : Seeds()) {
        SCOPED_TRACE(seed.name);
        made += LetAHostRead(seed.text, number++);
    }
    RecordProperty("made", std::to_string(made));
    EXPECT_GT(made, 100000u);
}

TEST(Ownership, RecordsOutliveTheirReaderButTheLabelsInThem)
{
    const OwnershipLedger ledger;
    std::vector<Held> held;
    {
        const auto reader = Imported(EveryTable());
        ForEachTable([&](const char*, auto table) {
            using Kept = Record<typename TableTraits<decltype(table(*reader))>::PublicRecord>;
            held.push_back(std::make_shared<Kept>(table(*reader).At(0)));
        });
    }
    EXPECT_GT(ledger.Alive(), 30u);
    held.clear();
    EXPECT_EQ(ledger.Alive(), 0u);
    EXPECT_EQ(ledger.WrongFrees(), 0u);
}

// Otherwise the books would not show anything.
TEST(Ownership, WrongFreesAreNoticed)
{
    const OwnershipLedger ledger;
    const BSTR text = SysAllocString(OLESTR("text"));
    void* const block = CoTaskMemAlloc(4);
    EXPECT_EQ(ledger.Alive(), 2u);
    CoTaskMemFree(text);
    SysFreeString(static_cast<BSTR>(block));
    EXPECT_EQ(ledger.WrongFrees(), 2u);
    SysFreeString(text);
    CoTaskMemFree(block);
    EXPECT_EQ(ledger.Alive(), 0u);
    CoTaskMemFree(block);
    EXPECT_EQ(ledger.WrongFrees(), 3u);
}

}  // namespace
}  // namespace tamur::test
