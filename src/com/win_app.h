// The application object of a library.
#pragma once

#include "platform/platform.h"

namespace tamur::com {

// Told when the library is loaded and unloaded.
class CWinApp {
 public:
    constexpr explicit CWinApp(const OLECHAR* name = nullptr) : name_(name) {}
    CWinApp(const CWinApp&) = delete;
    CWinApp& operator=(const CWinApp&) = delete;

    virtual BOOL InitInstance() { return TRUE; }
    virtual int ExitInstance() { return 0; }

    [[nodiscard]] const OLECHAR* Name() const { return name_; }

    // The application whose library is at work; null outside of any.
    [[nodiscard]] static CWinApp* Current() { return current_; }

 protected:
    constexpr ~CWinApp() = default;

    // Makes a library's state current while it lives.
    class StateGuard {
     public:
        explicit StateGuard(CWinApp& app) : previous_(current_) { current_ = &app; }
        StateGuard(const StateGuard&) = delete;
        StateGuard& operator=(const StateGuard&) = delete;
        ~StateGuard() { current_ = previous_; }

     private:
        CWinApp* previous_;
    };

 private:
    static inline CWinApp* current_ = nullptr;
    const OLECHAR* name_;
};

}  // namespace tamur::com
