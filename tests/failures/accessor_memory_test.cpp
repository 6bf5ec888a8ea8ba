// Memory that runs out while a host asks for objects and records: the documented result, an empty
// record, nothing left over, and a reader that serves the same as before.
#include <gtest/gtest.h>

#include <cstring>

#include "support/accessor_kinds.h"
#include "models/every_table.h"
#include "linked/memory_watch.h"
#include "linked/quiet_boxes.h"
#include "failures/seed_files.h"
#include "platform/platform.h"
#include "server/reader_app.h"

namespace tamur::test {
namespace {

constexpr Failing kWays[] = {Failing::kOnce, Failing::kFromThereOn};

// Makes each allocation of `call()` fail in turn, once and from there on, and has `check(result)`
// look at what came of it. Returns how many allocations the call makes.
template <class Call, class Check>
std::uint64_t FailEachAllocationOf(Call&& call, Check&& check)
{
    std::uint64_t count = 0;
    (void)platform::PrepareForBadAlloc();  // not to be counted
    for (const Failing how : kWays) {
        for (std::uint64_t i = 1;; ++i) {
            MemoryWatch memory;
            memory.FailAt(i, how);
            const HRESULT result = call();
            memory.FailNoMore();
            (void)platform::PrepareForBadAlloc();  // what was given up for the error comes back
            if (!memory.HasFailed()) {
                count = i - 1;
                break;
            }
            EXPECT_EQ(memory.BlocksAlive(), 0) << "allocation " << i;
            check(result);
        }
    }
    return count;
}

template <class PublicRecord>
bool IsEmpty(const PublicRecord& record)
{
    const PublicRecord empty = {};
    return std::memcmp(&record, &empty, sizeof record) == 0;
}

// `read(record)` fills a record. What its memory held before is of no account.
template <class PublicRecord, class Read>
std::uint64_t FailEachAllocationOfRecord(HRESULT expected, Read&& read)
{
    PublicRecord record;
    const auto call = [&] {
        std::memset(static_cast<void*>(&record), 0xA5, sizeof record);
        const HRESULT result = read(&record);
        if (SUCCEEDED(result)) VisitFields(record, FieldFreer());
        return result;
    };
    return FailEachAllocationOf(call, [&](HRESULT result) {
        EXPECT_EQ(result, expected);
        EXPECT_TRUE(IsEmpty(record));
    });
}

// Surfaces, openings, walls and nodes report any error of a copy in the same way.
template <class Table>
constexpr HRESULT kCopyFailure = TableTraits<Table>::kEndsTheProcess ? E_FAIL : E_OUTOFMEMORY;

std::uint64_t FailEachRecord(ITAMURStructureReader& reader)
{
    std::uint64_t count = 0;
    ForEachTable([&](const char* name, auto table) {
        SCOPED_TRACE(name);
        using Records = decltype(table(reader));
        using Traits = TableTraits<Records>;
        using PublicRecord = typename Traits::PublicRecord;
        // These keep two fields of the host's, one a string: nothing in them is allocated.
        if constexpr (!std::is_same_v<PublicRecord, TMRChargePoidsPropre> &&
                      !std::is_same_v<PublicRecord, TMRChargeThermique>) {
            const auto records = table(reader);
            for (LONG rank = 0; rank < records.Size(); ++rank) {
                count += FailEachAllocationOfRecord<PublicRecord>(
                    kCopyFailure<Records>, [&](PublicRecord* record) {
                        return Traits::AtRank(records.TheAccessor(), rank, record);
                    });
            }
        }
    });
    return count;
}

template <class Visit>
void ForEachModel(Visit&& visit)
{
    const QuietBoxes boxes;
    {
        SCOPED_TRACE("every table");
        visit(*Imported(EveryTable()));
    }
    for (const Seed& seed : Seeds()) {
        SCOPED_TRACE(seed.name);
        const auto reader = NewReader();
        (void)ImportText(*reader, seed.text);
        visit(*reader);
    }
}

TEST(FailingMemory, EveryAllocationOfARecordMayFail)
{
    std::uint64_t count = 0;
    ForEachModel([&](ITAMURStructureReader& reader) {
        const std::uint64_t before = ReadEverything(reader);
        count += FailEachRecord(reader);
        EXPECT_EQ(ReadEverything(reader), before);
    });
    RecordProperty("allocations", std::to_string(count));
    EXPECT_GT(count, 3000u);  // otherwise nothing was watched
}

TEST(FailingMemory, EveryAllocationOfTheModesMayFail)
{
    ForEachModel([&](ITAMURStructureReader& reader) {
        const auto loads = GetAccessor(reader, &ITAMURStructureReader::GetChargeAccessor);
        const std::uint64_t count = FailEachAllocationOfRecord<TMRModes>(
            E_OUTOFMEMORY, [&](TMRModes* modes) { return loads->GetModes(modes); });
        EXPECT_EQ(count, 1u);
    });
}

TEST(FailingMemory, NodesInBulkAreDeliveredAllOrNone)
{
    std::uint64_t count = 0;
    ForEachModel([&](ITAMURStructureReader& reader) {
        const auto nodes = Nodes(reader);
        std::vector<TMRNode> bulk(static_cast<std::size_t>(nodes.Size()));
        const auto call = [&] {
            const HRESULT result = nodes.TheAccessor().GetNodes(bulk.data());
            for (TMRNode& node : bulk) {
                if (SUCCEEDED(result)) VisitFields(node, FieldFreer());
            }
            return result;
        };
        count += FailEachAllocationOf(call, [&](HRESULT result) { EXPECT_EQ(result, E_FAIL); });
    });
    RecordProperty("allocations", std::to_string(count));
    EXPECT_GT(count, 20u);
}

// A text is made when it is first asked for.
TEST(FailingMemory, EveryAllocationOfAMessageMayFail)
{
    const auto reader = Imported(ModelText().Elements({"8 1 0 0 0 0 0 0 7 1 0 0 2 1"}));
    const auto messages = GetAccessor(*reader, &ITAMURStructureReader::GetMessageAccessor);
    std::uint64_t failed = 0;
    for (;;) {
        (void)platform::PrepareForBadAlloc();  // not to be counted
        MemoryWatch memory;
        memory.FailAt(failed + 1, Failing::kFromThereOn);
        BSTR text = const_cast<BSTR>(OLESTR("before"));
        const HRESULT result = messages->GetMessageAtRank(0, &text);
        memory.FailNoMore();
        (void)platform::PrepareForBadAlloc();  // what was given up for the error comes back
        if (!memory.HasFailed()) {
            EXPECT_EQ(result, S_OK);
            EXPECT_EQ(Utf8(text), "ATTENTION: Import Poids propre cas numéro 7 impossible");
            break;
        }
        ++failed;
        EXPECT_EQ(result, E_OUTOFMEMORY);
        EXPECT_EQ(text, nullptr);
        EXPECT_EQ(memory.BlocksAlive(), 0);
    }
    EXPECT_GE(failed, 2u);  // the text is put together, and then made
}

TEST(FailingMemory, EveryAllocationOfAnAccessorMayFail)
{
    std::uint64_t count = 0;
    ForEachModel([&](ITAMURStructureReader& reader) {
        const std::uint64_t before = ReadEverything(reader);
        for (const AccessorKind& kind : AccessorKinds()) {
            SCOPED_TRACE(kind.name);
            const auto call = [&] {
                ComPtr<IUnknown> accessor;
                return kind.get(reader, accessor.Put());
            };
            const auto check = [](HRESULT result) { EXPECT_EQ(result, E_OUTOFMEMORY); };
            const std::uint64_t allocations = FailEachAllocationOf(call, check);
            EXPECT_GE(allocations, 1u);
            count += allocations;
        }
        EXPECT_EQ(ReadEverything(reader), before);
    });
    RecordProperty("allocations", std::to_string(count));
}

// Three methods set the host's pointer to null before anything else; the others leave it alone.
template <class Accessor>
Accessor* LeftBehindBy(AccessorGetter<Accessor> get, Accessor* before)
{
    const auto reader = Imported(EveryTable());
    Accessor* accessor = before;
    MemoryWatch memory;
    memory.FailAt(1, Failing::kOnce);
    const HRESULT result = (*reader.*get)(&accessor);
    memory.FailNoMore();
    EXPECT_EQ(result, E_OUTOFMEMORY);
    return accessor;
}

template <class Accessor>
void ExpectPointerLeft(AccessorGetter<Accessor> get, bool isSetToNull)
{
    static int somewhere;
    Accessor* const before = reinterpret_cast<Accessor*>(&somewhere);
    EXPECT_EQ(LeftBehindBy(get, before), isSetToNull ? nullptr : before);
}

TEST(FailingMemory, ThreeMethodsForAccessorsSetThePointerToNullFirst)
{
    ForEachAccessor([]<class Accessor>(const char* name, REFIID, AccessorGetter<Accessor> get) {
        SCOPED_TRACE(name);
        ExpectPointerLeft(
            get, IsOneOf<Accessor, ITMRMaterialAccessor, ITMRCasAccessor, ITMRMessageAccessor>);
    });
}

// A class object that is there stays, so this begins as if the library had just been loaded.
TEST(FailingMemory, EveryAllocationOfAReaderMayFail)
{
    theApp.ExitInstance();
    theApp.InitInstance();
    std::uint64_t classObjects = 0;
    for (const CLSID* classId : {&CLSID_TAMURStructureReader, &CLSID_TMRSurfaciqueAccessor}) {
        const auto getFactory = [&](ComPtr<IClassFactory>& factory) {
            return TheComponent().GetClassObject(*classId, IID_IClassFactory, factory.PutVoid());
        };
        (void)platform::PrepareForBadAlloc();  // not to be counted
        MemoryWatch memory;
        ComPtr<IClassFactory> factory;
        memory.FailAt(1, Failing::kOnce);
        EXPECT_EQ(getFactory(factory), E_OUTOFMEMORY);
        EXPECT_FALSE(factory);
        memory.FailNoMore();
        classObjects += memory.HasFailed();
        (void)platform::PrepareForBadAlloc();  // what was given up for the error comes back
        EXPECT_EQ(memory.BlocksAlive(), 0);
        ASSERT_EQ(getFactory(factory), S_OK);

        const auto create = [&] {
            ComPtr<IUnknown> object;
            const HRESULT result = factory->CreateInstance(nullptr, IID_IUnknown, object.PutVoid());
            EXPECT_EQ(FAILED(result), !object);
            return result;
        };
        const auto check = [](HRESULT result) { EXPECT_EQ(result, E_OUTOFMEMORY); };
        EXPECT_GE(FailEachAllocationOf(create, check), 1u);
    }
    EXPECT_EQ(classObjects, 2u);
}

}  // namespace
}  // namespace tamur::test
