// A sign of life on the terminal for what takes longer than a second.
#pragma once

#include <condition_variable>
#include <mutex>
#include <ostream>
#include <string>
#include <thread>

namespace tamur::tool {

// While it lives, a line says after the first second what is being done and for how long; it is
// wiped away at the end. Silent where nobody looks.
class Progress {
 public:
    Progress(std::ostream& terminal, bool isTerminal, std::string what);
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress();

 private:
    void Show(std::ostream& terminal, const std::string& what);

    std::mutex mutex_;
    std::condition_variable ended_;
    bool hasEnded_ = false;
    std::thread thread_;
};

}  // namespace tamur::tool
