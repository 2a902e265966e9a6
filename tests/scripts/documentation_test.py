# SPDX-License-Identifier: Apache-2.0
"""Each link of the documentation that is installed leads to a file that is installed, too.

usage: documentation_test.py CMAKE BUILD
"""

import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

CMAKE, BUILD = sys.argv.pop(1), sys.argv.pop(1)
LINK = re.compile(r"\]\(([^)\s]+)\)")


def targets(page):
    links = (link.partition("#")[0] for link in LINK.findall(page.read_text(encoding="utf-8")))
    return [link for link in links if link and "://" not in link]


class DocumentationTest(unittest.TestCase):
    def test_links_lead_to_what_is_installed(self):
        with tempfile.TemporaryDirectory() as prefix:
            command = [CMAKE, "--install", BUILD, "--prefix", prefix]
            command += ["--component", "documentation"]
            subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
            pages = list(Path(prefix, "share/doc/ostria").rglob("*.md"))
            self.assertIn("README.md", [page.name for page in pages])
            broken = [
                f"{page.relative_to(prefix)}: {target}"
                for page in pages
                for target in targets(page)
                if not (page.parent / target).exists()
            ]
        self.assertEqual(broken, [])


if __name__ == "__main__":
    unittest.main()
