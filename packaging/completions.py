"""A program's completions for bash, zsh and fish."""
import shlex

from describe import Command, Option, Program

FILES = {"FILE", "F", "IN", "OUT"}
FOLDERS = {"DIR"}


def _choices(program: Program, value: str) -> list[str]:
    """The words that a value can be: those of a list, as "pdf, svg", and the types."""
    if value == "TYPE":
        return program.types
    return value.split(", ") if ", " in value else []


def _offered(program: Program, command: Command) -> list[Option]:
    """The command's options, and those of the program, which may stand behind it."""
    whole = program.command
    if command is whole:
        return whole.options
    return command.options + [option for option in whole.options
                              if not {"--help", "--version"} & set(option.names)]


def _words(words: list[str]) -> str:
    return shlex.quote(" ".join(words))


def bash(program: Program) -> str:
    whole = program.command
    function = "_" + whole.name.replace("-", "_")
    paths = "".join(f"            {shlex.quote(each.name)}) path=$path' '$word ;;\n" for each in whole.all()[1:])
    values, words = "", ""
    for command in whole.all():
        options = _offered(program, command)
        for option in options:
            if option.value is None:
                continue
            pattern = " | ".join(shlex.quote(f"{command.name} {name}") for name in option.names)
            if option.value in FILES:
                offer = "compgen -f"
            elif option.value in FOLDERS:
                offer = "compgen -d"
            else:
                offer = f"compgen -W {_words(_choices(program, option.value))}"
            values += f"        {pattern}) offer '{offer}'; return ;;\n".replace(f"'{offer}'", offer)
        names = [part.word for part in command.commands]
        files = ""
        for argument in command.arguments:
            names += _choices(program, argument.name)
            files = " -f" if argument.name in FILES else files
        flags = [name for option in options for name in option.names]
        words += (f"        {shlex.quote(command.name)})\n"
                  f"            if [[ $current == -* ]]; then offer compgen -W {_words(flags)}\n"
                  f"            else offer compgen{files} -W {_words(names)}; fi ;;\n")
    return f"""# Completions of {whole.name} for bash.
{function}() {{
    local current=${{COMP_WORDS[COMP_CWORD]}} previous=${{COMP_WORDS[COMP_CWORD - 1]}} path={whole.name} word
    offer() {{ mapfile -t COMPREPLY < <("$@" -- "$current"); }}
    for word in "${{COMP_WORDS[@]:1:COMP_CWORD - 1}}"; do
        case "$path $word" in
{paths}            *) ;;
        esac
    done
    case "$path $previous" in
{values}    esac
    case $path in
{words}    esac
}}
complete -o filenames -o bashdefault -o default -F {function} {whole.name}
"""


def _zsh_text(text: str) -> str:
    for special in "\\[]:":
        text = text.replace(special, "\\" + special)
    return text


def _zsh_action(program: Program, value: str) -> str:
    if value in FILES:
        return "_files"
    if value in FOLDERS:
        return "_files -/"
    choices = _choices(program, value)
    return f"({' '.join(choices)})" if choices else " "


def zsh(program: Program) -> str:
    whole = program.command
    functions = ""
    for command in whole.all():
        rows = []
        for option in _offered(program, command):
            value = ""
            if option.value is not None:
                value = f":{_zsh_text(option.value)}:{_zsh_action(program, option.value)}"
            rows += [f"*{name}[{_zsh_text(option.description)}]{value}" for name in option.names]
        rows += [f"{place}:{_zsh_text(each.name)}:{_zsh_action(program, each.name)}"
                 for place, each in enumerate(command.arguments, 1)]
        follow = ""
        if command.commands:
            rows += ["1: :->command", "*:: :->rest"]
            listed = " ".join(shlex.quote(f"{part.word}:{part.description}") for part in command.commands)
            cases = "".join(f"            {part.word}) _{part.name.replace(' ', '_')} ;;\n"
                            for part in command.commands)
            follow = (f"    case $state in\n        command)\n            local -a commands=({listed})\n"
                      f"            _describe command commands ;;\n"
                      f"        rest) case $words[1] in\n{cases}        esac ;;\n    esac\n")
        asked = " \\\n        ".join(shlex.quote(row) for row in rows)
        states = "    local curcontext=$curcontext state line\n" if command.commands else ""
        functions += (f"_{command.name.replace(' ', '_')}() {{\n{states}"
                      f"    _arguments {'-C ' if command.commands else ''}\\\n        {asked}\n{follow}}}\n")
    return f'#compdef {whole.name}\n{functions}_{whole.name} "$@"\n'


def fish(program: Program) -> str:
    whole = program.command
    lines = []

    def add(condition: str, *words: str) -> None:
        lines.append(" ".join(["complete -c", whole.name, *(["-n", shlex.quote(condition)] if condition else []),
                               *words]))

    for command in whole.all():
        below = command.name.split()[1:]
        condition = "; and ".join(f"__fish_seen_subcommand_from {word}" for word in below)
        others = " ".join(part.word for part in command.commands)
        here = condition
        if others:
            here = f"{condition + '; and ' if condition else ''}not __fish_seen_subcommand_from {others}"
        for part in command.commands:
            add(here, "-f", "-a", part.word, "-d", shlex.quote(part.description))
        for argument in command.arguments:
            if choices := _choices(program, argument.name):
                add(here, "-a", _words(choices), "-d", shlex.quote(argument.name))
        for option in command.options:
            words = []
            for name in option.names:
                words += ["-l", name[2:]] if name.startswith("--") else ["-s", name[1:]]
            if option.value is not None:
                choices = _choices(program, option.value)
                needed = "-r" if option.value in FILES | FOLDERS else "-x"
                words += [needed, *(["-a", _words(choices)] if choices else [])]
            add(condition, *words, "-d", shlex.quote(option.description))
    return f"# Completions of {whole.name} for fish.\n" + "\n".join(lines) + "\n"
