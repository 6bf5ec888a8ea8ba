#!/usr/bin/env python3
"""What check_code and check_links must refuse, and that the reference leaves nothing out."""
import re
import sys
import unittest
from unittest.mock import patch

import pages
from checkers import CheckError, Page, run
from pages import ROOT, PageError

sys.path.insert(0, str(ROOT / "site"))
from contract_pages import IDL, ContractPages  # noqa: E402

FENCE = "```"


def trouble_with(text: str) -> str:
    """What is wrong with a page of this text; empty when nothing is."""
    with patch.object(pages, "text_of", lambda _: text):
        try:
            with Page("docs/check.md") as place:
                for block in pages.blocks_of("docs/check.md"):
                    place.check(block)
        except (CheckError, PageError) as error:
            return str(error)
    return ""


def block(language: str, code: str, mark: str = "") -> str:
    comment = f"<!-- code: {mark} -->\n" if mark else ""
    return f"# TMR101 Unknown header\n\n{comment}{FENCE}{language}\n{code}\n{FENCE}\n"


WRONG = {
    "an indented block": "Text.\n\n    tamur info\n",
    "this block has no language": block("", "x"),
    "nothing checks ruby": block("ruby", "puts 1"),
    "has no end": f"{FENCE}cpp\nint x;\n",
    "begins with none of": block("text", "x", "ignored"),
    "not directly before": "<!-- code: not run: x -->\n\nText.\n\n" + block("json", "1"),
    "does not name a type": block("cpp", "strange x;"),
    "./program: ": block("cpp", "int main() { return 2; }"),
    "exit code": block("console", "$ tamur inf"),
    "g++": block("cpp", "int main() { return x; }"),
    "error CS": block("csharp", "class A { int x = \"\"; }"),
    "expected \"3\", found \"2\"": block("console", "$ echo 2\n3"),
    "the output goes on": block("console", "$ printf '1\\n2\\n'\n1"),
    "no option --colour": block("usage", "tamur check FILE [--colour WHEN]"),
    "no ./dev brew": block("usage", "./dev brew"),
    "no option --everything": block("bat", "tamur.exe check --everything", "not run: Windows"),
    "no none.exe in": block("bat", "none.exe x"),
    "x86_64-w64-mingw32-gcc": block("bat", "gcc examples\\c_host.c -o c_host.exe"),
    "Expecting": block("json", "{"),
    "no part of what": block("json", '{"tool": {"name": "other"}}',
                             "output of tamur check --format json hall.txt"),
    "mismatched tag": block("xml", "<a><b></a>"),
    "no fixture of TMR101": block("model", "#Nonsense"),
    "the import of these lines": block("model", "1 7 0 1 1 1.5 2.5", "in Elements"),
    "text that is no output": block("text", "x"),
    "does not name this page": block("text", "x", "tested by tests/tool/diff_test.cpp"),
    "no block uses the file": block("cpp", "int x;", "file host.cpp"),
    "there is no examples/none.c": block("c", '--8<-- "examples/none.c"'),
}
RIGHT = [
    block("console", "$ printf '1\\n2\\n3\\n'\n1\n...\n3"),
    block("console", "$ printf '1\\n2\\n3\\n'\n2", "some lines"),
    block("cpp", "int main() {}", "file host.cpp") + block("console", "$ g++ host.cpp && ./a.out"),
    block("model", "1 7 0 1 1  1.5 2.5 0  A12  0 0 0  3", "in Elements"),
    block("json", '{"tool": {"name": "..."}}', "output of tamur check --format json hall.txt"),
]


class Blocks(unittest.TestCase):
    def test_refuses_what_is_wrong(self):
        for message, text in WRONG.items():
            with self.subTest(message):
                self.assertIn(message, trouble_with(text))

    def test_takes_what_is_right(self):
        for text in RIGHT:
            with self.subTest(text):
                self.assertEqual(trouble_with(text), "")


class HostOfTheReadme(unittest.TestCase):
    def test_says_what_goes_wrong(self):
        """Where there is no model; that it does what is printed is asked by check_code."""
        with Page("README.md") as place:
            host, = (one for one in pages.blocks_of("README.md") if "file" in one.marks)
            compiling, = (one for one in pages.blocks_of("README.md") if "host.cpp" in one.code)
            place.check(host)
            place.check(compiling)
            (place.folder / "samples").unlink()
            answer = run(["./host"], place.folder)
            self.assertEqual(answer.returncode, 1)
            self.assertTrue(answer.stdout.endswith("\nhost: Import failed (0x80004005)\n"),
                            answer.stdout)


class Anchors(unittest.TestCase):
    def test_are_those_of_code_hosts(self):
        text = "# `csv` and `xlsx`\n\n## A b\n\n## A b\n\n## Kinds 5, 6: [x](y.md)\n"
        with patch.object(pages, "text_of", lambda _: text):
            self.assertEqual(pages.anchors_of("README.md"),
                             {"csv-and-xlsx", "a-b", "a-b-1", "kinds-5-6-x"})


class Reference(unittest.TestCase):
    def test_has_all_that_the_contract_declares(self):
        made = ContractPages()
        text = "".join(made.pages().values())
        for record in made.contract.records:
            for field in record.fields:
                self.assertIn(f"| `{field.name}` |", text)
        for interface in made.contract.interfaces:
            self.assertIn(f"### {interface.name}\n", text)
            for method in interface.methods:
                self.assertIn(f"| `{method.name}` |", text)
        for one in (*made.contract.enumerations, *made.contract.records):
            self.assertIn(f"### {one.name}\n", text)

    def test_has_every_comment(self):
        """Of those after a field or value; the reference splits "columns 13 to 18"."""
        text = "".join(ContractPages().pages().values())
        for comment in re.findall(r"[;,{] +// (.*)", IDL.read_text(encoding="utf-8")):
            if not re.fullmatch(r"(columns|tokens) \d+ to \d+", comment):
                said = comment.rstrip(",").replace("|", "\\|")
                self.assertTrue(said in text or said.split(": ", 1)[-1] in text, comment)

    def test_gives_each_field_of_a_run_its_column(self):
        text = ContractPages().pages()["reference/records.md"]
        load = text[text.index("### TMRChargeLineaire"):]
        self.assertRegex(load, r"\| `Mz` \| `double` \|[^|]*\|[^|]*\| column 20 \|")


if __name__ == "__main__":
    unittest.main()
