#!/usr/bin/env python3
"""Brings the .ts files of every source folder up to the translation keys that the folder's code uses.

usage: update.py SOURCES LANGUAGE...

Every folder below SOURCES keeps its texts in FOLDER/translations/FOLDER_LANGUAGE.ts, sorted by key. A key that is
missing is added as an unfinished message; one that several folders use stands in the lowest of them, and moves
there; one that nothing uses is reported and left. Messages themselves stay as they are, byte for byte.
"""
import re
import sys
from pathlib import Path
from xml.sax.saxutils import escape, unescape

# From below; every other folder is a feature.
LAYERS = ["platform", "widgets", "a feature", "app", "host"]

LITERALS = r'((?:"(?:[^"\\]|\\.)+"\s*)+)'
IN_CODE = re.compile(rf'\b(?:(?:tr|Text|QT_TR_NOOP)\(|(?:translate|QT_TRANSLATE_NOOP)\(\s*"\w*",)\s*{LITERALS}')
IN_FORM = re.compile(r"<string>([^<]+)</string>")
MESSAGE = re.compile(r"    <message>\n.*?<source>(.*?)</source>.*?</message>\n", re.DOTALL)

FILE = """<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="{}" sourcelanguage="en">
<context>
    <name>Ryx</name>
{}</context>
</TS>
"""
UNFINISHED = """    <message>
        <source>{}</source>
        <translation type="unfinished"></translation>
    </message>
"""


def layer(folder):
    return LAYERS.index(folder if folder in LAYERS else "a feature"), folder


def keys_in(path):
    text = path.read_text(encoding="utf-8")
    if path.suffix == ".ui":
        return {unescape(key) for key in IN_FORM.findall(text)}
    text = re.sub(r"^\s*//.*$", "", text, flags=re.MULTILINE)
    return {re.sub(r'"\s*"', "", found.strip())[1:-1].replace('\\"', '"') for found in IN_CODE.findall(text)}


def owners(sources):
    """Key to the folder that it belongs to."""
    found = {}
    for folder in sorted((path.name for path in sources.iterdir() if path.is_dir()), key=layer):
        for path in (sources / folder).rglob("*"):
            if path.suffix in (".cpp", ".h", ".ui"):
                for key in keys_in(path):
                    found.setdefault(key, folder)
    return found


def update(sources, language, owner):
    files = {}  # path: {key: message}
    places = {}  # key: path
    messages = {}
    for path in sorted(sources.glob(f"*/translations/*_{language}.ts")):
        files[path] = path.read_text(encoding="utf-8")
        for match in MESSAGE.finditer(files[path]):
            key = unescape(match[1])
            messages[key] = match[0]
            places[key] = path
            if key not in owner:
                print(f"{path}: nothing uses {key!r}")
    for key, folder in owner.items():
        path = sources / folder / "translations" / f"{folder}_{language}.ts"
        if key not in messages:
            messages[key] = UNFINISHED.format(escape(key))
            print(f"{path}: new is {key!r}")
        places[key] = path
    for path in sorted(files.keys() | set(places.values())):
        keys = sorted((key for key in places if places[key] == path), key=lambda key: (key.lower(), key))
        text = FILE.format(language, "".join(messages[key] for key in keys))
        if not keys:
            path.unlink()
        elif text != files.get(path):
            path.parent.mkdir(exist_ok=True)
            path.write_text(text, encoding="utf-8", newline="\n")


def main():
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    sources = Path(sys.argv[1])
    owner = owners(sources)
    for language in sys.argv[2:]:
        update(sources, language, owner)


main()
