"""Makes everything that is run: the installed package, the programs, the pictures."""
import dataclasses
import os
import pathlib
import shutil
import subprocess
import sys

from .rows import PROGRAMS


@dataclasses.dataclass(frozen=True)
class Folders:
    """Where things are. All that is made lies in one folder of the repository's build folder."""
    root: pathlib.Path

    @property
    def sources(self) -> pathlib.Path: return self.root / "Benchmarks" / "Peers"
    @property
    def module(self) -> pathlib.Path: return self.root / "build" / "release"
    @property
    def made(self) -> pathlib.Path: return self.root / "build" / "peers"
    @property
    def package(self) -> pathlib.Path: return self.made / "package"
    @property
    def programs(self) -> pathlib.Path: return self.made / "programs"
    @property
    def assets(self) -> pathlib.Path: return self.made / "assets"
    @property
    def runtime(self) -> pathlib.Path: return self.made / "runtime"


def run(*command: str | pathlib.Path, cwd: pathlib.Path | None = None) -> None:
    """What a command says is shown only where it fails."""
    done = subprocess.run(command, cwd=cwd, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    if done.returncode != 0:
        sys.exit(f"{done.stdout}\nfailed: {' '.join(map(str, command))}")


def missing_packages(folders: Folders) -> list[str]:
    """Of Debian; none where there is no dpkg to ask."""
    listed = (folders.root / "Tools" / "packages-peers.txt").read_text(encoding="utf-8").splitlines()
    wanted = [line for line in listed if line and not line.startswith("#")]
    if not shutil.which("dpkg-query"):
        return []
    answer = subprocess.run(["dpkg-query", "-W", "-f", "${Package} ${db:Status-Status}\n", *wanted], capture_output=True, text=True)
    installed = {line.split()[0] for line in answer.stdout.splitlines() if line.endswith(" installed")}
    return [package for package in wanted if package not in installed]


def install_module(folders: Folders) -> None:
    if not (folders.module / "build.ninja").exists():
        run("cmake", "--preset", "release", cwd=folders.root)
    run("cmake", "--build", folders.module, "--target", "proupsells")
    shutil.rmtree(folders.package, ignore_errors=True)
    run("cmake", "--install", folders.module, "--prefix", folders.package)


def build_programs(folders: Folders) -> None:
    # A program that cannot be built any more must not be taken for one that is there.
    shutil.rmtree(folders.programs / "bin", ignore_errors=True)
    run("cmake", "-S", folders.sources, "-B", folders.programs, "-G", "Ninja", f"-DCMAKE_PREFIX_PATH={folders.package}")
    run("cmake", "--build", folders.programs)
    make_assets = folders.programs / "bin" / "MakeAssets"
    if make_assets.exists():
        run("env", "QT_QPA_PLATFORM=offscreen", f"XDG_RUNTIME_DIR={folders.runtime}", make_assets, folders.assets)


def build(folders: Folders) -> None:
    folders.runtime.mkdir(parents=True, exist_ok=True)
    folders.runtime.chmod(0o700)
    install_module(folders)
    build_programs(folders)


def commands(folders: Folders) -> dict[str, list[str]]:
    """How each program that is there is called. What is absent is missing."""
    found = {}
    for name, program in PROGRAMS.items():
        if program.command[0] == "node":
            script = folders.sources / program.command[1]
            if shutil.which("node") and shutil.which("chromium-headless-shell"):
                found[name] = ["node", str(script)]
        elif os.access(file := folders.programs / "bin" / program.command[0], os.X_OK):
            found[name] = [str(file)]
    return found
