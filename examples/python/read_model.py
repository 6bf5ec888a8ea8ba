"""A Python host: imports a model file and says what it holds.

usage: read_model.py COMPONENT FILE      (TAMURReader.dll or libTAMURReader.so)

tamur_reader.py, made from the contract, must lie beside this file or on PYTHONPATH.
"""
import os
import sys

import tamur_reader
from tamur_com import ComError, Component


def labels_of(record) -> list[str]:
    """Copies the labels: they are lent, and live as long as the reader."""
    labels = record.ElemLabels
    return [str(labels.tabLabels[i]) for i in range(labels.nbLabels)]


def print_model(component: Component, reader: tamur_reader.ITAMURStructureReader) -> None:
    first_label = ""
    with reader.GetNodeAccessor() as nodes:
        print("nodes:", nodes.GetNbNodes())
        # A rank outside the table of nodes ends the process; `records` stays inside.
        for node in component.records(nodes.GetNbNodes, nodes.GetNodeAtRank):
            labels = labels_of(node)
            first_label = first_label or "".join(labels[:1])
            point = node.Geometrie
            print(f"  {node.identifier}: {point.x:g} {point.y:g} {point.z:g}", *labels)
    print("first label:", first_label)
    with reader.GetFilaireAccessor() as bars:
        print("bars:", bars.GetNbFilaires())
        for bar in component.records(bars.GetNbFilaires, bars.GetFilaireAtRank):
            print(f"  {bar.identifier}: {bar.StartSection.SectionLib} in "
                  f"{bar.FilaireMaterial.MaterialName}, length {bar.RealLength}")


def main() -> int:
    if len(sys.argv) != 3:
        print(__doc__, file=sys.stderr)
        return 2
    component = Component(os.path.abspath(sys.argv[1]))
    # The reader is released last: accessors and labels need it.
    with component.create(tamur_reader.CLSID_TAMURStructureReader,
                          tamur_reader.ITAMURStructureReader) as reader:
        try:
            with component.string(sys.argv[2]) as file:
                reader.Import(file)
        except ComError as error:
            # A file that cannot be opened has been reported in a message box.
            print(f"{sys.argv[2]}: {error}", file=sys.stderr)
            return 1
        print_model(component, reader)
    return 0


if __name__ == "__main__":
    sys.exit(main())
