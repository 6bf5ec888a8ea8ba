#include "command.h"

#include <CLI/CLI.hpp>

#include <cstdlib>
#include <map>
#include <memory>
#include <stdexcept>

#include "../exit_code.h"
#include "../input.h"
#include "host/check.h"
#include "progress.h"
#include "report.h"

namespace tamur::tool {
namespace {

// Enough of one kind to see the pattern.
constexpr std::size_t kShownOfEach = 5;

enum class Colour { kAuto, kAlways, kNever };

struct Options {
    std::vector<std::string> files;
    Format format = Format::kText;
    Colour colour = Colour::kAuto;
    std::string language;
    host::CodeFilter filter;
    bool showsAll = false;
    bool countsNotes = false;
    bool exitsZero = false;
    bool showsBalance = false;
    bool showsSums = false;
};

bool HasColours(Colour colour, bool isTerminal)
{
    if (colour != Colour::kAuto) return colour == Colour::kAlways;
    const char* const unwanted = std::getenv("NO_COLOR");
    return isTerminal && (unwanted == nullptr || *unwanted == '\0');
}

Style StyleOf(const Options& options, const Console& console)
{
    const auto language = host::ParseLanguage(options.language);
    return {.language = language ? *language : host::LanguageOfLocale(),
            .hasColours = HasColours(options.colour, console.isOutTerminal)};
}

int ExitCodeOf(const Options& options, const host::Findings& findings, bool wasImported)
{
    if (!wasImported) return exit_code::kTrouble;
    std::size_t counted =
        findings.CountOf(host::Severity::kError) + findings.CountOf(host::Severity::kWarning);
    if (options.countsNotes) counted += findings.CountOf(host::Severity::kNote);
    return counted != 0 && !options.exitsZero ? exit_code::kFound : exit_code::kFine;
}

int CheckOne(const Options& options, const std::string& file, const Console& console,
             Report& report)
{
    const Input input(file, console.in);
    host::Findings findings(options.showsAll ? host::Findings::kAll : kShownOfEach, options.filter);
    const host::Checked checked = [&] {
        const Progress progress(console.errors, console.isErrorsTerminal,
                                "tamur: checking " + input.Name());
        return host::CheckFile(input.Path(), findings);
    }();
    report.Add({.file = input.Name(),
                .findings = findings,
                .checked = checked,
                .showsBalance = options.showsBalance,
                .showsSums = options.showsSums});
    return ExitCodeOf(options, findings, !checked.imported.refusal);
}

int CheckAll(const Options& options, const Console& console)
{
    const auto report = MakeReport(options.format, StyleOf(options, console), console.out);
    int worst = exit_code::kFine;
    for (const std::string& file : options.files) {
        worst = std::max(worst, CheckOne(options, file, console, *report));
    }
    report->Finish();
    return worst;
}

// A code, or the beginning of one, that names at least one.
std::string NamesCodes(const std::string& id)
{
    for (const host::CodeInfo& info : host::AllCodes()) {
        if (IdOf(info.code).starts_with(id)) return std::string();
    }
    return "no code begins with " + id;
}

}  // namespace

void AddCheckCommand(CLI::App& app, Task& task)
{
    const std::map<std::string, Format> formats = {
        {"text", Format::kText}, {"json", Format::kJson}, {"sarif", Format::kSarif}};
    const std::map<std::string, Colour> colours = {
        {"auto", Colour::kAuto}, {"always", Colour::kAlways}, {"never", Colour::kNever}};

    const auto options = std::make_shared<Options>();
    CLI::App* const command =
        app.add_subcommand("check", "what is wrong with a file and the model in it, line by line");
    command->footer(
        "Exit codes: 0 no error and no warning; 1 some; 2 a file that cannot be checked, wrong "
        "usage,\nor the output cannot be written.");
    command->add_option("FILE", options->files, "the model files; - is standard input")
        ->required()
        ->type_name("");
    command->add_option("--format", options->format, "text (default), json or sarif")
        ->transform(CLI::CheckedTransformer(formats).description(""))
        ->type_name("FORMAT");
    command
        ->add_option("--select", options->filter.select,
                     "only these codes: TMR101, or TMR1 for all that begin so")
        ->delimiter(',')
        ->check(NamesCodes)
        ->allow_extra_args(false)
        ->type_name("CODES");
    command->add_option("--ignore", options->filter.ignore, "all but these codes")
        ->delimiter(',')
        ->check(NamesCodes)
        ->allow_extra_args(false)
        ->type_name("CODES");
    command->add_option("--lang", options->language, "en or fr (default: the user's locale)")
        ->check(CLI::IsMember({"en", "fr"}).description(""))
        ->type_name("LANGUAGE");
    command
        ->add_option("--color", options->colour, "auto (default: on a terminal), always or never")
        ->transform(CLI::CheckedTransformer(colours).description(""))
        ->type_name("WHEN");
    command->add_flag("--all", options->showsAll, "every finding, not the first of each code");
    command->add_flag("--balance", options->showsBalance, "what became of every line");
    command->add_flag("--sums", options->showsSums, "sums of loads, masses, lengths and areas");
    command->add_flag("--strict", options->countsNotes, "notes make exit code 1 too");
    command->add_flag("--exit-zero", options->exitsZero, "exit code 0 whatever is found");
    command->callback([&task, options] {
        task = [options](const Console& console) { return CheckAll(*options, console); };
    });
}

}  // namespace tamur::tool
