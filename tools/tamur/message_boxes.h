// The component shows a message box when it refuses a file. A command-line tool must not wait for
// somebody to close one, and says itself what went wrong.
#pragma once

#include <tamur/component.h>

namespace tamur::tool {

// While it lives, boxes that the component shows on this thread are answered at once. One object
// at a time.
class SilencedMessageBoxes {
 public:
    explicit SilencedMessageBoxes(const Component& component);
    SilencedMessageBoxes(const SilencedMessageBoxes&) = delete;
    SilencedMessageBoxes& operator=(const SilencedMessageBoxes&) = delete;
    ~SilencedMessageBoxes();

    // Whether there was one.
    [[nodiscard]] bool WasShown() const;

 private:
#ifdef _WIN32
    HHOOK hook_;
#else
    decltype(&TamurSetMessageBoxHandler) setHandler_;
    bool wasShown_ = false;
#endif
};

}  // namespace tamur::tool
