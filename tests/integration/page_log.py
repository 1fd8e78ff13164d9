"""What cupsd's page log adds up, for jobs of every kind: lp, cupsd, its filters, this filter.

usage: page_log.py FILTER PPD
"""

import os
import subprocess
import sys
import unittest

from private_cups import CupsJobs, without_collate

PPD = sys.argv[2]
GROFF = b".ps 24\n" + b"\n.bp\n".join(b"Page %d" % n for n in (1, 2, 3)) + b"\n"
IMAGE = b"P3 2 2 255 " + b"0 0 0 255 0 0 " * 2

# Queue, document, options, the pages and the copies of each that are to be logged. Who makes the copies of a PDF or a
# picture is the other filters' affair: their sum counts.
TRUTH = [
    ("office", "one.pdf", "", 1, 1), ("office", "three.txt", "", 3, 1), ("office", "image.ppm", "copies=4", None, 4),
    ("office", "three.ps", "sides=two-sided-long-edge", 3, 1), ("office", "three.pdf", "number-up=2", 2, 1),
    ("office", "three.ps", "number-up=4", 1, 1), ("office", "three.ps", "copies=3", 3, 3),
    ("office", "three.ps", "copies=3 collate=true sides=two-sided-long-edge", 3, 3),
    ("office", "three.pdf", "copies=3 Collate=True", None, 9), ("office", "three.ps", "page-ranges=2-3", 2, 1),
    ("office", "three.pdf", "page-ranges=1,3", 2, 1), ("office", "three.ps", "outputorder=reverse", 3, 1),
    # A printer that can't collate gets each copy by itself, with the blank side of each.
    ("uncollated", "three.ps", "copies=3", 3, 3), ("uncollated", "three.ps", "copies=3 Collate=True", 9, 1),
    ("uncollated", "three.ps", "copies=3 collate=true sides=two-sided-long-edge", 12, 1),
]


def made(*command, data=b""):
    return subprocess.run(command, input=data, check=True, capture_output=True).stdout


class PageLog(CupsJobs):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.cups.add_queue("office", PPD, cls.printer)
        cls.cups.add_queue("uncollated", without_collate(PPD, cls.cups.path("uncollated.ppd")), cls.printer)
        pdf = lambda source: made("gs", "-q", "-sDEVICE=pdfwrite", "-o", "-", "-", data=source)
        three, one = made("groff", "-Tps", data=GROFF), made("groff", "-Tps", data=b"Page\n")
        for name, content in (("three.ps", three), ("one.pdf", pdf(one)), ("three.pdf", pdf(three)),
                              ("three.txt", b"\f\n".join(b"Page %d" % n for n in (1, 2, 3))), ("image.ppm", IMAGE)):
            with open(cls.cups.path(name), "wb") as file:
                file.write(content)
            os.chmod(file.name, 0o644)

    def test_truth(self):
        jobs = [self.cups.lp(queue, self.cups.path(name), "Report", options.split())
                for queue, name, options, _, _ in TRUTH]
        for job, (queue, name, options, pages, copies) in zip(jobs, TRUTH):
            with self.subTest(queue=queue, document=name, options=options):
                self.cups.wait_done(job)
                logged = self.logged(job)
                if pages is None:
                    self.assertEqual(sum(copies for _, copies in logged), copies, logged)
                else:
                    self.assertEqual(logged, [(page, copies) for page in range(1, pages + 1)])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
