"""Starts the commands as users do, in an empty directory of their own."""

import importlib.machinery
import importlib.util
import os
import pathlib
import subprocess
import tempfile
import unittest

BIN = pathlib.Path(os.environ["KAV_BIN"])


def load(name):
    """A command as a module."""
    loader = importlib.machinery.SourceFileLoader(name.replace("-", "_"), str(BIN / name))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader(loader.name, loader))
    loader.exec_module(module)
    return module


class CommandTest(unittest.TestCase):
    def setUp(self):
        directory = tempfile.TemporaryDirectory(prefix="kavmap-test-")
        self.addCleanup(directory.cleanup)
        self.home = pathlib.Path(directory.name)

    def write(self, name, content):
        path = self.home / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content if isinstance(content, bytes) else content.encode())
        return path

    def run_command(self, name, *arguments, **more):
        """Runs it to its end; what it says is in stdout and stderr."""
        more.setdefault("stdin", subprocess.DEVNULL)
        environment = {**os.environ, "HOME": str(self.home), **more.pop("env", {})}
        return subprocess.run([BIN / name, *map(str, arguments)], cwd=self.home, capture_output=True, text=True,
                              timeout=250, env=environment, **more)
