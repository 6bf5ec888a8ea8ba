#include "com/module.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <tamur/component.h>

#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace tamur::com {
namespace {

constexpr CLSID kFirstClass = {1, 0, 0, {}};
constexpr CLSID kSecondClass = {2, 0, 0, {}};
constexpr CLSID kDeclaredClass = {3, 0, 0, {}};
constexpr GUID kLibrary = {9, 8, 7, {6, 5, 4, 3, 2, 1}};

std::vector<std::string> events;
std::atomic<int> created;

void Note(const char* what, bool starting)
{
    events.push_back(std::string(what) + (starting ? " starts" : " ends"));
}

// A class object that notes its end.
class NotedClassObject final : public IUnknown {
 public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) noexcept override
    {
        *object = IsEqualIID(riid, IID_IUnknown) ? this : nullptr;
        if (*object == nullptr) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() noexcept override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() noexcept override
    {
        const ULONG left = --references_;
        if (left == 0) {
            events.push_back("class object released");
            delete this;
        }
        return left;
    }

 private:
    ~NotedClassObject() = default;

    std::atomic<ULONG> references_ = 0;
};

using Creator = HRESULT (*)(IUnknown*, REFIID, void**);

HRESULT CreateClassObject(Creator, REFIID riid, void** object)
{
    ++created;
    return (new NotedClassObject)->QueryInterface(riid, object);
}

HRESULT FailToCreateClassObject(Creator, REFIID, void**)
{
    ++created;
    return E_OUTOFMEMORY;
}

HRESULT CreateNothing(IUnknown*, REFIID, void**)
{
    return E_NOTIMPL;
}
HRESULT NoRegistry(BOOL)
{
    return S_OK;
}
const OLECHAR* NoDescription()
{
    return nullptr;
}
const void* NoCategories()
{
    return nullptr;
}

class ModuleTest : public testing::Test {
 protected:
    ModuleTest()
    {
        events.clear();
        created = 0;
        module_.Init(map_, kLibrary);
    }
    ~ModuleTest() override { module_.Term(); }

    ComPtr<IUnknown> ClassObject(REFCLSID classId)
    {
        ComPtr<IUnknown> classObject;
        Check(module_.GetClassObject(classId, IID_IUnknown, classObject.PutVoid()), "asking");
        return classObject;
    }

