"""Pages of the site about the C++ helpers and the C interface: include/tamur, as Doxygen reads it.

Every class and every function with a name of its own must be explained by a comment; constructors
and operators may speak for themselves.
"""
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from collections.abc import Collection
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
DOXYFILE = ROOT / "site" / "Doxyfile"
CPP = ["component.h", "ranges.h", "records.h", "com_ptr.h", "utf8.h", "prog_ids.h"]
C = "tamur.h"
# Headers that are made from the contract, by idl/generate_....py. Of their functions, one for each
# record or table, the pages have those that are about all of them.
MADE = ["fields", "tables"]
IMPLIED = re.compile(r"operator|~")


class Failure(Exception):
    pass


unexplained: list[str] = []


@dataclass
class Member:
    kind: str
    name: str
    signature: str
    text: str
    line: int


def make_headers(folder: str) -> str:
    """As the build makes them; the folder that they are in."""
    made = Path(folder, "made")
    made.mkdir()
    for name in MADE:
        subprocess.run([sys.executable, "-B", ROOT / "idl" / f"generate_{name}.py",
                        ROOT / "idl" / "TAMURReader.idl", made / f"{name}.h"], check=True)
    return str(made)


def doxygen(output: str) -> dict[str, ElementTree.Element]:
    """Every file, class and namespace, by its identifier. A warning is an error."""
    settings = (DOXYFILE.read_text(encoding="utf-8") + f"\nOUTPUT_DIRECTORY = {output}\n"
                + f"INPUT += {make_headers(output)}\n")
    run = subprocess.run(["doxygen", "-"], input=settings, cwd=ROOT, text=True,
                         stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    if run.returncode != 0 or run.stdout.strip():
        raise Failure(f"doxygen: {run.stdout}")
    compounds = {}
    for path in Path(output, "xml").glob("*.xml"):
        for compound in ElementTree.parse(path).getroot().iter("compounddef"):
            compounds[compound.get("id")] = compound
    return compounds


# ---------------------------------------------------------------- comments as Markdown

def inline(element: ElementTree.Element) -> str:
    text = element.text or ""
    for child in element:
        inner = inline(child)
        if child.tag == "computeroutput":
            inner = f"`{inner}`"
        elif child.tag in ("itemizedlist", "verbatim", "programlisting"):
            inner = block(child)
        elif child.tag == "sp":
            inner = " "
        text += inner + (child.tail or "")
    return text


def block(element: ElementTree.Element) -> str:
    if element.tag == "itemizedlist":
        items = ("".join(inline(part) for part in item) for item in element)
        return "\n\n" + "\n".join("- " + " ".join(item.split()) for item in items) + "\n\n"
    code = element.text or ""
    if element.tag == "programlisting":
        code = "\n".join(inline(line) for line in element)
    return f"\n\n```cpp\n{code.strip(chr(10))}\n```\n\n"


def description(element: ElementTree.Element) -> str:
    parts = []
    for tag in ("briefdescription", "detaileddescription"):
        for para in element.iterfind(f"{tag}/para"):
            parts.append(inline(para).strip())
    text = "\n\n".join(part for part in parts if part)
    return as_markdown(re.sub(r"\n\n\s+", "\n\n", text))


def as_markdown(text: str) -> str:
    """Angles that are no HTML, and pages that comments name."""
    parts = re.split(r"(```.*?```|`[^`]*`)", text, flags=re.S)
    for i in range(0, len(parts), 2):
        parts[i] = re.sub(r"\bdocs/([\w-]+)\.md\b", r"[\1](../\1.md)",
                          parts[i].replace("<", "&lt;"))
    return "".join(parts)


def one_line(text: str) -> str:
    return " ".join(text.split()).replace("|", "\\|")


# ---------------------------------------------------------------- declarations

def template_of(element: ElementTree.Element) -> str:
    types = [inline(type_) for type_ in element.iterfind("templateparamlist/param/type")]
    return f"template <{', '.join(types)}> " if types else ""


def tidy(code: str) -> str:
    code = re.sub(r"\s+", " ", code).replace("< ", "<").replace(" >", ">")
    code = re.sub(r"(?<!operator)\s*([*&]+)\s*", r"\1 ", code)
    return re.sub(r" (?=[),>])|(?<=::\*) ", "", code).strip()


def members(compound: ElementTree.Element, of_file: str = "") -> list[Member]:
    found = []
    for element in compound.iter("memberdef"):
        place = element.find("location")
        if element.get("prot") != "public" or (of_file and not place.get("file").endswith(of_file)):
            continue
        kind, name = element.get("kind"), element.findtext("name")
        if kind in ("define", "friend", "enum"):
            continue
        found.append(Member(kind, name, signature(element, kind, name), description(element),
                            int(place.get("line"))))
    return sorted(found, key=lambda member: member.line)


def signature(element: ElementTree.Element, kind: str, name: str) -> str:
    type_element = element.find("type")
    type_ = "" if type_element is None else inline(type_element)
    if kind == "typedef" and type_.startswith("struct "):
        return f"typedef {type_} {name}"
    if kind == "typedef":
        return tidy(f"using {name} = {type_}")
    arguments = element.findtext("argsstring") or ""
    return tidy(f"{template_of(element)}{type_} {name}{arguments}")


def is_plain(member: Member, class_name: str) -> bool:
    """Copying, moving and giving back, as one expects: left out unless there is a word on it."""
    return not member.text and (
        "=delete" in member.signature.replace(" ", "") or member.name.startswith("~")
        or member.name == "operator="
        or (member.name == class_name and re.search(r"\((const )?" + class_name + r" ?&|&&",
                                                    member.signature) is not None))


def judge(member: Member, owner: str) -> None:
    implied = IMPLIED.match(member.name) or member.name == owner.rsplit("::", 1)[-1]
    if member.kind == "function" and not member.text and not implied:
        unexplained.append(f"{owner}: {member.signature}")


# ---------------------------------------------------------------- pages

def member_table(found: list[Member], owner: str, own_sections: Collection[str] = ()) -> str:
    class_name = owner.rsplit("::", 1)[-1]
    lines = ["| Member | What it does |" if "::" in owner else "| Name | What it is |", "|---|---|"]
    for member in found:
        if is_plain(member, class_name) or member.signature in own_sections:
            continue
        judge(member, owner)
        lines.append(f"| `{member.signature}` | {one_line(member.text)} |".replace("||", "\\|\\|"))
    return "\n".join(lines) + "\n" if len(lines) > 2 else ""


def class_section(compound: ElementTree.Element, level: str) -> str:
    name = compound.findtext("compoundname")
    text = description(compound)
    if not text and "Iterator" not in name:
        unexplained.append(name)
    head = f"{level} {name}\n\n"
    if template := template_of(compound):
        head += f"`{template.strip()} {compound.get('kind')} {name.rsplit('::', 1)[-1]}`\n\n"
    return head + (text + "\n\n" if text else "") + member_table(members(compound), name)


def enum_table(compound: ElementTree.Element) -> str:
    lines = ["| Answer | Value | |", "|---|---|---|"]
    for value in compound.iter("enumvalue"):
        initial = value.findtext("initializer").removeprefix("= ")
        lines.append(f"| `{value.findtext('name')}` | {initial} | {one_line(description(value))} |")
    return "\n".join(lines) + "\n"


class HelperPages:
    def __init__(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            self.compounds = doxygen(folder)
        self.files = {compound.findtext("compoundname"): compound
                      for compound in self.compounds.values() if compound.get("kind") == "file"}
        missing = {path.name for path in (ROOT / "include" / "tamur").glob("*.h")} - {*CPP, C}
        if missing:
            raise Failure(f"on no page of the reference: include/tamur/{missing}")

    def pages(self) -> dict[str, str]:
        made = {"reference/cpp.md": self.cpp_page(), "reference/c.md": self.c_page()}
        if unexplained:
            raise Failure("without a comment:\n  " + "\n  ".join(unexplained))
        return made

    def cpp_page(self) -> str:
        parts = ["# The C++ helpers\n\nHeaders in `include/tamur/` that make a host in C++ short: "
                 "they load the component, free what records hold, and give tables as ranges. They "
                 "need C++17 and nothing else. [A host in C++](../hosts/cpp.md) uses them; what "
                 "they hand over is on the pages of [the contract](contract.md) and its "
                 "[records](records.md).\n"]
        for name in CPP:
            parts += [f"## {name}\n", description(self.files[name]) + "\n", self._header(name)]
        for name in (f"{made}.h" for made in MADE):
            parts += [f"## {name}\n", description(self.files[name]) + "\n", self._made(name)]
        return "\n".join(parts)

    def _made(self, name: str) -> str:
        about_all = [one for one in self._free(name) if one.name.startswith("ForEach")]
        return member_table(about_all, "tamur") if about_all else ""

    def _free(self, name: str) -> list[Member]:
        """What a header has outside of classes, for hosts."""
        return [member for space in self.compounds.values()
                if space.get("kind") == "namespace" and space.findtext("compoundname") == "tamur"
                for member in members(space, of_file=f"/{name}")]

    def _header(self, name: str) -> str:
        file = self.files[name]
        parts = []
        for inner in file.iterfind("innerclass"):
            compound = self.compounds[inner.get("refid")]
            if "Iterator" not in compound.findtext("compoundname"):
                parts.append(class_section(compound, "###"))
        if free := self._free(name):
            parts += ["### Functions and types of " + name + "\n", member_table(free, "tamur")]
        return "\n".join(parts)

    def c_page(self) -> str:
        file = self.files[C]
        parts = ["# The C header\n\n`tamur/tamur.h`; [the C interface](../c-interface.md) tells "
                 "what it is for, and [columns](../columns.md) has the rows of every table.\n",
                 description(file) + "\n", "## Answers\n", enum_table(file)]
        structures = [self.compounds[inner.get("refid")] for inner in file.iterfind("innerclass")]
        names = [one.findtext("compoundname") for one in structures]
        below = [f"typedef struct {name} {name}" for name in names]
        parts += ["## Functions\n", member_table(members(file), C, below), "## Structures\n"]
        parts += [class_section(one, "###") for one in structures]
        return "\n".join(parts)
