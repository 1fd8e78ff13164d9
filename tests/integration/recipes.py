"""Does what the documents say, command by command, and finds in the printer's jobs what they say comes out.

usage: recipes.py FILTER PPD-FOLDER SAMPLE DOCUMENT...
A block of commands is run, one that begins with *PPD-Adobe is the PPD of the commands after it, and every line of any
other block after a job must be in it; "..." stands for anything.
"""

import os
import re
import shutil
import subprocess
import sys
import unittest

from private_cups import BOUND, PrivateCups, Printer, wait_for

FILTER, PPDS, SAMPLE, *DOCUMENTS = sys.argv[1:]
COMMAND = ("lp ", "lpadmin ", "lpoptions ", "cupstestppd ")


class Recipes(unittest.TestCase):
    maxDiff = None

    def blocks(self, path):
        with open(path, encoding="utf-8") as file:
            text = file.read()
        for block in re.findall(r"^\n((?:    .*\n)+(?:\n(?:    .*\n)+)*)", text, re.M):
            for part in re.split("\n\n", block):
                yield re.sub("^    ", "", part.strip("\n"), flags=re.M)

    def follow(self, document):
        self.printer = Printer()
        with PrivateCups(FILTER, web=True) as cups:
            shutil.copy(SAMPLE, cups.path("report.ps"))
            os.chmod(cups.path("report.ps"), 0o644)
            jobs = 0
            for block in self.blocks(document):
                with self.subTest(os.path.basename(document), block=block):
                    if block.startswith("*PPD-Adobe"):
                        with open(cups.path("printer.ppd"), "w", encoding="utf-8") as file:
                            file.write(block + "\n")
                    elif block.startswith(COMMAND):
                        for command in block.splitlines():
                            said = self.run_command(cups, command)
                            jobs += command.startswith("lp ")
                    elif jobs:
                        self.check_job(cups, block, said, jobs)
            self.assertGreater(jobs, 2)

    def run_command(self, cups, command):
        command = command.replace("socket://192.0.2.7", self.printer.uri)
        if "office.ppd" in command:
            command = command.replace("office.ppd", os.path.join(PPDS, "office.ppd"))
        done = subprocess.run(command, shell=True, cwd=cups.root, env={**cups.environment, "CUPS_USER": "taro"},
                              capture_output=True, text=True, timeout=BOUND)
        # CUPS calls every PPD deprecated.
        said = re.sub("^lpadmin: Printer drivers are deprecated.*\n", "", done.stderr)
        self.assertEqual((done.returncode, said), (0, ""), done.stdout)
        if found := re.match("request id is (.*) \\(", done.stdout):
            wait_for(lambda: self.printer.ended == int(found[1].rsplit("-", 1)[1]), f"the last byte of {found[1]}")
            cups.wait_done(found[1])
        return done.stdout

    def check_job(self, cups, block, said, jobs):
        job = self.printer.jobs[-1].decode("latin-1") + said + cups.text("page_log")
        self.assertEqual(len(self.printer.jobs), jobs)
        for line in block.splitlines():
            pattern = "^" + re.escape(line).replace(r"\.\.\.", ".*") + "\r?$"
            self.assertRegex(job, re.compile(pattern, re.M))

    def test_documents(self):
        for document in DOCUMENTS:
            self.follow(document)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
