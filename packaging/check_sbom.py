#!/usr/bin/env python3
"""Whether bills of materials are valid by a JSON schema of SPDX, and belong to their files.

usage: check_sbom.py SCHEMA BILL...
"""
import copy
import json
import sys

import jsonschema


def problems(validator: jsonschema.Draft202012Validator, bill: dict) -> list[str]:
    found = [f"{list(error.absolute_path)}: {error.message[:300]}"
             for error in validator.iter_errors(bill)]
    known = {element["spdxId"] for element in bill["@graph"] if "spdxId" in element}
    for element in bill["@graph"]:
        for member in ("from", "to", "rootElement", "element"):
            named = element.get(member, [])
            for one in [named] if isinstance(named, str) else named:
                if one not in known:
                    found.append(f"{element['spdxId']}: {one} is not there")
    return found


def main() -> int:
    schema, *bills = sys.argv[1:]
    with open(schema, encoding="utf-8") as file:
        validator = jsonschema.Draft202012Validator(json.load(file))
    wrong = 0
    for path in bills:
        with open(path, encoding="utf-8") as file:
            bill = json.load(file)
        for problem in problems(validator, bill):
            print(f"{path}: {problem}")
            wrong += 1
        # It would notice what is wrong: a file without its checksum's kind.
        broken = copy.deepcopy(bill)
        checked = next(element for element in broken["@graph"] if "verifiedUsing" in element)
        del checked["verifiedUsing"][0]["algorithm"]
        if not problems(validator, broken):
            print(f"{path}: the schema does not notice what is wrong")
            wrong += 1
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
