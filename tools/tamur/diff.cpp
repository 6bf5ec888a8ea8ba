#include "diff.h"

#include <CLI/CLI.hpp>

#include <cmath>
#include <new>
#include <stdexcept>

#include "diff_json.h"
#include "diff_text.h"
#include "host/language.h"
#include "import.h"

namespace tamur::tool {
namespace {

constexpr int kSame = 0;
constexpr int kDifferent = 1;
constexpr int kTrouble = 2;

ComPtr<ITAMURStructureReader> ImportNamed(const Component& component, const std::string& file)
{
    try {
        return Import(component, file);
    } catch (const ImportRefused& refused) {
        throw std::runtime_error(file + ": " + refused.what());
    }
}

int Write(const std::string& component, const DiffCommand& command, std::ostream& out)
{
    const Component loaded = LoadComponent(component);
    const auto before = ImportNamed(loaded, command.before);
    const auto after = ImportNamed(loaded, command.after);
    const DiffResult result{.before = {command.before, VersionOf(command.before)},
                            .after = {command.after, VersionOf(command.after)},
                            .model = host::Compare(*before, *after, command.tolerance)};
    if (command.format == "json") {
        WriteDiffJson(result, out);
    } else {
        const auto language = host::ParseLanguage(command.language);
        WriteDiffText(result, language.value_or(host::LanguageOfLocale()), command.showsAll, out);
    }
    if (!out.flush()) throw std::runtime_error("the output cannot be written");
    return result.IsEmpty() ? kSame : kDifferent;
}

int Fail(std::ostream& errors, const char* why)
{
    errors << "tamur: " << why << '\n';
    return kTrouble;
}

}  // namespace

void AddDiffCommand(CLI::App& app, DiffCommand& command)
{
    CLI::App* const diff = app.add_subcommand("diff", "what changed from one file to another");
    diff->footer("Exit codes: 0 the same; 1 different; 2 wrong usage, or a file was not imported.");
    diff->add_option("BEFORE", command.before, "the model file before")->required()->type_name("");
    diff->add_option("AFTER", command.after, "the model file after")->required()->type_name("");
    diff->add_option("--format", command.format, "text or json")
        ->check(CLI::IsMember({"text", "json"}))
        ->type_name("NAME");
    diff->add_option("--lang", command.language, "en or fr, instead of the user's language")
        ->check(CLI::IsMember({"en", "fr"}))
        ->type_name("NAME");
    diff->add_option("--tolerance", command.tolerance,
                     "coordinates that far apart are the same, and other reals that differ by that "
                     "part of the larger one")
        ->type_name("NUMBER");
    diff->add_flag("--all", command.showsAll, "every change, not the first of each kind only");
    diff->callback([&command] {
        // NaN is in no range, and in all that are checked with "less".
        if (!(command.tolerance >= 0) || std::isinf(command.tolerance)) {
            throw CLI::ValidationError("--tolerance", "not 0 or more");
        }
        command.isAsked = true;
    });
}

int RunDiff(const std::string& component, const DiffCommand& command, std::ostream& out,
            std::ostream& errors)
{
    try {
        return Write(component, command, out);
    } catch (const std::bad_alloc&) {
        return Fail(errors, "not enough memory");
    } catch (const std::exception& error) {
        return Fail(errors, error.what());
    }
}

}  // namespace tamur::tool
