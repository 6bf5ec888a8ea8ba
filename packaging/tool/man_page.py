"""The manual page, of the tool's own description."""
import help_text


def plain(text: str) -> str:
    text = text.replace("\\", "\\e").replace("-", "\\-")
    return "\n".join(f"\\&{line}" if line[:1] in ".'" else line for line in text.splitlines())


def entry(option: help_text.Option) -> str:
    value = f" \\fI{plain(option.values)}\\fR" if option.value else ""
    names = ", ".join(f"\\fB{plain(name)}\\fR" for name in option.names)
    return f".TP\n{names}{value}\n{plain(option.description)}\n"


def paragraphs(footer: str) -> str:
    """Indented lines as they are, others as running text."""
    result, verbatim = "", False
    for line in footer.splitlines():
        if verbatim != line.startswith("  "):
            result += ".fi\n.PP\n" if verbatim else ".PP\n.nf\n"
            verbatim = not verbatim
        result += f"{plain(line)}\n" if line.strip() else ".PP\n"
    return result + (".fi\n" if verbatim else "")


def section(command: help_text.Command) -> str:
    return (f".SS {plain(command.name)}\n.B {plain(command.usage)}\n.PP\n"
            f"{plain(command.description)}\n" + "".join(map(entry, command.options))
            + f".PP\n{paragraphs(command.footer)}")


def text(tool: help_text.Command, version: str, day: str) -> str:
    return (f'.\\" Made of what the tool says of itself.\n'
            f'.TH TAMUR 1 "{day}" "TAMUR Reader {version}" "User Commands"\n'
            f".SH NAME\ntamur \\- models of the TAMUR structural\\-analysis product\n"
            f".SH SYNOPSIS\n.B {plain(tool.usage)}\n"
            f".SH DESCRIPTION\n{plain(tool.description)}\n"
            f".SH OPTIONS\n{''.join(map(entry, tool.options))}"
            f".SH COMMANDS\n{''.join(map(section, tool.commands))}"
            f".SH NOTES\n{paragraphs(tool.footer)}")
