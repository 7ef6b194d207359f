#!/usr/bin/python3
"""Fails if a translation lacks a text of the program, has one that is unfinished or no longer exists, or loses a
placeholder, an emphasis or a line break. The arguments are lupdate and the source directory."""

import glob
import os
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree


def marks(text):
    """What a translation must keep, in any order."""
    return sorted(re.findall(r"%\d|\*|\n", text))


def problem(message):
    translation = message.find("translation")
    if translation.get("type"):
        return translation.get("type")
    if marks(message.findtext("source")) != marks(translation.text or ""):
        return "other placeholders, asterisks or line breaks"
    return None


lupdate, source = sys.argv[1:]
problems = []
with tempfile.TemporaryDirectory() as copies:
    files = [shutil.copy(file, copies) for file in glob.glob(source + "/resources/translations/*.ts")]
    subprocess.run([lupdate, "-silent", "-locations", "none", "-I", source + "/src", source + "/src", "-ts", *files],
                   check=True)
    for file in files:
        for message in ElementTree.parse(file).getroot().iter("message"):
            if found := problem(message):
                problems.append(f"{os.path.basename(file)}: {message.findtext('source')!r}: {found}")
if problems or not files:
    print(*problems, "Build the target update_translations, then translate what it marks as unfinished.", sep="\n")
    sys.exit(1)
