#include "server/reader_app.h"

#include <gtest/gtest.h>

#include <vector>

#include "TAMURReader.h"
#include "com/module.h"
#include "server/object_map.h"

namespace tamur {
namespace {

struct Event {
    int entry;
    bool starting;
    const com::CWinApp* current;  // the application at work
    GUID libraryId;
};

std::vector<Event> events;

template <int entry>
void NoteEvent(bool starting)
{
    events.push_back({entry, starting, com::CWinApp::Current(), com::TheModule().LibraryId()});
}

// Stands in for the classes' own start and end functions.
class ReaderApp : public testing::Test {
 protected:
    ReaderApp() : original_{theObjectMap[0].objectMain, theObjectMap[1].objectMain}
    {
        events.clear();
        theObjectMap[0].objectMain = NoteEvent<0>;
        theObjectMap[1].objectMain = NoteEvent<1>;
    }
    ~ReaderApp() override
    {
        theObjectMap[0].objectMain = original_[0];
        theObjectMap[1].objectMain = original_[1];
    }

 private:
    decltype(com::ObjectMapEntry::objectMain) original_[2];
};

TEST_F(ReaderApp, StartsItsTwoClassesInOrderWithItsStateCurrentAndItsLibraryKnown)
{
    EXPECT_EQ(theApp.InitInstance(), TRUE);
    ASSERT_EQ(events.size(), 2u);
    for (int i = 0; i < 2; ++i) {
        const Event& event = events[static_cast<std::size_t>(i)];
        EXPECT_EQ(event.entry, i);
        EXPECT_TRUE(event.starting);
        EXPECT_EQ(event.current, &theApp);
        EXPECT_TRUE(IsEqualGUID(event.libraryId, LIBID_TAMURREADERLib));
    }
    EXPECT_EQ(com::CWinApp::Current(), nullptr);
    theApp.ExitInstance();
}

TEST_F(ReaderApp, ReleasesClassObjectsAndEndsItsClassesOnExit)
{
    theApp.InitInstance();
    IUnknown* classObject = nullptr;
    ASSERT_EQ(com::TheModule().GetClassObject(CLSID_TAMURStructureReader, IID_IUnknown,
                                              reinterpret_cast<void**>(&classObject)),
              S_OK);
    EXPECT_EQ(classObject->Release(), 1u);  // the module's
    events.clear();
    EXPECT_EQ(theApp.ExitInstance(), 0);
    ASSERT_EQ(events.size(), 2u);
    EXPECT_FALSE(events[0].starting);
    EXPECT_EQ(theObjectMap[0].classObject, nullptr);
    EXPECT_EQ(com::TheModule().LockCount(), 0);
}

TEST(ReaderAppName, IsNotGiven)
{
    EXPECT_EQ(theApp.Name(), nullptr);
}

TEST(ObjectMap, HasTheReaderAndTheSurfaceAccessor)
{
    EXPECT_TRUE(IsEqualGUID(*theObjectMap[0].classId, CLSID_TAMURStructureReader));
    EXPECT_TRUE(IsEqualGUID(*theObjectMap[1].classId, CLSID_TMRSurfaciqueAccessor));
    EXPECT_EQ(theObjectMap[2].classId, nullptr);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(theObjectMap[i].description(), nullptr);
        EXPECT_EQ(theObjectMap[i].categoryMap(), nullptr);
        EXPECT_EQ(theObjectMap[i].classObject, nullptr);
    }
}

}  // namespace
}  // namespace tamur
