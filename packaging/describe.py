"""What a program says of itself, as `linewright --describe` gives it; of a program without that, out of
its --help."""
import json
import re
import subprocess
from dataclasses import dataclass, field


@dataclass(frozen=True)
class Option:
    names: list[str]
    value: str | None  # None: it takes none
    description: str
    isRequired: bool = False


@dataclass(frozen=True)
class Argument:
    name: str
    description: str
    isRequired: bool


@dataclass
class Command:
    name: str  # with those it stands below, as people write it
    description: str
    options: list[Option] = field(default_factory=list)
    arguments: list[Argument] = field(default_factory=list)
    commands: list["Command"] = field(default_factory=list)
    footer: str = ""

    def all(self) -> list["Command"]:
        """This one and those below it."""
        return [self, *(each for part in self.commands for each in part.all())]

    @property
    def word(self) -> str:
        return self.name.split()[-1]


@dataclass(frozen=True)
class Program:
    command: Command
    version: str
    types: list[str]


def _run(*words: str) -> str:
    return subprocess.run(words, check=True, capture_output=True, encoding="utf-8").stdout


def _command(row: dict, above: str = "") -> Command:
    name = f"{above}{row['name']}"
    options = [Option(**option) for option in row["options"]]
    return Command(
        name, row["description"], [option for option in options if option.names[0].startswith("-")],
        [Argument(option.names[0], option.description, option.isRequired) for option in options
         if not option.names[0].startswith("-")],
        [_command(part, f"{name} ") for part in row["commands"]], row["footer"])


def described(program: str) -> Program:
    row = json.loads(_run(program, "--describe"))
    return Program(_command(row), row["version"], row["types"])


def from_help(program: str) -> Program:
    """Of a program whose help is a sentence and a list of options."""
    text = _run(program, "--help")
    name, version = _run(program, "--version").split()
    sentence = re.search(r"^Usage: .*\n(.+)\n", text)[1]
    options = [Option(re.findall(r"-[-\w]+", names), value or None, " ".join(what.split()))
               for names, value, what in re.findall(
                   r"^  (-[-\w, ]*[-\w])(?: <(\w+)>)? {2,}(.+(?:\n {6,}.+)*)$", text, re.MULTILINE)]
    if not options or len(options) != text.count("\n  -"):
        raise ValueError(f"{program} --help is written in a new way:\n{text}")
    return Program(Command(name, sentence, options), version, [])
