"""What mkdocs does for this site beyond reading docs/: pages from elsewhere, links to them, and a
search that works from a folder.
"""
import json
import posixpath
import re
import shutil
import sys
from functools import cache
from pathlib import Path

from mkdocs.exceptions import PluginError
from mkdocs.structure.files import File

ROOT = Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "site"))
from contract_pages import ContractPages  # noqa: E402
from helper_pages import HelperPages  # noqa: E402
from slugs import slug_of  # noqa: E402

MADE = ROOT / "build" / "site-pages"
SOURCES = "sources/"
AT_THE_ROOT = ("README.md", "CHANGELOG.md", "THIRD-PARTY.md")
# What the site has for folders and files that pages link to. Other files become pages of their own.
BETTER = {"examples": "hosts/index.md", "include/tamur": "reference/cpp.md",
          "include/tamur/tamur.h": "reference/c.md", "idl/TAMURReader.idl": "reference/contract.md"}
LANGUAGES = {".c": "c", ".cpp": "cpp", ".cs": "csharp", ".h": "cpp", ".lua": "lua",
             ".py": "python", ".json": "json"}
FENCES = re.compile(r"(^ *```.*?^ *```|`[^`\n]+`)", re.S | re.M)
# A link that says where it leads and no more; a code in the text, and in a heading.
BARE_LINK = re.compile(r"\[([\w/.-]+\.md)\]\(\1\)")
CODE = re.compile(r"(?<![\w\[-])TMR\d{3}\b(?![^\[\n]*\]\()")
# Who reads the site has it.
ABOUT_THE_SITE = re.compile(r"^`\./dev site` makes a site .*?\n\n", re.S | re.M)
COMMENT = re.compile(r"<!-- code: .*? -->\n?", re.S)
LINK = re.compile(r"(?<=\]\()(?!\w+:|#)([^)\s#]+)(#[^)\s]*)?(?=[)\s])")


def on_config(config):
    config["mdx_configs"]["toc"]["slugify"] = slug_of
    config["mdx_configs"]["pymdownx.snippets"]["base_path"] = str(ROOT)
    return config


def on_files(files, config):
    """The pages of docs/, and those that are made or lie elsewhere."""
    shutil.rmtree(MADE, ignore_errors=True)
    for name, text in {**ContractPages().pages(), **HelperPages().pages()}.items():
        _write(name, text)
        files.append(_file(name, MADE, config))
    for name in AT_THE_ROOT:
        files.append(_file(name, ROOT, config))
    for page in list(files.documentation_pages()):
        text = Path(page.abs_src_path).read_text(encoding="utf-8")
        for source in sorted(set(_sources_of(page.src_path, text))):
            name = f"{SOURCES}{source}.md"
            if files.get_file_from_path(name) is None:
                _write(name, _source_page(source))
                files.append(_file(name, MADE, config))
    return files


def _write(name, text):
    path = MADE / name
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(text, encoding="utf-8")


def _file(name, folder, config):
    return File(name, str(folder), config["site_dir"], config["use_directory_urls"])


def _source_page(source):
    """A file of the project that pages link to, to be read and searched on the site."""
    path = ROOT / source
    if path.is_dir():
        names = "\n".join(f"- [{name}]({path.name}/{name}.md)" for name in _names_in(source))
        return f"# {source}\n\n{names}\n"
    # Model files are in the code page of Western Europe.
    text = path.read_text(encoding="cp1252" if source.startswith("samples/") else "utf-8")
    language = LANGUAGES.get(path.suffix, "text")
    return f"# {source}\n\n````{language}\n{text.rstrip()}\n````\n"


def _in_project(page, target):
    """What a link of a page leads to, from the root of the project."""
    folder = "" if page in AT_THE_ROOT else posixpath.join("docs", posixpath.dirname(page))
    return posixpath.normpath(posixpath.join(folder, target))


