# SPDX-License-Identifier: Apache-2.0
"""Who may include whom: the layer table, and the check of a source tree against it."""

import re
from pathlib import Path

PLUGIN = "src/ostriaviewer/plugins/colorcalibration"

# Folder of a layer -> layers whose headers it may include besides its own. The longest folder
# that a file lies below is its layer.
LAYERS = {
    "src/ostria": [],
    "src/ostriaviewer/core": ["src/ostria"],
    "src/ostriaviewer/saving": [],
    "src/ostriaviewer/cameras/genicam": ["src/ostria", "src/ostriaviewer/core"],
    "src/ostriaviewer/cameras/genicam/devices": [
        "src/ostria",
        "src/ostriaviewer/core",
        "src/ostriaviewer/cameras/genicam",
        "src/ostriaviewer/cameras/pool",
    ],
    "src/ostriaviewer/cameras/pool": ["src/ostria", "src/ostriaviewer/core"],
    "src/ostriaviewer/cameras/emulation": [
        "src/ostria",
        "src/ostriaviewer/core",
        "src/ostriaviewer/cameras/genicam",
        "src/ostriaviewer/cameras/pool",
        "src/ostriaviewer/cameras/emulation/renderer",
    ],
    "src/ostriaviewer/cameras/emulation/renderer": ["src/ostria"],
    "src/ostriaviewer/cameras/emulation/served": [
        "src/ostria",
        "src/ostriaviewer/core",
        "src/ostriaviewer/cameras/genicam",
        "src/ostriaviewer/cameras/pool",
        "src/ostriaviewer/cameras/emulation",
        "src/ostriaviewer/cameras/emulation/renderer",
    ],
    "src/ostriaviewer/app": [
        "src/ostria",
        "src/ostriaviewer/core",
        "src/ostriaviewer/saving",
        "src/ostriaviewer/cameras/genicam",
        "src/ostriaviewer/cameras/genicam/devices",
        "src/ostriaviewer/cameras/pool",
        "src/ostriaviewer/cameras/emulation",
        "src/ostriaviewer/cameras/emulation/served",
        "src/ostriaviewer/cameras/emulation/renderer",
    ],
    f"{PLUGIN}/internal/model/calibration": [],
    f"{PLUGIN}/internal/model/chart": [
        "src/ostria",
        "src/ostriaviewer/core",
        f"{PLUGIN}/internal/model/calibration",
    ],
    f"{PLUGIN}/internal/model/report": [
        "src/ostria",
        "src/ostriaviewer/core",
        "src/ostriaviewer/saving",
        f"{PLUGIN}/internal/model/calibration",
        f"{PLUGIN}/internal/model/chart",
    ],
    f"{PLUGIN}/internal/model/model": [
        "src/ostria",
        "src/ostriaviewer/core",
        f"{PLUGIN}/internal/model/calibration",
        f"{PLUGIN}/internal/model/chart",
        f"{PLUGIN}/internal/model/report",
    ],
    f"{PLUGIN}/internal/ui": [
        "src/ostria",
        "src/ostriaviewer/core",
        f"{PLUGIN}/internal/model/calibration",
        f"{PLUGIN}/internal/model/chart",
        f"{PLUGIN}/internal/model/model",
        f"{PLUGIN}/internal/model/report",
    ],
    PLUGIN: [
        "src/ostriaviewer/core",
        f"{PLUGIN}/internal/model/model",
        f"{PLUGIN}/internal/ui",
    ],
    "src/tools/colorcalibrate": [
        "src/ostria",
        "src/ostriaviewer/core",
        "src/ostriaviewer/cameras/genicam",
        "src/ostriaviewer/cameras/genicam/devices",
        "src/ostriaviewer/cameras/pool",
        "src/ostriaviewer/cameras/emulation",
        "src/ostriaviewer/cameras/emulation/served",
        "src/ostriaviewer/cameras/emulation/renderer",
        f"{PLUGIN}/internal/model/calibration",
        f"{PLUGIN}/internal/model/chart",
        f"{PLUGIN}/internal/model/model",
        f"{PLUGIN}/internal/model/report",
    ],
}

# Libraries by the form of their headers. A layer that a library's row does not name may not
# include it; a row's suffixes narrow that to certain files.
QT = re.compile(r"Q[A-Z]\w*(/\w+)?|Qt\w+|qt\w+\.h")
DLIB = re.compile(r"dlib/.*")
OPENCV = re.compile(r"opencv2/.*")
PNG = re.compile(r"png\.h|zlib\.h")
ARAVIS = re.compile(r"arv.*\.h|glib.*|gio/.*|gobject/.*")
ENGINE = f"{PLUGIN}/internal/model/calibration"
WITHOUT_QT = ["src/ostria", "src/ostriaviewer/cameras/emulation/renderer", ENGINE]
LIBRARIES = [
    ("Qt", QT, [layer for layer in LAYERS if layer not in WITHOUT_QT], (".h", ".cpp")),
    ("dlib", DLIB, [f"{ENGINE}/dlibmatrix.h"], (".h",)),
    ("OpenCV", OPENCV, ["src/ostria"], (".cpp",)),
    ("libpng", PNG, ["src/ostriaviewer/saving"], (".cpp",)),
    (
        "Aravis",
        ARAVIS,
        ["src/ostriaviewer/cameras/genicam", "src/ostriaviewer/cameras/genicam/devices"],
        (".cpp",),
    ),
]
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)


def layer_of(path):
    """The layer a file belongs to, None outside of all."""
    below = [layer for layer in LAYERS if path.startswith(layer + "/")]
    return max(below, key=len) if below else None


def _library_violation(path, layer, header):
    for name, form, places, suffixes in LIBRARIES:
        if not form.fullmatch(header):
            continue
        if path in places:
            return None
        if layer in places and path.endswith(suffixes):
            return None
        return f"{path}: may not include {name} (<{header}>)"
    return None


def _own_violation(path, layer, header, owners):
    targets = owners.get(Path(header).name, set())
    if not targets or layer in targets:
        return None
    if targets & set(LAYERS[layer]):
        return None
    return f'{path}: {layer} may not include "{header}" of {", ".join(sorted(targets))}'


def violations(root, files):
    """All includes among files (paths relative to root) that the table does not allow."""
    owners = {}
    for path in files:
        layer = layer_of(path)
        if layer and path.endswith(".h"):
            owners.setdefault(Path(path).name, set()).add(layer)

    found = []
    for path in files:
        layer = layer_of(path)
        if path.startswith("src/") and path.endswith((".h", ".cpp")) and not layer:
            found.append(f"{path}: lies in no layer of the table in scripts/layers.py")
        if not layer or not path.endswith((".h", ".cpp")):
            continue
        text = (Path(root) / path).read_text(encoding="utf-8")
        for bracket, header in INCLUDE.findall(text):
            if bracket == "<":
                problem = _library_violation(path, layer, header)
            else:
                problem = _own_violation(path, layer, header, owners)
            if problem:
                found.append(problem)
    return found
