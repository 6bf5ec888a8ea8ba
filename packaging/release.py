"""The version of this project, and the day of its release."""
import datetime
import re
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent


def version() -> str:
    project = (ROOT / "CMakeLists.txt").read_text("utf-8")
    return re.search(r"project\(TAMURReader VERSION ([\d.]+)", project)[1]


def day() -> datetime.date:
    """That of the newest release in CHANGELOG.md. What is made has no other time in it, so that it
    is the same when it is made again."""
    dated = re.search(r"^## .*(\d{4}-\d\d-\d\d)", (ROOT / "CHANGELOG.md").read_text("utf-8"), re.M)
    return datetime.date.fromisoformat(dated[1] if dated else "2020-01-01")
