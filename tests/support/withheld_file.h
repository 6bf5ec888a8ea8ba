// A file that cannot be opened.
#pragma once

#include <filesystem>
#include <memory>

namespace tamur::test {

// While it lives, the file cannot be opened: it is locked on Windows, elsewhere nobody has the
// permission to read it.
class WithheldFile {
 public:
    explicit WithheldFile(const std::filesystem::path& path);
    WithheldFile(const WithheldFile&) = delete;
    WithheldFile& operator=(const WithheldFile&) = delete;
    ~WithheldFile();

    // False where this process may not change its user.
    [[nodiscard]] bool IsWithheld() const;

 private:
    struct State;
    std::unique_ptr<State> state_;
};

}  // namespace tamur::test
