// The message boxes that the component shows, caught and closed.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tamur::test {

// While it lives, boxes are answered with OK and noted. On Windows the real boxes are found,
// read and closed from another thread.
class CaughtMessageBoxes {
 public:
    struct Box {
        std::string caption;  // UTF-8
        std::string text;
        unsigned style;  // 0: one button, no icon, not on top of other programs
        bool hasOwner;
    };

    // Calls `whileOpen` before each answer, maybe on another thread.
    explicit CaughtMessageBoxes(std::function<void()> whileOpen = nullptr);
    CaughtMessageBoxes(const CaughtMessageBoxes&) = delete;
    CaughtMessageBoxes& operator=(const CaughtMessageBoxes&) = delete;
    ~CaughtMessageBoxes();

    // The boxes up to now, in order.
    [[nodiscard]] std::vector<Box> Boxes() const;

 private:
    struct State;
    std::unique_ptr<State> state_;
};

}  // namespace tamur::test
