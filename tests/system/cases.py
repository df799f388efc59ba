"""Counts cases and prints them, and the total, in the form of Qt Test."""

import sys
import time
import traceback
from concurrent.futures import ThreadPoolExecutor


class Cases:
    def __init__(self):
        self._passed = 0
        self._failed = 0
        self._start = time.monotonic()

    def run(self, name, case, *arguments):
        """Runs one case; any exception fails it."""
        try:
            case(*arguments)
        except Exception:
            self._failed += 1
            print(f"FAIL!  : {name}\n{traceback.format_exc()}", flush=True)
        else:
            self._passed += 1
            print(f"PASS   : {name}", flush=True)

    def run_together(self, cases):
        """Runs cases that mostly wait, six at a time; each is its name, the function and its arguments."""
        with ThreadPoolExecutor(6) as pool:
            results = [(name, pool.submit(*call).result) for name, *call in cases]
            for name, result in results:
                self.run(name, result)

    def leave(self):
        milliseconds = round((time.monotonic() - self._start) * 1000)
        print(f"Totals: {self._passed} passed, {self._failed} failed, 0 skipped, 0 blacklisted, {milliseconds}ms")
        sys.exit(1 if self._failed else 0)
