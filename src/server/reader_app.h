// The application object of the component.
#pragma once

#include "com/win_app.h"

namespace tamur {

class CTamurReaderApp final : public com::CWinApp {
 public:
    // Starts the module: its library identifier and its classes, in the order of the map.
    BOOL InitInstance() override;

    // Ends the module.
    int ExitInstance() override;
};

extern CTamurReaderApp theApp;

}  // namespace tamur
