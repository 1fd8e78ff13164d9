"""Ghostscript as the printer: the PostScript of captured jobs gives the pages of the document that was sent.

usage: rendered_jobs.py ORVANE-JOB DOCUMENT FOLDER-OF-JOBS
"""

import os
import subprocess
import sys
import tempfile
import unittest

TOOL, DOCUMENT, JOBS = sys.argv[1:4]


class RenderedJobs(unittest.TestCase):
    def render(self, document):
        """The pages of a PostScript file as PPM pictures, 36 dots per inch."""
        with tempfile.TemporaryDirectory() as folder:
            done = subprocess.run(["gs", "-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-sDEVICE=ppmraw", "-r36",
                                   "-o", os.path.join(folder, "%03d.ppm"), document],
                                  stdin=subprocess.DEVNULL, capture_output=True, text=True, timeout=300)
            self.assertEqual((done.returncode, done.stdout, done.stderr), (0, "", ""))
            pages = []
            for name in sorted(os.listdir(folder)):
                with open(os.path.join(folder, name), "rb") as file:
                    pages.append(file.read())
            return pages

    def test_jobs_give_the_pages_of_their_document(self):
        expected = self.render(DOCUMENT)
        self.assertEqual(len(expected), 4)
        for page in expected:
            self.assertIn(b"\n298 421\n255\n", page[:100])  # A4
            self.assertGreater(len(page) - page.count(b"\xff"), 1000)  # has ink
        for queue in ("office", "production"):
            with self.subTest(queue), tempfile.NamedTemporaryFile(suffix=".ps") as postscript:
                job = os.path.join(JOBS, queue + ".job")
                shown = subprocess.run([TOOL, "show", "--postscript", postscript.name, job], check=True,
                                       capture_output=True, text=True).stdout
                self.assertIn(job + ": a whole job", shown)
                pages = self.render(postscript.name)
                self.assertEqual([page == wanted for page, wanted in zip(pages, expected, strict=True)], [True] * 4)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
