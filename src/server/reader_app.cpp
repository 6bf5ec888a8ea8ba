#include "server/reader_app.h"

#include "TAMURReader.h"
#include "com/module.h"
#include "server/object_map.h"

namespace tamur {

constinit CTamurReaderApp theApp;

BOOL CTamurReaderApp::InitInstance()
{
    const StateGuard guard(*this);
    com::TheModule().Init(theObjectMap, LIBID_TAMURREADERLib);
    return CWinApp::InitInstance();
}

int CTamurReaderApp::ExitInstance()
{
    com::TheModule().Term();
    return CWinApp::ExitInstance();
}

}  // namespace tamur
