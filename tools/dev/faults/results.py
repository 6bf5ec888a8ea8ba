"""The table of results, and the survivors that are explained."""

import csv
import threading

COLUMNS = ("file", "line", "kind", "original", "changed", "verdict", "by", "seconds")
COUNTED = ("noticed", "SURVIVED", "explained")


def read_explained(path):
    """Lines `file | original -> changed | reason`; the code in the middle may hold bars."""
    explained = {}
    for line in path.read_text().splitlines() if path.exists() else []:
        if line.strip() and not line.startswith("#"):
            file, rest = line.split(" | ", 1)
            change, reason = rest.rsplit(" | ", 1)
            explained[file.strip(), change.strip()] = reason.strip()
    return explained


class Results:
    def __init__(self, path, explained):
        self.path, self.explained = path, explained
        self.rows, self.earlier = {}, {}
        self.lock = threading.Lock()

    def read(self):
        if self.path.exists():
            with open(self.path, newline="") as table:
                for row in csv.DictReader(table, delimiter="\t"):
                    self.rows[row["file"], row["original"], row["changed"], row["line"]] = row

    def take_survivors(self):
        """Key and line of those without an explanation, whose rows are to be written anew."""
        taken = []
        for key, row in list(self.rows.items()):
            if row["verdict"] in ("SURVIVED", "explained"):
                reason = self.reason(*key[:3])
                row.update(verdict="explained" if reason else "SURVIVED", by=reason)
                if not reason:
                    taken.append((key[:3], int(row["line"])))
                    del self.rows[key]
        return taken

    def reason(self, file, original, changed):
        return self.explained.get((file, f"{original} -> {changed}"), "")

    def resume(self):
        self.read()
        self.earlier, self.rows = self.rows, {}

    def known(self, fault):
        """The earlier verdict on a fault, which counts again from now on."""
        key = (*fault.key(), str(fault.line))
        with self.lock:
            if key in self.earlier:
                self.rows[key] = self.earlier.pop(key)
            return self.rows.get(key)

    def add(self, fault, verdict, by, seconds):
        if verdict == "SURVIVED":
            by = self.reason(*fault.key())
            verdict = "explained" if by else verdict
        row = dict(zip(COLUMNS, (fault.file, str(fault.line), fault.kind, fault.original,
                                 fault.changed, verdict, by, f"{seconds:.1f}")))
        with self.lock:
            self.rows[(*fault.key(), str(fault.line))] = row
            self.write()
            print(f"{fault.file}:{fault.line}: {fault.original} -> {fault.changed}: {verdict}"
                  f"{' by ' if verdict == 'noticed' else ' '}{by}", flush=True)
        return verdict

    def write(self):
        self.path.parent.mkdir(parents=True, exist_ok=True)
        with open(self.path, "w", newline="") as table:
            writer = csv.DictWriter(table, COLUMNS, delimiter="\t")
            writer.writeheader()
            writer.writerows({**self.earlier, **self.rows}.values())

    def totals(self):
        self.earlier = {}
        self.write()
        number = {verdict: sum(row["verdict"] == verdict for row in self.rows.values())
                  for verdict in (*COUNTED, "does not compile", "equal code")}
        counted = sum(number[verdict] for verdict in COUNTED)
        share = 100 * number["noticed"] / counted if counted else 0
        print(f"planted {counted}, noticed {number['noticed']} ({share:.1f} %), survivors "
              f"{number['SURVIVED'] + number['explained']} ({number['explained']} explained); "
              f"not counted: {number['does not compile']} do not compile, "
              f"{number['equal code']} give equal code")
        return counted, share