    Module module_;
    ObjectMapEntry map_[4] = {
        {&kFirstClass, NoRegistry, CreateClassObject, CreateNothing, nullptr, 0, NoDescription,
         NoCategories, [](bool starting) { Note("first", starting); }},
        {&kSecondClass, NoRegistry, FailToCreateClassObject, CreateNothing, nullptr, 0,
         NoDescription, NoCategories, [](bool starting) { Note("second", starting); }},
        {&kDeclaredClass, NoRegistry, nullptr, CreateNothing, nullptr, 0, NoDescription,
         NoCategories, [](bool starting) { Note("declared", starting); }},
        {nullptr, nullptr, nullptr, nullptr, nullptr, 0, nullptr, nullptr, nullptr},
    };
};

TEST_F(ModuleTest, StartsTheClassesInTheOrderOfTheMap)
{
    EXPECT_THAT(events, testing::ElementsAre("first starts", "second starts", "declared starts"));
}

TEST_F(ModuleTest, KnowsItsLibrary)
{
    EXPECT_TRUE(IsEqualGUID(module_.LibraryId(), kLibrary));
}

TEST_F(ModuleTest, CreatesNoClassObjectBeforeItIsAskedFor)
{
    EXPECT_EQ(created, 0);
}

TEST_F(ModuleTest, CreatesAClassObjectOnce)
{
    const auto one = ClassObject(kFirstClass);
    const auto two = ClassObject(kFirstClass);
    EXPECT_EQ(one.Get(), two.Get());
    EXPECT_EQ(created, 1);
}

TEST_F(ModuleTest, ReleasesItsClassObjectsAndEndsTheClasses)
{
    ClassObject(kFirstClass);
    events.clear();
    module_.Term();
    EXPECT_THAT(events, testing::ElementsAre("class object released", "first ends", "second ends",
                                             "declared ends"));
    EXPECT_EQ(map_[0].classObject, nullptr);
}

TEST_F(ModuleTest, HasNoClassesOnceEnded)
{
    module_.Term();
    void* object = nullptr;
    EXPECT_EQ(module_.GetClassObject(kFirstClass, IID_IUnknown, &object),
              CLASS_E_CLASSNOTAVAILABLE);
}

TEST_F(ModuleTest, ClassWithoutCreationFunctionIsNotAvailable)
{
    void* object = &object;
    EXPECT_EQ(module_.GetClassObject(kDeclaredClass, IID_IUnknown, &object),
              CLASS_E_CLASSNOTAVAILABLE);
    EXPECT_EQ(object, nullptr);
}

TEST_F(ModuleTest, FailedCreationIsReportedAndTriedAgain)
{
    for (int attempt = 1; attempt <= 2; ++attempt) {
        void* object = nullptr;
        EXPECT_EQ(module_.GetClassObject(kSecondClass, IID_IUnknown, &object), E_OUTOFMEMORY);
        EXPECT_EQ(created, attempt);
    }
}

TEST_F(ModuleTest, ResultOfTheQuestionForAnInterfaceIsPassedOn)
{
    void* object = &object;
    EXPECT_EQ(module_.GetClassObject(kFirstClass, IID_IClassFactory, &object), E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
}

TEST_F(ModuleTest, StopsAtTheFirstEntryThatFails)
{
    int visited = 0;
    EXPECT_EQ(module_.ForEachEntry([&](ObjectMapEntry&) { return ++visited == 2 ? E_FAIL : S_OK; }),
              E_FAIL);
    EXPECT_EQ(visited, 2);
}

TEST_F(ModuleTest, CountsLocks)
{
    EXPECT_EQ(module_.Lock(), 1);
    EXPECT_EQ(module_.Lock(), 2);
    EXPECT_EQ(module_.LockCount(), 2);
    EXPECT_EQ(module_.Unlock(), 1);
    EXPECT_EQ(module_.Unlock(), 0);
}

// Where two threads wait for each other; the second to come does something first. (std::barrier
// loses threads under Wine.)
class Rendezvous {
 public:
    explicit Rendezvous(std::function<void()> onMeeting) : onMeeting_(std::move(onMeeting)) {}

    void Meet()
    {
        std::unique_lock lock(mutex_);
        if (isOneHere_) {
            onMeeting_();
            isOneHere_ = false;
            ++meetings_;
            met_.notify_one();
        } else {
            isOneHere_ = true;
            met_.wait(lock, [this, before = meetings_] { return meetings_ != before; });
        }
    }

 private:
    std::function<void()> onMeeting_;
    std::mutex mutex_;
    std::condition_variable met_;
    bool isOneHere_ = false;
    unsigned meetings_ = 0;
};

// Both threads ask at the same moment for a class object that does not exist yet, ever again.
TEST_F(ModuleTest, TwoThreadsThatAskAtOnceShareOneClassObject)
{
    constexpr int kRounds = 10000;
    IUnknown* got[2] = {};
    int different = 0;
    const auto startAfresh = [&]() noexcept {
        different += got[0] != got[1];
        module_.Term();
        module_.Init(map_, kLibrary);
    };
    Rendezvous asked(startAfresh);
    const auto ask = [&](IUnknown*& mine) {
        for (int i = 0; i < kRounds; ++i) {
            mine = ClassObject(kFirstClass).Get();
            asked.Meet();
        }
    };
    std::thread one([&] { ask(got[0]); });
    std::thread two([&] { ask(got[1]); });
    one.join();
    two.join();
    EXPECT_EQ(different, 0);
    EXPECT_EQ(created, kRounds);
}

}  // namespace
}  // namespace tamur::com
