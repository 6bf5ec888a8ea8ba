// Model files that are hard to open.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

#include "support/model_text.h"

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace tamur::test {

// An importable file whose name ends so (UTF-8).
class NamedFile {
 public:
    explicit NamedFile(std::string_view nameEnd) : file_(ModelText().Text()), path_(file_.Path())
    {
        path_ += Wide(nameEnd);
        std::filesystem::rename(file_.Path(), path_);
    }
    NamedFile(const NamedFile&) = delete;
    NamedFile& operator=(const NamedFile&) = delete;
    ~NamedFile()
    {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }

    [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

 private:
    TemporaryFile file_;
    std::filesystem::path path_;
};

// An importable file whose path has more than 260 characters; no name in it has more than 255.
class LongPathFile {
 public:
    LongPathFile() : file_(ModelText().Text()), directory_(file_.Path())
    {
        directory_ += std::string(200, 'd');
        path_ = directory_ / std::string(100, 'f');
        std::filesystem::create_directory(Unlimited(directory_));
        std::filesystem::rename(file_.Path(), Unlimited(path_));
    }
    LongPathFile(const LongPathFile&) = delete;
    LongPathFile& operator=(const LongPathFile&) = delete;
    ~LongPathFile()
    {
        std::error_code ignored;
        std::filesystem::remove(Unlimited(path_), ignored);
        std::filesystem::remove(Unlimited(directory_), ignored);
    }

    [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

 private:
    // The form that Windows takes at any length.
    static std::filesystem::path Unlimited(const std::filesystem::path& path)
    {
#ifdef _WIN32
        return L"\\\\?\\" + path.native();
#else
        return path;
#endif
    }

    TemporaryFile file_;
    std::filesystem::path directory_;
    std::filesystem::path path_;
};

// While it lives, the file cannot be opened: it is locked on Windows, elsewhere nobody has the
// permission to read it.
class WithheldFile {
 public:
    explicit WithheldFile(const std::filesystem::path& path)
    {
#ifdef _WIN32
        handle_ = CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
        isWithheld_ = handle_ != INVALID_HANDLE_VALUE;
#else
        // Root may read everything, so it becomes a user that may not.
        constexpr uid_t kNobody = 65534;
        isWithheld_ = chmod(path.c_str(), 0) == 0 && (user_ != 0 || seteuid(kNobody) == 0);
#endif
    }
    WithheldFile(const WithheldFile&) = delete;
    WithheldFile& operator=(const WithheldFile&) = delete;
    ~WithheldFile()
    {
#ifdef _WIN32
        CloseHandle(handle_);
#else
        if (seteuid(user_) != 0) std::abort();  // the tests that follow would run as nobody
#endif
    }

    // False where this process may not change its user.
    [[nodiscard]] bool IsWithheld() const
    {
        return isWithheld_;
    }

 private:
#ifdef _WIN32
    HANDLE handle_;
#else
    uid_t user_ = geteuid();
#endif
    bool isWithheld_;
};

// The current directory, changed while it lives.
class CurrentDirectory {
 public:
    explicit CurrentDirectory(const std::filesystem::path& path)
    {
        std::filesystem::current_path(path);
    }
    CurrentDirectory(const CurrentDirectory&) = delete;
    CurrentDirectory& operator=(const CurrentDirectory&) = delete;
    ~CurrentDirectory() { std::filesystem::current_path(before_); }

 private:
    std::filesystem::path before_ = std::filesystem::current_path();
};

}  // namespace tamur::test
