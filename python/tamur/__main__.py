"""`python -m tamur`: the command-line tool, in this process."""
from __future__ import annotations

import signal
import sys

from ._library import run_tool


def main() -> int:
    # The interpreter sees signals only after the call.
    signal.signal(signal.SIGINT, signal.SIG_DFL)
    if hasattr(signal, "SIGPIPE"):
        signal.signal(signal.SIGPIPE, signal.SIG_DFL)
    sys.stdout.flush()
    return run_tool(sys.argv[1:])


if __name__ == "__main__":
    sys.exit(main())
