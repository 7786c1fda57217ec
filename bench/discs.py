"""Discs for the scripts beside this one: copies of whole discs, changed in one place."""

import os
import shutil
import subprocess
from pathlib import Path

PROJECT = Path(__file__).resolve().parent.parent
ENCODING = "cp1250"


def new_disc(tool, folder):
    """The disc that `orvanta-disc new` makes."""
    subprocess.run([tool, "new", folder], check=True)
    return Path(folder)


def copy_of(disc, folder):
    """A copy that shares its files with the disc; write them with `put` only."""
    shutil.copytree(disc, folder, copy_function=os.link, symlinks=True)
    return Path(folder)


def put(file, content):
    """Writes a file of a copy and leaves the disc that it shares the file with as it is."""
    file.unlink(missing_ok=True)
    file.write_bytes(content)
