"""What arguments must be."""
from __future__ import annotations

import numpy as np


def is_integer(value: object) -> bool:
    """Python's and NumPy's, and not True and False, which are integers to Python."""
    return isinstance(value, (int, np.integer)) and not isinstance(value, bool)
