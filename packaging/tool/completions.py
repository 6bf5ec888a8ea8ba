"""Completions for shells, of the tool's own description."""
import help_text

HEAD = "# Made of what the tool says of itself.\n"


def words(options: list[help_text.Option]) -> str:
    return " ".join(name for option in options for name in option.names)


def bash_values(command: help_text.Command) -> str:
    return "".join(f"        {command.name}:{name}) values='{' '.join(option.choices)}' ;;\n"
                   for option in command.options if option.choices for name in option.names)


def bash(tool: help_text.Command) -> str:
    names = " ".join(command.name for command in tool.commands)
    cases = "".join(f"        {command.name}) options='{words(command.options)}' ;;\n"
                    for command in tool.commands)
    return HEAD + f"""\
_tamur() {{
    local word=${{COMP_WORDS[COMP_CWORD]}} before=${{COMP_WORDS[COMP_CWORD - 1]}}
    local command='' values='' options='' each
    for each in "${{COMP_WORDS[@]:1:COMP_CWORD - 1}}"; do
        case $each in {'|'.join(names.split())}) command=$each; break ;; esac
    done
    case $command:$before in
{''.join(map(bash_values, tool.commands))}    esac
    case $command in
        '') options='{words(tool.options)} {names}' ;;
{cases}    esac
    if [[ -n $values ]]; then
        COMPREPLY=($(compgen -W "$values" -- "$word"))
    elif [[ $word == -* || -z $command ]]; then
        COMPREPLY=($(compgen -W "$options" -- "$word"))
    else
        compopt -o filenames 2>/dev/null
        COMPREPLY=($(compgen -f -- "$word"))
    fi
}}
complete -F _tamur tamur
"""


def quoted(text: str) -> str:
    return text.replace("'", "'\\''")


def zsh_option(option: help_text.Option) -> str:
    description = option.description
    for special in "\\[]:":
        description = description.replace(special, "\\" + special)
    value = ""
    if option.value:
        choices = f"({' '.join(option.choices)})" if option.choices else " "
        value = f":{option.value}:" + ("_files" if option.takes_file else choices)
    names = option.names[0] if len(option.names) == 1 else "{" + ",".join(option.names) + "}"
    return f"        {names}'[{quoted(description)}]{value}' \\\n"


def zsh_arguments(options: list[help_text.Option], rest: str) -> str:
    return f"_arguments \\\n{''.join(map(zsh_option, options))}        {rest}\n"


def zsh(tool: help_text.Command) -> str:
    names = "".join(f"        '{command.name}:{quoted(command.description)}'\n"
                    for command in tool.commands)
    files = "'*:file:_files'"
    cases = "".join(f"        {command.name})\n"
                    f"        {zsh_arguments(command.options, files)}        ;;\n"
                    for command in tool.commands)
    return f"""\
#compdef tamur
{HEAD}
_tamur() {{
    local context state line
    local -a commands=(
{names}    )
    {zsh_arguments(tool.options, "'1:command:->command' '*::argument:->argument'")}
    case $state in
    command) _describe command commands ;;
    argument)
        case $line[1] in
{cases}        esac ;;
    esac
}}
_tamur "$@"
"""


def fish_option(option: help_text.Option, condition: str) -> str:
    flags = "".join(f" -l {name[2:]}" if name.startswith("--") else f" -s {name[1:]}"
                    for name in option.names)
    if option.choices:
        flags += f" -x -a '{' '.join(option.choices)}'"
    elif option.value:
        flags += " -r" if option.takes_file else " -x"
    return f"complete -c tamur -n '{condition}'{flags} -d '{fish_quoted(option.description)}'\n"


def fish_quoted(text: str) -> str:
    return text.replace("\\", "\\\\").replace("'", "\\'")


def fish(tool: help_text.Command) -> str:
    text = HEAD + "".join(fish_option(option, "__fish_use_subcommand") for option in tool.options)
    for command in tool.commands:
        text += (f"complete -c tamur -f -n __fish_use_subcommand -a {command.name} "
                 f"-d '{fish_quoted(command.description)}'\n")
        text += "".join(fish_option(option, f"__fish_seen_subcommand_from {command.name}")
                        for option in command.options)
    return text
