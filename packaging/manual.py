"""A program's manual page."""
import re

from describe import Command, Option, Program


def _plain(text: str) -> str:
    """Text as it stands: nothing in it is an order to the typesetter, and hyphens can be copied."""
    text = text.replace("\\", "\\e").replace("-", "\\-").replace("'", "\\(aq").replace("`", "\\(ga")
    return re.sub(r"^(?=[.'])", "\\&", text, flags=re.MULTILINE)


def _option(option: Option) -> str:
    names = ", ".join(f"\\fB{_plain(name)}\\fR" for name in option.names)
    value = f" \\fI{_plain(option.value)}\\fR" if option.value else ""
    needed = " (required)" if option.isRequired else ""
    return f".TP\n{names}{value}\n{_plain(option.description)}{needed}\n"


def _synopsis(command: Command) -> str:
    words = [f"\\fB{_plain(command.name)}\\fR"]
    words += [f"\\fI{_plain(each.name)}\\fR" if each.isRequired else f"[\\fI{_plain(each.name)}\\fR]"
              for each in command.arguments]
    if command.commands:
        words.append("\\fICOMMAND\\fR")
    if len(command.options) > 1:  # more than --help
        words.append("[\\fIOPTION\\fR]...")
    return " ".join(words)


def _footer(command: Command) -> str:
    return f".PP\n.nf\n{_plain(command.footer)}\n.fi\n" if command.footer else ""


def _part(command: Command) -> str:
    rows = "".join(f".TP\n\\fI{_plain(each.name)}\\fR\n{_plain(each.description)}\n"
                   for each in command.arguments)
    rows += "".join(_option(option) for option in command.options if "--help" not in option.names)
    return (f".SS {_plain(command.name)}\n{_synopsis(command)}\n.PP\n{_plain(command.description)}.\n"
            f"{rows}{_footer(command)}")


def manual(program: Program, date: str) -> str:
    command = program.command
    sentence = command.description.rstrip(".")
    parts = "".join(_part(each) for each in command.all()[1:])
    return (f'.TH {command.name.upper()} 1 {date} "Linewright {program.version}" "User commands"\n'
            f".SH NAME\n{_plain(command.name)} \\- {_plain(sentence[0].lower() + sentence[1:])}\n"
            f".SH SYNOPSIS\n{_synopsis(command)}\n"
            f".SH DESCRIPTION\n{_plain(sentence)}.\n"
            ".SH OPTIONS\n" + "".join(_option(option) for option in command.options) + _footer(command)
            + (".SH COMMANDS\nThe options above may also stand behind a command.\n" + parts if parts else ""))
