#include "options.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdlib>

namespace tamur::tool {
namespace {

CLI::Validator OneOf(const std::vector<std::string>& words)
{
    const auto check = [words](std::string& word) {
        if (std::find(words.begin(), words.end(), word) != words.end()) return std::string();
        std::string known;
        for (const std::string& each : words) known += (known.empty() ? "" : ", ") + each;
        return word + " is none of: " + known;
    };
    return CLI::Validator(check, "");
}

std::string NamesAFile(std::string& output)
{
    return output == "-" ? "it is not written to standard output: name a file" : std::string();
}

}  // namespace

void AddFile(CLI::App& command, std::string& file)
{
    command.add_option("FILE", file, "the model file; - is standard input")
        ->required()
        ->type_name("");
}

void AddFiles(CLI::App& command, std::vector<std::string>& files)
{
    command.add_option("FILE", files, "the model files; - is standard input")
        ->required()
        ->type_name("");
}

void AddOutput(CLI::App& command, std::string& output, const char* description)
{
    command.add_option("-o,--output", output, description)
        ->check(CLI::Validator(NamesAFile, ""))
        ->type_name("OUT");
}

void AddChoice(CLI::App& command, const char* name, std::string& choice,
               const std::vector<std::string>& words, const char* description)
{
    command.add_option(name, choice, description)->check(OneOf(words))->type_name("WORD");
}

void AddLanguage(CLI::App& command, std::string& language)
{
    AddChoice(command, "--lang", language, {"en", "fr"}, "en or fr (default: the user's locale)");
}

host::Language LanguageOf(const std::string& option)
{
    const auto language = host::ParseLanguage(option);
    return language ? *language : host::LanguageOfLocale();
}

void AddColour(CLI::App& command, std::string& colour)
{
    colour = "auto";
    AddChoice(command, "--color", colour, {"auto", "always", "never"},
              "auto (default: on a terminal), always or never");
}

bool HasColours(const std::string& colour, const Console& console)
{
    if (colour != "auto") return colour == "always";
    const char* const unwanted = std::getenv("NO_COLOR");
    return console.isOutTerminal && (unwanted == nullptr || *unwanted == '\0');
}

void AddQuiet(CLI::App& command, bool& isQuiet)
{
    command.add_flag("-q,--quiet", isQuiet,
                     "say only what goes wrong; the exit code tells the rest");
}

}  // namespace tamur::tool
