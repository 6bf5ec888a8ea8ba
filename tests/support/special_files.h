// Model files that are hard to open.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "support/model_text.h"

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
    // `unlimited` is what a path has to start with to be taken at any length.
    explicit LongPathFile(std::string_view unlimited = {})
        : file_(ModelText().Text()), directory_(file_.Path()), unlimited_(unlimited)
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
    [[nodiscard]] std::filesystem::path Unlimited(const std::filesystem::path& path) const
    {
        std::filesystem::path whole = unlimited_;
        return whole += path;
    }

    TemporaryFile file_;
    std::filesystem::path directory_;
    std::filesystem::path unlimited_;
    std::filesystem::path path_;
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
