"""A bare Debian of this machine's release in a folder, from the sources that this machine's apt knows."""
import os
import re
import shutil
import subprocess
from pathlib import Path

# What debootstrap and apt keep or write for themselves.
KEPT = re.compile(r"/(proc|sys|dev|tmp|run|test)(/|$)|/var/(lib/(dpkg|apt)|cache|log)(/|$)|/etc/ld\.so\.cache$")


class Impossible(Exception):
    """Why there can be no bare root here."""


def output_of(*words: object) -> str:
    return subprocess.run([str(word) for word in words], check=True, capture_output=True, text=True).stdout


def archives() -> list[tuple[str, str, str]]:
    """Address, suite and component of Debian's archives."""
    listed = output_of("apt-get", "indextargets", "--format", "$(REPO_URI) $(RELEASE) $(COMPONENT)",
                       "Created-By: Packages", "Origin: Debian")
    found = [tuple(line.split()) for line in listed.splitlines()]
    if not found:
        raise Impossible("apt knows no source of Debian's; apt-get update may help")
    return found


class BareRoot:
    def __init__(self, folder: Path, kept: Path):
        """Unpacks it into the folder; `kept` is the archive that a later run begins with."""
        if os.geteuid() != 0:
            raise Impossible("only root can make a bare root")
        self.folder = folder
        known = archives()
        release = re.search(r"^VERSION_CODENAME=(\w+)$", Path("/etc/os-release").read_text(), re.MULTILINE)
        address = [uri for uri, suite, _ in known if release and suite == release[1]]
        if not address:
            raise Impossible("apt knows no source of this machine's own release")
        shutil.rmtree(folder, ignore_errors=True)
        if kept.is_file():
            folder.mkdir(parents=True)
            output_of("tar", "xf", kept, "-C", folder)
        else:
            try:
                output_of("debootstrap", "--variant=minbase", release[1], folder, address[0])
            except subprocess.CalledProcessError as error:
                raise Impossible(f"debootstrap ends with\n{error.stdout[-1000:]}{error.stderr[-1000:]}") from error
            output_of("tar", "cf", kept, "-C", folder, "--exclude=./proc/*", ".")
        (folder / "etc/apt/sources.list").write_text(
            "".join(f"deb {uri} {suite} {component}\n" for uri, suite, component in known))
        proxies = [line for line in output_of("apt-config", "dump").splitlines() if "::proxy" in line.lower()]
        (folder / "etc/apt/apt.conf.d/99proxy").write_text("\n".join(proxies) + "\n")
        for name in ("/etc/resolv.conf", "/etc/hosts"):
            if Path(name).is_file():
                shutil.copyfile(name, folder / name[1:])
        self.run("apt-get", "update")

    def attempt(self, *words: str) -> subprocess.CompletedProcess:
        """Runs a program within, in the folder /test, as a user with no settings. The processes that programs
        look themselves up among are mounted for as long."""
        (self.folder / "test").mkdir(exist_ok=True)
        environment = {name: value for name, value in os.environ.items() if name.lower().endswith("_proxy")}
        environment |= {"PATH": "/usr/sbin:/usr/bin:/sbin:/bin", "HOME": "/test/home", "LC_ALL": "C.UTF-8",
                        "DEBIAN_FRONTEND": "noninteractive", "QT_QPA_PLATFORM": "offscreen"}
        inside = 'mount --rbind /proc "$0/proc" && exec chroot "$0" sh -c "cd /test && exec \\"\\$@\\"" sh "$@"'
        return subprocess.run(["unshare", "--mount", "sh", "-c", inside, self.folder, *words],
                              env=environment, capture_output=True, text=True, timeout=600)

    def run(self, *words: str) -> str:
        done = self.attempt(*words)
        if done.returncode != 0:
            raise AssertionError(f"{' '.join(words)}: {done.returncode}\n{done.stdout[-3000:]}{done.stderr[-3000:]}")
        return done.stdout

    def files(self) -> dict[str, str]:
        """What there is, and where links lead, but for what belongs to those who install."""
        found = {}
        for path in self.folder.rglob("*"):
            name = "/" + str(path.relative_to(self.folder))
            if not KEPT.match(name):
                found[name] = os.readlink(path) if path.is_symlink() else ""
        return found
