#include "command.h"

#include <CLI/CLI.hpp>

#include <cmath>
#include <memory>
#include <new>
#include <stdexcept>

#include "../exit_code.h"
#include "../import.h"
#include "host/language.h"
#include "json.h"
#include "text.h"

namespace tamur::tool {
namespace {

struct DiffOptions {
    std::string component;
    std::string before;
    std::string after;
    std::string format = "text";
    std::string language;  // empty: the user's
    double tolerance = 0;
    bool showsAll = false;
};

// A model that was not imported is not a different one.
Imported ImportWhole(const DiffOptions& options, const Input& input)
{
    try {
        return Import(options.component, input);
    } catch (const ImportRefused& refused) {
        throw std::runtime_error(refused.what());
    } catch (const std::bad_alloc&) {
        throw std::runtime_error(input.Name() + ": not enough memory");
    }
}

int Diff(const DiffOptions& options, const Console& console)
{
    const Input before(options.before, console.in), after(options.after, console.in);
    const Imported from = ImportWhole(options, before), to = ImportWhole(options, after);
    const DiffResult result{.before = {before.Name(), from.version},
                            .after = {after.Name(), to.version},
                            .model = host::Compare(*from.reader, *to.reader, options.tolerance)};
    if (options.format == "json") {
        WriteDiffJson(result, console.out);
    } else {
        const auto language = host::ParseLanguage(options.language);
        WriteDiffText(result, language.value_or(host::LanguageOfLocale()), options.showsAll,
                      console.out);
    }
    return result.IsEmpty() ? exit_code::kFine : exit_code::kDifferent;
}

}  // namespace

void AddDiffCommand(CLI::App& app, const std::string& component, Task& task)
{
    const auto options = std::make_shared<DiffOptions>();
    CLI::App* const diff = app.add_subcommand("diff", "what changed from one file to another");
    diff->footer("Exit codes: 0 the same; 1 different; 2 wrong usage, or a file was not imported.");
    diff->add_option("BEFORE", options->before, "the model file before")->required()->type_name("");
    diff->add_option("AFTER", options->after, "the model file after")->required()->type_name("");
    diff->add_option("--format", options->format, "text or json")
        ->check(CLI::IsMember({"text", "json"}))
        ->type_name("NAME");
    diff->add_option("--lang", options->language, "en or fr, instead of the user's language")
        ->check(CLI::IsMember({"en", "fr"}))
        ->type_name("NAME");
    diff->add_option("--tolerance", options->tolerance,
                     "coordinates that far apart are the same, and other reals that differ by that "
                     "part of the larger one")
        ->type_name("NUMBER");
    diff->add_flag("--all", options->showsAll, "every change, not the first of each kind only");
    diff->callback([&task, &component, options] {
        // NaN is in no range, and in all that are checked with "less".
        if (!(options->tolerance >= 0) || std::isinf(options->tolerance)) {
            throw CLI::ValidationError("--tolerance", "not 0 or more");
        }
        options->component = component;
        task = [options](const Console& console) { return Diff(*options, console); };
    });
}

}  // namespace tamur::tool
