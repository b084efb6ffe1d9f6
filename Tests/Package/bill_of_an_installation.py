#!/usr/bin/env python3
"""What is installed is listed in its bill of materials, whole or by components, and the same bill comes out twice.

usage: bill_of_an_installation.py CMAKE BUILD"""
import json
import os
import pathlib
import subprocess
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "Tools"))
from check_bill import complaints

COMPONENTS = ["Runtime", "Development", "Headers", "Program"]


def install(prefix: pathlib.Path, *options: str) -> None:
    subprocess.run([sys.argv[1], "--install", sys.argv[2], "--prefix", prefix, *options], check=True, capture_output=True)


def bill_in(prefix: pathlib.Path, name: str = "proupsells") -> pathlib.Path:
    return prefix / "share/doc/proupsells" / f"{name}.spdx.json"


def main() -> int:
    found = []
    with tempfile.TemporaryDirectory() as folder:
        whole, again = pathlib.Path(folder, "whole"), pathlib.Path(folder, "again")
        install(whole)
        bill = json.loads(bill_in(whole).read_text(encoding="utf-8"))
        found += complaints(bill, whole)
        names = [package["name"] for package in bill["packages"]]
        found += [f"{name}: nothing is said of it" for name in ("harfbuzz", "libpng", "icu", "ffmpeg-libavcodec", "qt", "Inter", "Sora") if name not in names]
        faces = [entry for entry in bill["files"] if entry["fileName"].endswith(".otf")]
        if not faces or any(entry["licenseConcluded"] != "OFL-1.1" for entry in faces):
            found.append("the faces are not listed under their own licence")

        install(again)
        if bill_in(again).read_bytes() != bill_in(whole).read_bytes():
            found.append("a second installation has another bill")
        os.environ["SOURCE_DATE_EPOCH"] = "1700000000"
        install(again)
        if json.loads(bill_in(again).read_text(encoding="utf-8"))["creationInfo"]["created"] != "2023-11-14T22:13:20Z":
            found.append("SOURCE_DATE_EPOCH is not the time of the bill")

        for component in COMPONENTS:
            prefix = pathlib.Path(folder, component)
            install(prefix, "--component", component)
            part = json.loads(bill_in(prefix, f"proupsells-{component.lower()}").read_text(encoding="utf-8"))
            found += [f"{component}: {complaint}" for complaint in complaints(part, prefix)]
    print("\n".join(found), end="\n" if found else "")
    return bool(found)


if __name__ == "__main__":
    sys.exit(main())
