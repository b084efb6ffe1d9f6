"""What the figures were taken on. Neither the machine's name nor a path of it is told."""
import json
import os
import pathlib
import platform
import re
import subprocess


def processor(cpuinfo: str) -> str:
    found = re.search(r"^model name\s*:\s*(.+)$", cpuinfo, re.MULTILINE)
    return " ".join(found.group(1).split()) if found else platform.machine()


def distribution(os_release: str) -> str:
    found = re.search(r'^PRETTY_NAME="?([^"\n]+)', os_release, re.MULTILINE)
    return found.group(1) if found else platform.system()


def describe() -> dict[str, str | int]:
    return {
        "processor": processor(pathlib.Path("/proc/cpuinfo").read_text(encoding="utf-8")),
        "cores": os.cpu_count() or 1,
        "kernel": platform.release(),
        "distribution": distribution(pathlib.Path("/etc/os-release").read_text(encoding="utf-8")),
    }


def versions(programs: pathlib.Path) -> dict[str, str]:
    """What the build has written down about itself, and what the browser says."""
    found = json.loads((programs / "versions.json").read_text(encoding="utf-8"))
    for name, command in {"browser": ["chromium-headless-shell", "--version"], "node": ["node", "--version"]}.items():
        try:
            answer = subprocess.run(command, capture_output=True, text=True, timeout=60, check=True).stdout
            found[name] = re.search(r"\d[\d.]*", answer).group(0)
        except (OSError, subprocess.SubprocessError, AttributeError):
            found[name] = ""
    return {name: version for name, version in found.items() if version}
