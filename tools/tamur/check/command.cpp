#include "command.h"

#include <CLI/CLI.hpp>

#include <cstdlib>
#include <algorithm>
#include <memory>
#include <stdexcept>

#include "../exit_code.h"
#include "../import.h"
#include "../input.h"
#include "../progress.h"
#include "host/check.h"
#include "host/findings/plain_text.h"
#include "report.h"

namespace tamur::tool {
namespace {

// Enough of one kind to see the pattern.
constexpr std::size_t kShownOfEach = 5;
constexpr std::size_t kLongestError = 1000;

struct CheckOptions {
    std::vector<std::string> files;
    std::string format = "text";
    std::string colour = "auto";
    std::string language;
    host::CodeFilter filter;
    bool showsAll = false;
    bool countsNotes = false;
    bool exitsZero = false;
    bool showsBalance = false;
    bool showsSums = false;
};

Format FormatOf(const std::string& name)
{
    return name == "json" ? Format::kJson : name == "sarif" ? Format::kSarif : Format::kText;
}

bool HasColours(const std::string& colour, bool isTerminal)
{
    if (colour != "auto") return colour == "always";
    const char* const unwanted = std::getenv("NO_COLOR");
    return isTerminal && (unwanted == nullptr || *unwanted == '\0');
}

Style StyleOf(const CheckOptions& options, const Console& console)
{
    const auto language = host::ParseLanguage(options.language);
    return {.language = language ? *language : host::LanguageOfLocale(),
            .hasColours = HasColours(options.colour, console.isOutTerminal)};
}

int ExitCodeOf(const CheckOptions& options, const host::Findings& findings, bool wasImported)
{
    if (!wasImported) return exit_code::kTrouble;
    std::size_t counted =
        findings.CountOf(host::Severity::kError) + findings.CountOf(host::Severity::kWarning);
    if (options.countsNotes) counted += findings.CountOf(host::Severity::kNote);
    return counted != 0 && !options.exitsZero ? exit_code::kFound : exit_code::kFine;
}

int CheckOne(const CheckOptions& options, const Input& input, const Console& console,
             Report& report)
{
    host::Findings findings(options.showsAll ? host::Findings::kAll : kShownOfEach, options.filter);
    const host::Checked checked = [&] {
        const Progress progress(console.errors, console.isErrorsTerminal,
                                "tamur: checking " + input.Name());
        return host::CheckFile(input.Path(), findings);
    }();
    // Why nothing was checked is said whatever was asked for.
    const auto& refusal = checked.imported.refusal;
    if (refusal && findings.CountOf(refusal->code) == 0) throw ImportRefused(input, *refusal);
    report.Add({.file = input.Name(),
                .findings = findings,
                .checked = checked,
                .showsBalance = options.showsBalance,
                .showsSums = options.showsSums});
    return ExitCodeOf(options, findings, !refusal);
}

// Trouble with one file is no reason to lose what is said of the others.
int TryToCheck(const CheckOptions& options, const std::string& file, const Console& console,
               Report& report)
{
    try {
        return CheckOne(options, Input(file, console.in), console, report);
    } catch (const std::ios_base::failure&) {
        throw;  // the output
    } catch (const std::exception& error) {
        console.errors << "tamur: " << host::PlainText(error.what(), kLongestError) << '\n';
        return exit_code::kTrouble;
    }
}

int CheckAll(const CheckOptions& options, const Console& console)
{
    const auto report =
        MakeReport(FormatOf(options.format), StyleOf(options, console), console.out);
    int worst = exit_code::kFine;
    for (const std::string& file : options.files) {
        worst = std::max(worst, TryToCheck(options, file, console, *report));
    }
    report->Finish();
    return worst;
}

// One of those words; what is allowed is said when it is none.
CLI::Validator OneOf(std::vector<std::string> words)
{
    const auto check = [words = std::move(words)](std::string& word) {
        if (std::find(words.begin(), words.end(), word) != words.end()) return std::string();
        std::string known;
        for (const std::string& each : words) known += (known.empty() ? "" : ", ") + each;
        return word + " is none of: " + known;
    };
    return CLI::Validator(check, "");
}

// A code, or the beginning of one, that names at least one; "TMR" and capitals may be left out.
std::string NamesCodes(std::string& id)
{
    if (!id.empty() && id[0] >= '0' && id[0] <= '9') id.insert(0, "TMR");
    std::transform(id.begin(), id.end(), id.begin(), [](char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    });
    for (const host::CodeInfo& info : host::AllCodes()) {
        if (IdOf(info.code).starts_with(id)) return std::string();
    }
    return "no code begins with " + id;
}

}  // namespace

void AddCheckCommand(CLI::App& app, Task& task)
{
    const auto options = std::make_shared<CheckOptions>();
    CLI::App* const command =
        app.add_subcommand("check", "what is wrong with a file and the model in it, line by line");
    command->footer(
        "Exit codes: 0 no error and no warning; 1 some; 2 a file that cannot be checked, wrong "
        "usage,\nor the output cannot be written.");
    command->add_option("FILE", options->files, "the model files; - is standard input")
        ->required()
        ->type_name("");
    command->add_option("--format", options->format, "text (default), json or sarif")
        ->check(OneOf({"text", "json", "sarif"}))
        ->type_name("FORMAT");
    command
        ->add_option("--select", options->filter.select,
                     "only these codes: TMR101, or TMR1 for all that begin so")
        ->delimiter(',')
        ->transform(CLI::Validator(NamesCodes, ""))
        ->allow_extra_args(false)
        ->type_name("CODES");
    command->add_option("--ignore", options->filter.ignore, "all but these codes")
        ->delimiter(',')
        ->transform(CLI::Validator(NamesCodes, ""))
        ->allow_extra_args(false)
        ->type_name("CODES");
    command->add_option("--lang", options->language, "en or fr (default: the user's locale)")
        ->check(OneOf({"en", "fr"}))
        ->type_name("LANGUAGE");
    command
        ->add_option("--color", options->colour, "auto (default: on a terminal), always or never")
        ->check(OneOf({"auto", "always", "never"}))
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