def _sources_of(page, text):
    for target, _ in LINK.findall(FENCES.sub("", text)):
        path = _in_project(page, target)
        if not path.startswith("docs/") and path not in (*AT_THE_ROOT, *BETTER):
            if not (ROOT / path).exists():
                raise PluginError(f"{page}: no file and no page: {target}")
            yield path
            yield from (f"{path}/{name}" for name in _names_in(path))


def _names_in(folder):
    """The files of a folder; none for a file."""
    path = ROOT / folder
    return sorted(one.name for one in path.iterdir() if one.is_file()) if path.is_dir() else []


def _relative(target, page):
    return posixpath.relpath(target, posixpath.dirname(page) or ".")


def _titles(nav):
    """What the navigation calls each page."""
    found = {}
    for title, entry in (item for one in nav for item in one.items()):
        found.update(_titles(entry) if isinstance(entry, list) else {entry: title})
    return found


@cache
def _codes():
    """Where each code of a finding is explained."""
    found = {}
    for page in ("check/file.md", "check/model.md"):
        text = (ROOT / "docs" / page).read_text(encoding="utf-8")
        for heading in re.findall(r"^### (TMR\d{3} .*)", text, re.M):
            found[heading[:6]] = f"{page}#{slug_of(heading)}"
    return found


def on_page_markdown(markdown, page, config, files):
    name = page.file.src_path

    if name.startswith(SOURCES):
        return markdown
    if name == "README.md":
        markdown, count = ABOUT_THE_SITE.subn("", markdown)
        if count != 1:
            raise PluginError("README.md: no paragraph says how this site is made")

    def on_the_site(match):
        path = _in_project(name, match[1])
        if path.startswith("docs/"):
            path = path.removeprefix("docs/")
        elif path not in AT_THE_ROOT:
            path = BETTER.get(path, f"{SOURCES}{path}.md")
        return _relative(path, name) + (match[2] or "")

    titles = _titles(config["nav"])

    def with_title(match):
        path = _in_project(name, match[1]).removeprefix("docs/")
        return f"[{titles.get(path, match[1])}]({match[1]})"

    def code_link(match):
        target = _codes().get(match[0])
        return f"[{match[0]}]({_relative(target, name)})" if target else match[0]

    def prose(part):
        lines = LINK.sub(on_the_site, BARE_LINK.sub(with_title, COMMENT.sub("", part))).split("\n")
        return "\n".join(line if line.startswith("#") else CODE.sub(code_link, line)
                         for line in lines)

    parts = FENCES.split(markdown)
    parts[::2] = map(prose, parts[::2])
    # Code hosts want these escaped within code in tables, Python's Markdown does not.
    parts[1::2] = [part if part.lstrip().startswith("```") else part.replace("\\|", "|")
                   for part in parts[1::2]]
    return "".join(parts)


def on_nav(nav, config, files):
    named = {page.file.src_path for page in nav.pages}
    missing = [file.src_path for file in files.documentation_pages()
               if file.src_path not in named and not file.src_path.startswith(SOURCES)]
    if missing:
        raise PluginError(f"pages that site/mkdocs.yml does not name: {', '.join(missing)}")
    return nav


def on_post_build(config):
    """The index and the worker of the search in one script: see theme/main.html."""
    site = Path(config["site_dir"])
    index = site / "search" / "search_index.json"
    worker, = site.glob("assets/javascripts/workers/search.*.min.js")
    content = json.loads(index.read_text(encoding="utf-8"))
    # Files that pages link to are found through those pages.
    content["docs"] = [doc for doc in content["docs"] if not doc["location"].startswith(SOURCES)]
    code = json.dumps(worker.read_text(encoding="utf-8"))
    (site / "search" / "offline.js").write_text(
        f"__search = {{\nworker: URL.createObjectURL(new Blob([{code}])),\n"
        f"index: Promise.resolve({json.dumps(content, ensure_ascii=False)}),\n}};\n",
        encoding="utf-8")
    index.unlink()
