#include "host/export/output.h"

#include <algorithm>
#include <cerrno>
#include <random>

namespace tamur::host {
namespace {

namespace fs = std::filesystem;

// No name that somebody could have taken before. The ending stays: some writers look at it.
fs::path NameBeside(const fs::path& target)
{
    std::random_device random;
    std::string name = ".tamur-";
    for (int i = 0; i < 4; ++i) name += std::to_string(random());
    return target.parent_path() / PathOf(name + Utf8Of(target.extension()));
}

[[noreturn]] void Fail(const fs::path& path, const std::string& english, const std::string& french)
{
    throw OutputError(Utf8Of(path) + ": " + english, Utf8Of(path) + ": " + french);
}
[[noreturn]] void Fail(const fs::path& path, const std::error_code& error)
{
    Fail(path, error.message(), error.message());
}

// A link is kept, and what it leads to replaced.
fs::path WithoutLinks(const fs::path& target)
{
    std::error_code error;
    if (!fs::is_symlink(fs::symlink_status(target, error))) return target;
    const fs::path real = fs::canonical(target, error);
    if (error) Fail(target, "a link that leads nowhere", "un lien qui ne mène nulle part");
    return real;
}

bool HoldsOnly(const fs::path& folder, std::string_view fileEnding)
{
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; entry != end; entry.increment(error)) {
        std::error_code ignored;
        if (error || !fs::is_regular_file(entry->symlink_status(ignored)) ||
            !Utf8Of(entry->path()).ends_with(fileEnding)) {
            return false;
        }
    }
    return !error;
}

void Rename(const fs::path& from, const fs::path& to)
{
    std::error_code error;
    fs::rename(from, to, error);
    if (error) Fail(to, error);
}

}  // namespace

fs::path PathOf(const std::string& utf8)
{
    return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

std::string Utf8Of(const fs::path& path)
{
    const std::u8string text = path.u8string();
    return std::string(text.begin(), text.end());
}

void FailToWrite(const std::string& why)
{
    throw OutputError("the output cannot be written: " + why,
                      "la sortie ne peut pas être écrite : " + why);
}

void FailToWrite()
{
    FailToWrite(std::generic_category().message(errno));
}

Output::~Output()
{
    for (const Part& part : parts_) {
        std::error_code ignored;
        fs::remove_all(part.temporary, ignored);
    }
}

void Output::CheckPlace(const Part& part) const
{
    std::error_code error;
    const fs::file_status there = fs::status(part.target, error);
    if (!fs::exists(there)) {
        const fs::path folder = part.target.parent_path();
        if (!folder.empty() && !fs::is_directory(folder, error)) {
            Fail(part.target, "there is no folder " + Utf8Of(folder),
                 "il n'y a pas de dossier " + Utf8Of(folder));
        }
        return;
    }
    if (part.fileEnding.empty() ? !fs::is_regular_file(there) : !fs::is_directory(there)) {
        if (part.fileEnding.empty()) {
            Fail(part.target, "it is there and no file", "cela existe et n'est pas un fichier");
        }
        Fail(part.target, "it is there and no folder", "cela existe et n'est pas un dossier");
    }
    if (!mayReplace_) {
        Fail(part.target, "it is there already; --force replaces it",
             "cela existe déjà ; --force le remplace");
    }
    if (!part.fileEnding.empty() && !HoldsOnly(part.target, part.fileEnding)) {
        Fail(part.target,
             "the folder holds something else than " + part.fileEnding +
                 " files: it is not replaced",
             "le dossier contient autre chose que des fichiers " + part.fileEnding +
                 " : il n'est pas remplacé");
    }
}

fs::path Output::Add(const fs::path& target, std::string_view fileEnding)
{
    if (target.filename().empty() || target.filename() == "." || target.filename() == "..") {
        Fail(target, "this is no name for an output", "ce n'est pas un nom pour une sortie");
    }
    Part part{WithoutLinks(target), {}, std::string(fileEnding)};
    CheckPlace(part);
    part.temporary = NameBeside(part.target);
    parts_.push_back(part);
    return part.temporary;
}

fs::path Output::AddFile(const fs::path& target)
{
    return Add(target, "");
}

fs::path Output::AddFolder(const fs::path& target, std::string_view fileEnding)
{
    const fs::path folder = Add(target, fileEnding);
    std::error_code error;
    fs::create_directory(folder, error);
    if (error) Fail(target, error);
    return folder;
}

// A folder that is replaced is moved away first: no system replaces one that holds files.
void Output::MoveIntoPlace(const Part& part)
{
    std::error_code ignored;
    if (part.fileEnding.empty() || !fs::exists(part.target, ignored)) {
        return Rename(part.temporary, part.target);
    }
    const fs::path before = NameBeside(part.target);
    Rename(part.target, before);
    std::error_code error;
    fs::rename(part.temporary, part.target, error);
    if (error) {
        fs::rename(before, part.target, ignored);
        Fail(part.target, error);
    }
    fs::remove_all(before, ignored);
}

void Output::Commit()
{
    for (const Part& part : parts_) CheckPlace(part);
    while (!parts_.empty()) {
        MoveIntoPlace(parts_.back());
        parts_.pop_back();
    }
}

}  // namespace tamur::host
