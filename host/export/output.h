// Files and folders that appear whole or not at all.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "host/told_error.h"

namespace tamur::host {

// What is to be written cannot be.
class OutputError : public ToldError {
 public:
    using ToldError::ToldError;
};
// Throws that the output cannot be written: for that reason, or that of the system.
[[noreturn]] void FailToWrite(const std::string& why);
[[noreturn]] void FailToWrite();

// A name given by people, and one for people; both UTF-8.
[[nodiscard]] std::filesystem::path PathOf(const std::string& utf8);
[[nodiscard]] std::string Utf8Of(const std::filesystem::path& path);

// Is written under other names beside those it is to have. What was not committed is removed.
class Output {
 public:
    explicit Output(bool mayReplace) : mayReplace_(mayReplace) {}
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;
    ~Output();

    // Where to write what is to be the file `target`. Throws OutputError when something is there
    // that may not be replaced.
    [[nodiscard]] std::filesystem::path AddFile(const std::filesystem::path& target);
    // The same for a folder, which is made. One that is there is replaced only when it holds
    // nothing but files whose names end so (".csv").
    [[nodiscard]] std::filesystem::path AddFolder(const std::filesystem::path& target,
                                                  std::string_view fileEnding);

    // Gives all that was added its name, the first one last: it may refer to the others.
    void Commit();

 private:
    struct Part {
        std::filesystem::path target, temporary;
        std::string fileEnding;  // of what is in a folder; empty for a file
    };
    std::filesystem::path Add(const std::filesystem::path& target, std::string_view fileEnding);
    void CheckPlace(const Part& part) const;
    static void MoveIntoPlace(const Part& part);

    bool mayReplace_;
    std::vector<Part> parts_;
};

}  // namespace tamur::host
