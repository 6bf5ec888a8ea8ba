"""Models with what is exported of them, for the programs that judge it."""
import contextlib
import json
import pathlib
import shutil
import subprocess
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / 'support'))
from whole_dump import whole_dump  # noqa: E402

GENERATED = 200

# Labels and names that a form may take for something else than a text.
HOSTILE = [
    b'=1+1', b'+1', b'-1', b'@SUM(A1)', b"'quoted'", b'"', b'a,b;c', b']]>',
    b'<b>&amp;', b'_x0041_', b'a\x00b', b'\x1b[31m', b'\xff\xfe', b'\xe9t\xe9',
    b'-', b'=', b'%s%n', b'L' * 40000]

SETTINGS = (b'#Version\n14.1E\n#Espace\n2\n#Tolerance\n0.001\n#Rigide\n0\n')


def hostile_model():
    """Nodes, a group and a bar section with each of those texts."""
    lines = [SETTINGS, b'#Groupes\n']
    lines += [b'2 %d 2 %s Oui\n' % (i + 1, text)
              for i, text in enumerate(HOSTILE)]
    lines.append(b'#Materiaux\n')
    lines += [b'%s 3e10 0.2 25000 1e-5 0.05\n' % text for text in HOSTILE]
    lines.append(b'#Elements\n')
    lines += [b'1 %d 0 1 2  %d 0 0  %s %s  0 0 0  0\n' % (i + 1, i, text, text[:99])
              for i, text in enumerate(HOSTILE)]
    lines.append(b'2 1 0 2 1  0 0 0  1e999 0 1e308  B  0 0 0'
                 b'  1 2 0 0 1 1 1 1 1 1 5 0 0 0 0 0\n')
    return b''.join(lines)


@contextlib.contextmanager
def exported(kinds, further=None):
    """Yields (path of the model, its dump, path of the export by kind). `further` are models by
    their names."""
    export_models, write_models, samples = sys.argv[1:4]
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        subprocess.run([write_models, folder, str(GENERATED)], check=True)
        for sample in pathlib.Path(samples).glob('*.txt'):
            shutil.copy(sample, folder)
        (folder / 'hostile.txt').write_bytes(hostile_model())
        (folder / 'empty.txt').write_bytes(SETTINGS)
        for stem, content in (further or {}).items():
            (folder / (stem + '.txt')).write_bytes(content)
        run = subprocess.run([export_models, folder, *kinds],
                             stderr=subprocess.PIPE, text=True, check=False)
        if run.returncode != 0:
            sys.exit(f'export_models ends with {run.returncode}\n{run.stderr}')
        yield _models(folder, kinds)


def _models(folder, kinds):
    for dump in sorted(folder.glob('*.json')):
        path = {kind: dump.with_suffix('.' + kind + ('.xlsx' if kind == 'saf' else ''))
                for kind in kinds}
        with open(dump, encoding='utf-8') as file:
            yield dump.with_suffix('.txt'), whole_dump(json.load(file)), path


class Judge:
    """Counts what is compared and stops at the first difference."""

    def __init__(self):
        self.compared = 0
        self.model = None

    def same(self, where, found, expected):
        self.compared += 1
        if found != expected:
            text = self.model.read_bytes()[:3000].decode('latin-1')
            sys.exit(f'{self.model.name}: {where}: {found!r} instead of '
                     f'{expected!r}\n{text}')

    def near(self, where, found, expected, tolerance=1e-9):
        self.compared += 1
        if abs(found - expected) > tolerance * max(1, abs(expected)):
            sys.exit(f'{self.model.name}: {where}: {found!r} instead of '
                     f'{expected!r}')
