#include "command.h"

#include <CLI/CLI.hpp>

#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>

#include "../exit_code.h"
#include "../failure.h"
#include "../import.h"
#include "../input.h"
#include "../options.h"
#include "../progress.h"
#include "host/export/output.h"
#include "host/findings/plain_text.h"
#include "host/view/page.h"
#include "open_page.h"

namespace tamur::tool {
namespace {

namespace fs = std::filesystem;

// Of each code: all are counted, and who lists more does not read them.
constexpr std::size_t kHeldOfEach = 1000;
constexpr std::size_t kLongestPath = 4096;

struct ViewOptions {
    std::string file;
    std::string output;
    bool mayReplace = false;
    bool opens = false;
    bool isQuiet = false;
};

fs::path OutputOf(const ViewOptions& options, const Input& input)
{
    if (!options.output.empty()) return host::PathOf(options.output);
    return host::PathOf(input.Name()).filename().replace_extension(".html");
}

// A page that was made before may be made anew.
bool IsPage(const fs::path& path)
{
    std::error_code error;
    if (!fs::is_regular_file(path, error)) return false;  // a pipe would wait for somebody
    std::string beginning(host::view::PageBeginning().size(), '\0');
    std::ifstream file(path, std::ios::binary);
    file.read(beginning.data(), static_cast<std::streamsize>(beginning.size()));
    return file && beginning == host::view::PageBeginning();
}

// Not the folders: a page is passed on.
std::string NameOf(const Input& input)
{
    return host::Utf8Of(host::PathOf(input.Name()).filename());
}

std::string MakePage(const ViewOptions& options, const Input& input, const Console& console)
{
    const Progress progress(console.errors, console.isErrorsTerminal && !options.isQuiet,
                            "tamur: reading " + input.Name());
    host::Findings findings(kHeldOfEach);
    host::view::PageOfAFile page = host::view::PageOfFile(input.Path(), NameOf(input), findings);
    if (page.trouble) throw ImportRefused(input, *page.trouble, host::LanguageOfLocale());
    return std::move(page.html);
}

void Write(const std::string& page, const fs::path& path, bool mayReplace)
{
    host::Output output(mayReplace || IsPage(path));
    std::ofstream file(output.AddFile(path), std::ios::binary);
    file << page;
    file.close();
    if (!file) host::FailToWrite();
    output.Commit();
}

int View(const ViewOptions& options, const Console& console)
{
    const Input input(options.file, console.in);
    const fs::path path = OutputOf(options, input);
    const std::string page = MakePage(options, input, console);
    SpeakingIn(host::LanguageOfLocale(), [&] { Write(page, path, options.mayReplace); });
    if (!options.isQuiet) console.out << host::PlainText(host::Utf8Of(path), kLongestPath) << '\n';
    if (options.opens) OpenPage(path);
    return exit_code::kFine;
}

}  // namespace

void AddViewCommand(CLI::App& app, Task& task)
{
    const auto options = std::make_shared<ViewOptions>();
    CLI::App* const command = app.add_subcommand(
        "view", "the model as one page that any browser shows, without a network");
    command->footer(
        "Examples:\n"
        "  tamur view hall.txt --open\n"
        "  tamur view hall.txt -o pages/hall.html\n"
        "Exit codes: 0 written; 1 the file was not imported; 2 wrong usage, or the page cannot be "
        "written\nor opened.");
    AddFile(*command, options->file);
    AddOutput(*command, options->output,
              "where (default: the name of FILE with .html, in this folder)");
    command->add_flag("--open", options->opens, "show it in the browser");
    command->add_flag("--force", options->mayReplace,
                      "replace a file that is no page of this command");
    AddQuiet(*command, options->isQuiet);
    command->callback([&task, options] {
        task = [options](const Console& console) { return View(*options, console); };
    });
}

}  // namespace tamur::tool
