"""What cupsd's page log adds up, for jobs of every kind: lp, cupsd, its filters, this filter.

usage: page_log.py FILTER PPD
"""

import os
import re
import subprocess
import sys
import unittest

from private_cups import PrivateCups, Printer, wait_for, without_collate

FILTER, PPD = sys.argv[1:]
GROFF = b".ps 24\n" + b"\n.bp\n".join(b"Page %d" % n for n in (1, 2, 3)) + b"\n"
IMAGE = b"P3 2 2 255 " + b"0 0 0 255 0 0 " * 2

# Document, options, the pages and the copies of each that are to be logged.
TRUTH = [
    ("one.ps", "", 1, 1), ("one.pdf", "", 1, 1), ("three.ps", "", 3, 1), ("three.pdf", "", 3, 1),
    ("three.txt", "", 3, 1), ("image.ppm", "", 1, 1),
    ("three.pdf", "sides=two-sided-long-edge", 3, 1), ("three.ps", "sides=two-sided-long-edge", 3, 1),
    ("three.pdf", "number-up=2", 2, 1), ("three.ps", "number-up=2", 2, 1), ("three.ps", "number-up=4", 1, 1),
    ("three.ps", "copies=3", 3, 3), ("three.ps", "copies=3 Collate=True", 3, 3),
    ("three.ps", "copies=3 collate=true sides=two-sided-long-edge", 3, 3),
    ("three.pdf", "copies=3", None, 9), ("three.pdf", "copies=3 Collate=True", None, 9),
    ("three.txt", "copies=2", None, 6), ("image.ppm", "copies=4", None, 4),
    ("three.ps", "page-ranges=2-3", 2, 1), ("three.pdf", "page-ranges=2-3", 2, 1),
    ("three.pdf", "page-ranges=1,3", 2, 1),
    ("three.ps", "outputorder=reverse", 3, 1), ("three.pdf", "outputorder=reverse", 3, 1),
]
# A printer that can't collate gets each copy by itself.
TRUTH_WITHOUT_COLLATE = [
    ("three.ps", "copies=3", 3, 3), ("three.ps", "copies=3 Collate=True", 9, 1),
    ("three.ps", "copies=3 collate=true sides=two-sided-long-edge", 12, 1),  # with the blank side of each copy
    ("three.pdf", "copies=3 Collate=True", None, 9),
]


def made(*command, data=b""):
    return subprocess.run(command, input=data, check=True, capture_output=True).stdout


class PageLog(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.printer = Printer()
        cls.cups = cls.enterClassContext(PrivateCups(FILTER))
        cls.cups.add_queue("office", PPD, cls.printer)
        cls.cups.add_queue("uncollated", without_collate(PPD, cls.cups.path("uncollated.ppd")), cls.printer)
        pdf = lambda source: made("gs", "-q", "-sDEVICE=pdfwrite", "-o", "-", "-", data=source)
        three, one = made("groff", "-Tps", data=GROFF), made("groff", "-Tps", data=b"Page\n")
        for name, content in (("one.ps", one), ("three.ps", three), ("one.pdf", pdf(one)), ("three.pdf", pdf(three)),
                              ("three.txt", b"\f\n".join(b"Page %d" % n for n in (1, 2, 3))), ("image.ppm", IMAGE)):
            with open(cls.cups.path(name), "wb") as file:
                file.write(content)
            os.chmod(file.name, 0o644)

    def logged(self, job):
        """The pages that were reported of the job, each with its copies; what cupsd made of them is their sum."""
        reports = [re.search(r"PAGE: (\d+) (\d+)$", line) for line in self.cups.log_of(job)]
        pages = [(int(report[1]), int(report[2])) for report in reports if report]
        rows = [row.split() for row in self.cups.text("page_log").splitlines()]
        self.assertEqual([row[3:] for row in rows if row[1] == job.rsplit("-", 1)[1]],
                         [["total", str(sum(copies for _, copies in pages))]])
        return pages

    def test_truth(self):
        rows = [("office", *row) for row in TRUTH] + [("uncollated", *row) for row in TRUTH_WITHOUT_COLLATE]
        jobs = [self.cups.lp(queue, self.cups.path(name), "Report", options.split())
                for queue, name, options, _, _ in rows]
        for job, (queue, name, options, pages, copies) in zip(jobs, rows):
            with self.subTest(queue=queue, document=name, options=options):
                self.cups.wait_done(job)
                logged = self.logged(job)
                if pages is None:  # who makes the copies of these is the other filters' affair; the sum is not
                    self.assertEqual(sum(copies for _, copies in logged), copies, logged)
                else:
                    self.assertEqual(logged, [(page, copies) for page in range(1, pages + 1)])

    def test_cancelled_job_has_the_pages_that_were_sent(self):
        document = self.cups.path("long.ps")
        pages = 160
        with open(document, "w") as file:
            file.write(f"%!PS-Adobe-3.0\n%%Pages: {pages}\n%%EndComments\n%%EndProlog\n")
            for page in range(1, pages + 1):
                file.write(f"%%Page: {page} {page}\n" + ("% " + "filler " * 14 + "\n") * 1000 + "showpage\n")
            file.write("%%Trailer\n%%EOF\n")
        os.chmod(document, 0o644)
        self.addCleanup(self.printer.ready.set)
        self.printer.ready.clear()
        index = len(self.printer.jobs)
        job = self.cups.lp("office", document, "Report")
        wait_for(lambda: len(self.printer.jobs) > index and b"%%Page: 1 1" in self.printer.jobs[index], "pages")
        self.cups.run("cancel", job)
        self.printer.ready.set()
        wait_for(lambda: self.printer.ended > index, "the job's last byte")
        self.cups.wait_done(job)
        sent = self.printer.jobs[index].split(b"\n").count(b"showpage")
        self.assertLess(sent, pages)
        self.assertEqual(self.logged(job), [(page, 1) for page in range(1, sent + 1)])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
