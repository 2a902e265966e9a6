# SPDX-License-Identifier: Apache-2.0
"""The layer check finds what the table forbids and lets pass what it allows."""

import sys
import tempfile
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts"))
import layers  # noqa: E402

CHART = f"{layers.PLUGIN}/internal/model/chart"
ENGINE = f"{layers.PLUGIN}/internal/model/calibration"


class LayersTest(unittest.TestCase):
    def violations(self, tree):
        with tempfile.TemporaryDirectory() as root:
            for path, text in tree.items():
                file = Path(root) / path
                file.parent.mkdir(parents=True, exist_ok=True)
                file.write_text(text, encoding="utf-8")
            return layers.violations(root, list(tree))

    def test_allows_a_layer_below(self):
        tree = {"src/ostria/a.h": "", f"{CHART}/b.cpp": '#include "a.h"\n#include <QImage>\n'}
        self.assertEqual(self.violations(tree), [])

    def test_finds_an_include_of_a_layer_above(self):
        tree = {f"{CHART}/b.h": "", "src/ostria/a.cpp": '#include "b.h"\n'}
        self.assertEqual(len(self.violations(tree)), 1)

    def test_finds_qt_in_the_engine_and_in_the_sdk_layer(self):
        for folder in (ENGINE, "src/ostria"):
            with self.subTest(folder=folder):
                self.assertEqual(len(self.violations({f"{folder}/a.cpp": "#include <QtGlobal>\n"})), 1)
                self.assertEqual(len(self.violations({f"{folder}/a.h": "#include <QString>\n"})), 1)

    def test_finds_opencv_outside_of_the_sdk_layers_sources(self):
        include = "#include <opencv2/core.hpp>\n"
        self.assertEqual(self.violations({"src/ostria/a.cpp": include}), [])
        self.assertEqual(len(self.violations({"src/ostria/a.h": include})), 1)
        self.assertEqual(len(self.violations({f"{CHART}/a.cpp": include})), 1)

    def test_finds_dlib_outside_of_its_one_header(self):
        include = "#include <dlib/matrix.h>\n"
        self.assertEqual(self.violations({f"{ENGINE}/dlibmatrix.h": include}), [])
        self.assertEqual(len(self.violations({f"{ENGINE}/a.h": include})), 1)
        self.assertEqual(len(self.violations({f"{CHART}/a.cpp": include})), 1)

    def test_finds_aravis_outside_of_the_camera_sources(self):
        include = "#include <arv.h>\n"
        self.assertEqual(self.violations({"src/ostriaviewer/cameras/genicam/a.cpp": include}), [])
        self.assertEqual(len(self.violations({"src/ostriaviewer/app/a.cpp": include})), 1)

    def test_finds_a_source_that_lies_in_no_layer(self):
        self.assertEqual(len(self.violations({"src/elsewhere/a.cpp": ""})), 1)

    def test_finds_an_include_with_a_path(self):
        tree = {f"{CHART}/b.h": "", "src/ostria/a.cpp": '#include "../x/b.h"\n'}
        self.assertEqual(len(self.violations(tree)), 1)


if __name__ == "__main__":
    unittest.main()
