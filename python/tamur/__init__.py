"""Model files of the TAMUR structural-analysis product as NumPy arrays.

    import tamur

    m = tamur.read("hall.txt")
    m.bars["length"]                    # an array; m.bars.columns says what there is
    m.materials[m.bars["material"]]     # the material of each bar
    m.bars.to_frame()                   # a data frame of pandas

    tamur.read("hall.txt", check=True).findings
    tamur.diff("before.txt", "after.txt")
    m.export("hall.xlsx")               # also csv, saf, vtu, vtm, glb
    m.view("hall.html")                 # one page for any browser
"""
from . import _library
from ._diff import Change, Diff, FieldChange, diff
from ._errors import ImportRefused
from ._layout import Column
from ._loads import Loads
from ._model import Model, read
from ._ragged import Ragged
from ._row import Row
from ._table import Table
from ._tables import ALL_TABLES

__version__ = _library.version()
__all__ = ["Change", "Column", "Diff", "FieldChange", "ImportRefused", "Loads", "Model", "Ragged",
           "Row", "Table", "diff", "read"]


def _assert_layout() -> None:
    """The rows of the library are where this package takes them to be."""
    expected = "".join(line + "\n" for table in ALL_TABLES for line in table.layout.lines())
    if _library.layout() != expected:
        raise ImportError("the library of this package is of another version")


_assert_layout()
