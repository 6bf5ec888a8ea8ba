"""Makes the declarations for hosts in other languages, from the contract.

usage: generate_bindings.py IDL FOLDER      (tamur_reader.py and TAMURReader.cs)
"""
import os
import sys

from contract import read_contract
from csharp_bindings import csharp_bindings
from python_bindings import python_bindings


def main() -> None:
    contract = read_contract(sys.argv[1])
    for name, text in (("tamur_reader.py", python_bindings(contract)),
                       ("TAMURReader.cs", csharp_bindings(contract))):
        with open(os.path.join(sys.argv[2], name), "w", encoding="utf-8") as file:
            file.write(text)


if __name__ == "__main__":
    main()
