#!/usr/bin/env python3
"""Holds what keeps the house in order: who may include whom, the page of the pipe's keys, one version."""
import os, pathlib, re, subprocess, sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
FILES = subprocess.run(["git", "ls-files", "-co", "--exclude-standard"], cwd=ROOT, stdout=subprocess.PIPE,
                       text=True, check=True).stdout.split("\n")
CODE = [name for name in FILES if re.search(r"\.(cpp|h|h\.in|ui)$", name) and (ROOT / name).exists()]

# What a folder may include beside itself. A folder's line counts for those below it that have none of their own;
# PLATFORM stands for all of the platform but the operating systems' own folders.
PLATFORM = ["platform/" + name for name in
            ("application", "context", "files", "link", "security", "system", "web")] + ["platform", "entity"]
FEATURE = PLATFORM + ["widgets", "common", "lock"]  # from lock: the password pad
FEATURES = ["enroll", "feedback", "lock", "messages", "pages", "popups"]
SOURCES = FEATURES + PLATFORM + ["app", "capture", "common", "controllers", "host", "platform", "widgets"]
MAY_INCLUDE = {
    "entity": [],
    "platform": [],  # the product's names, and the precompiled header
    "platform/system": [],
    "platform/security": [],
    "platform/files": ["platform/security", "platform/system"],
    "platform/link": ["platform/security", "platform/system", "entity"],
    "platform/context": ["platform", "platform/files", "platform/link", "platform/security", "platform/system", "entity"],
    "platform/web": ["platform", "platform/context", "platform/files", "platform/security", "platform/system", "entity"],
    "platform/application": ["platform/context", "platform/link", "platform/system", "entity"],
    "platform/system/windows": ["platform", "platform/system"],
    "platform/system/unix": ["platform", "platform/system"],
    "platform/system/x11": ["platform/system", "platform/system/unix"],
    "widgets": ["platform/application", "platform/context", "platform/system", "platform/web"],
    "common": ["platform/context", "platform/system"],
    **{feature: FEATURE for feature in FEATURES},
    "controllers": FEATURE + ["messages", "popups"],  # a controller may own a feature's dialog
    "app": FEATURE + FEATURES + ["controllers"],
    "host": ["app"],
    "capture": ["platform/system"],
    "agent": ["entity", "platform", "platform/application", "platform/context", "platform/link", "platform/security",
              "platform/system", "platform/web"],
    "tools": SOURCES + ["agent"],
    "bench": SOURCES + ["agent", "tools", "platform/system/windows"],  # that one's callback is measured
    "docs": ["entity", "platform/link"],
    "tests": SOURCES + ["agent", "tools", "platform/system/unix", "platform/system/windows"],
}

# Headers of an operating system, and where they may be included.
SYSTEM_HEADERS = [
    (r"(windows|winsock2|shlobj|shobjidl|psapi|tlhelp32|dwmapi|sddl|comdef|wbemidl)\.h$",
     ("src/platform/system/windows/", "tests/windows/", "tools/", "bench/popups/")),
    (r"(X11|xcb)/", ("src/platform/system/x11/", "tests/e2e/", "tools/")),
]
SYSTEM_CONDITION = re.compile(r"^\s*#\s*(if|ifdef|ifndef|elif)\b.*\b(_?WIN(32|64)|Q_OS_\w+|__linux(__)?|__unix(__)?)\b")


def folder_of(file):
    """The line of the table that counts for a file; None where there is none."""
    parts = file.removeprefix("src/").split("/")[:-1]
    return next((name for name in ("/".join(parts[:n]) for n in range(len(parts), 0, -1)) if name in MAY_INCLUDE), None)


def included_file(file, header):
    """The project's file that an include means: beside the includer, below src, or wherever the name is found."""
    near = os.path.normpath(os.path.dirname(file) + "/" + header)
    places = [near, header, "src/" + header, f"src/{header}.in"]
    places += [name for name in CODE if name.endswith("/" + header)]
    return next((place for place in places if place in CODE), None)


def wrong_includes():
    for file in CODE:
        folder = folder_of(file)
        for number, line in enumerate((ROOT / file).read_text().split("\n"), 1):
            where = f"{file}:{number}"
            if SYSTEM_CONDITION.match(line) and not file.startswith("src/platform/system/"):
                yield f"{where}: a condition on the operating system belongs into src/platform/system"
            include = re.match(r'\s*#\s*include\s*(["<])([^">]+)', line) or re.match(r'\s*<header()>([^<]+)', line)
            if not include:
                continue
            quote, header = include.groups()
            for pattern, places in SYSTEM_HEADERS:
                if re.match(pattern, header, re.IGNORECASE) and not file.startswith(places):
                    yield f"{where}: {header} may be included in {', '.join(places)} only"
            if quote == "<" or header.startswith("ui_") or header.endswith(".inc"):  # made by the build
                continue
            target = included_file(file, header)
            other = folder_of(target) if target else None
            if folder is None or other is None:
                yield f"{where}: {folder and header or file} has no line in this test's table"
            elif other != folder and other not in MAY_INCLUDE[folder]:
                yield f"{where}: {folder} may not include {other} ({header})"


def wrong_keys():
    header = (ROOT / "src/platform/link/PipeKey.h").read_text()
    page = (ROOT / "docs/pipe-protocol.md").read_text()
    in_code = [(int(number), name) for name, number in re.findall(r"\bKEY\((\w+), (\d+)\)", header)]
    on_page = [(int(number), name) for number, name in re.findall(r"^\| (\d+) \| `(\w+)` \|", page, re.MULTILINE)]
    if not in_code or sorted(set(in_code)) != in_code:
        yield "PipeKey.h: the keys are not found, or not each once and in the order of their numbers"
    for key in sorted(set(in_code) ^ set(on_page)):
        yield f"key {key[0]} {key[1]} is {'not on the page docs/pipe-protocol.md' if key in in_code else 'not in PipeKey.h'}"
    if len(on_page) != len(set(on_page)):
        yield "docs/pipe-protocol.md: a key stands on the page twice"


def wrong_versions():
    version = re.search(r"project\([^)]*\bVERSION ([\d.]+)", (ROOT / "CMakeLists.txt").read_text()).group(1)
    for file in FILES:
        path = ROOT / file
        if file == "CHANGELOG.md" or not path.is_file():
            continue
        count = path.read_bytes().count(version.encode()) - (file == "CMakeLists.txt")
        if count:
            yield f"{file}: the version {version} stands in CMakeLists.txt alone"


wrong = [*wrong_includes(), *wrong_keys(), *wrong_versions()]
print(*wrong, sep="\n")
sys.exit(len(wrong) > 0)
