// A sign of life on the terminal for what takes longer than a second.
#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <ostream>
#include <string>
#include <thread>

namespace tamur::tool {

// While it lives, a line says after the first second what is being done, for how long, and, where
// `percent` tells, how far it is; it is wiped away at the end. Silent where nobody looks.
class Progress {
 public:
    Progress(std::ostream& terminal, bool isTerminal, const std::string& what,
             std::function<int()> percent = {});
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress();

 private:
    void Show(std::ostream& terminal, const std::string& what);

    std::function<int()> percent_;
    std::mutex mutex_;
    std::condition_variable ended_;
    bool hasEnded_ = false;
    std::thread thread_;
};

}  // namespace tamur::tool
