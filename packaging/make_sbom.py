#!/usr/bin/env python3
"""Writes what a package contains as a bill of materials beside it: SPDX 3.0.1, as JSON.

usage: make_sbom.py PACKAGE [FOLDER]    FOLDER has what is in it; not needed for .deb, .whl and .zip

Each file is listed with its checksum, and the parts of others in our binaries with the versions
that are on this machine, where the package is made. Equal inputs give equal bytes: the time is that
of the release.
"""
import hashlib
import json
import re
import subprocess
import sys
import tempfile
import zipfile
from pathlib import Path

import release
import third_party

LICENCE = "MIT"
AUTHORS = "The TAMUR Reader developers"


def version_of(kind: str, name: str) -> str:
    if kind == "npm":
        lock = json.loads((third_party.ROOT / "viewer/package-lock.json").read_text("utf-8"))
        return lock["packages"][f"node_modules/{name}"]["version"]
    if kind == "source":
        return (third_party.ROOT / f"build/sources/{name}/.complete").read_text("utf-8").strip()
    return subprocess.run(["dpkg-query", "-W", "-f", "${Version}", name], check=True,
                          capture_output=True, text=True).stdout


def package_url(kind: str, name: str, version: str) -> str:
    if kind == "npm":
        return f"pkg:npm/{name}@{version}"
    suffix = "?arch=source" if kind == "source" else ""
    return f"pkg:deb/debian/{name}@{version.replace('+', '%2B').replace(':', '%3A')}{suffix}"


def unpack(package: Path, folder: str) -> None:
    if package.suffix == ".deb":
        subprocess.run(["dpkg-deb", "-x", package, folder], check=True)
    else:
        zipfile.ZipFile(package).extractall(folder)


def checksum(path: Path) -> list[dict]:
    return [{"type": "Hash", "algorithm": "sha256",
             "hashValue": hashlib.sha256(path.read_bytes()).hexdigest()}]


class Bill:
    def __init__(self, name: str) -> None:
        self.base = f"urn:tamur-reader:{name}#"
        self.parts = third_party.read_list(with_system_libraries=name.endswith(".deb"))
        self.elements: list[dict] = []
        self.licences: dict[str, str] = {}

    def identifier(self, key: str) -> str:
        return self.base + re.sub(r"[^\w./+-]", "-", key, flags=re.A)

    def add(self, kind: str, key: str, **members: object) -> str:
        identifier = self.identifier(key)
        self.elements.append({"type": kind, "spdxId": identifier, "creationInfo": "_:creation",
                              **members})
        return identifier

    def relate(self, source: str, kind: str, targets: list[str]) -> None:
        self.add("Relationship", f"{source.removeprefix(self.base)}/{kind}",
                 **{"from": source, "to": sorted(targets), "relationshipType": kind})

    def licence(self, of: str, expression: str) -> None:
        if expression not in self.licences:
            self.licences[expression] = self.add(
                "simplelicensing_LicenseExpression", f"licence/{expression}",
                simplelicensing_licenseExpression=expression)
        self.relate(of, "hasDeclaredLicense", [self.licences[expression]])


def origin(part: dict, binary: str) -> tuple[str, str]:
    """The kind and the name of the package that the part in a binary comes from."""
    system = "windows" if binary.endswith((".dll", ".exe")) else "linux"
    return next((kind, part["from"][kind]) for kind in (system, "source", "npm")
                if kind in part["from"])


def add_part(bill: Bill, part: dict, binary: str) -> str:
    kind, package = origin(part, binary)
    version = version_of(kind, package)
    identifier = bill.identifier(f"part/{part['name']}")
    if any(element["spdxId"] == identifier for element in bill.elements):
        return identifier
    bill.add("software_Package", f"part/{part['name']}", name=part["name"], summary=part["what"],
             software_packageVersion=version, software_homePage=part["home"],
             software_packageUrl=package_url(kind, package, version),
             software_copyrightText="\n".join(f"Copyright {line}" for line in part["copyright"]))
    bill.licence(identifier, part["licence"])
    return identifier


def add_file(bill: Bill, folder: Path, path: Path) -> str:
    name = path.relative_to(folder).as_posix()
    file = bill.add("software_File", f"file/{name}", name=name, verifiedUsing=checksum(path))
    binary = third_party.binary_name(path)
    parts = [add_part(bill, part, binary) for part in bill.parts if binary in part["in"]]
    if parts:
        bill.relate(file, "hasStaticLink", parts)
    return file


def creation(authors: str) -> dict:
    return {"type": "CreationInfo", "@id": "_:creation", "specVersion": "3.0.1",
            "created": f"{release.day()}T00:00:00Z", "createdBy": [authors]}


def document(packed: Path, folder: Path) -> dict:
    bill = Bill(packed.name)
    authors = bill.add("Organization", "authors", name=AUTHORS)
    package = bill.add("software_Package", "package", name=packed.name,
                       software_packageVersion=release.version(), verifiedUsing=checksum(packed),
                       software_copyrightText=f"Copyright 2026 {AUTHORS}", suppliedBy=authors)
    bill.licence(package, LICENCE)
    files = sorted(path for path in folder.rglob("*") if path.is_file() and not path.is_symlink())
    bill.relate(package, "contains", [add_file(bill, folder, path) for path in files])
    listed = [element["spdxId"] for element in bill.elements]
    sbom = bill.add("software_Sbom", "sbom", rootElement=[package], element=listed,
                    software_sbomType=["build"])
    bill.add("SpdxDocument", "document", name=packed.name, rootElement=[sbom],
             profileConformance=["core", "software", "simpleLicensing"])
    return {"@context": "https://spdx.org/rdf/3.0.1/spdx-context.jsonld",
            "@graph": [creation(authors), *bill.elements]}


def main() -> int:
    package, *folders = map(Path, sys.argv[1:])
    with tempfile.TemporaryDirectory() as unpacked:
        if not folders:
            unpack(package, unpacked)
        bill = document(package, *folders or [Path(unpacked)])
    Path(f"{package}.spdx.json").write_text(
        json.dumps(bill, indent=1, ensure_ascii=False) + "\n", "utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main())
