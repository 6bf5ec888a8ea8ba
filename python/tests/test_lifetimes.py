"""Memory, threads, and files that go."""
import gc
import os
import threading
from concurrent.futures import ThreadPoolExecutor

import numpy as np
import pytest

import tamur
from conftest import MODELS


def resident() -> int:
    with open("/proc/self/statm", encoding="ascii") as file:
        return int(file.read().split()[1]) * os.sysconf("SC_PAGE_SIZE")


def test_arrays_live_on_without_the_model(hall):
    model = tamur.read(hall)
    start, labels, types = (model.bars[name] for name in ("start", "labels", "type"))
    nodes, outline = model.nodes, model.surfaces["outline"]
    expected = start.copy(), types.copy(), [one.copy() for one in outline]
    del model
    gc.collect()
    churn = [tamur.read(hall).bars["start"].copy() for _ in range(50)]
    assert np.array_equal(start, expected[0]) and np.array_equal(types, expected[1])
    assert all(map(np.array_equal, outline, expected[2]))
    assert labels[0].tolist() == ["Poteau-1G"] and nodes["labels"][0].tolist() == ["N1"]
    assert np.array_equal(churn[0], start)


def test_memory_stays_flat(hall):
    def read_everything():
        model = tamur.read(hall, check=True)
        return len(model.bars["labels"].values) + len(model.findings["text"]) + len(repr(model))

    for _ in range(100):
        read_everything()
    gc.collect()
    before = resident()
    for _ in range(400):
        read_everything()
    gc.collect()
    assert resident() - before < 2 << 20
    for _ in range(100):
        with pytest.raises(tamur.ImportRefused):
            tamur.read(b"#Version\n1")
    assert resident() - before < 2 << 20


def test_threads_that_share_a_model(hall):
    model = tamur.read(hall, check=True)
    alone = tamur.read(hall, check=True)
    ready = threading.Barrier(8)

    def use(_):
        ready.wait()
        return (model.bars["length"].sum(), list(model.nodes["labels"].values), len(model.findings),
                tamur.diff(model, alone).same)

    with ThreadPoolExecutor(8) as pool:
        results = list(pool.map(use, range(8)))
    assert all(result == results[0] for result in results) and results[0][3]


def test_threads_with_a_file_each():
    files = MODELS[:200]

    def size(path):
        try:
            model = tamur.read(path, check=True)
        except tamur.ImportRefused as error:
            return error.code
        return len(model.bars), len(model.findings), model.version

    with ThreadPoolExecutor(4) as pool:
        assert list(pool.map(size, files)) == [size(path) for path in files]


def test_a_file_that_vanishes(hall, tmp_path):
    path = tmp_path / "hall.txt"
    path.write_bytes(hall.read_bytes())
    model = tamur.read(path, check=True)
    path.unlink()
    assert len(model.bars) == 55 and len(model.findings) == 1 and not tamur.diff(model, hall)
    with pytest.raises(tamur.ImportRefused, match="No such file"):
        tamur.read(path)


@pytest.mark.skipif(os.geteuid() != 0, reason="only root may read that file's name")
def test_a_file_that_cannot_be_read():
    with pytest.raises(tamur.ImportRefused, match="Input/output error") as refused:
        tamur.read("/proc/self/mem")
    assert refused.value.code == "TMR006"
