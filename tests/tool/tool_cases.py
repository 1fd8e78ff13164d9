"""Runs the cases of data/tool/*.cases: orvane-job is called, and its exit status and every line it prints are compared.
A case has jobs as files by name, in lines of content as data/jobs has them; the call names them.

usage: tool_cases.py ORVANE-JOB FILTER SAMPLE-PPDS TEST-DATA [unittest arguments, such as show]
"""

import json
import os
import re
import shlex
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

TOOL, FILTER = sys.argv[1:3]
SAMPLES, DATA = map(Path, sys.argv[3:5])
KEY = DATA / "keys" / "development-2048.pem"
CODES = {b"e": b"\x1b", b"r": b"\r", b"n": b"\n", b"\\": b"\\"}
UEL = b"\x1b%-12345X"
TICKET = "com.orvane.dlg.printsettings."


def unescape(text):
    def meaning(match):
        byte, count, repeated, code = match.groups()
        return bytes.fromhex(byte.decode()) if byte else int(count) * repeated if count else CODES[code]
    return re.sub(rb"\\(?:x(..)|\{(\d+) (.*?)\}|(.))", meaning, text)


def content_line(text):
    """A line of content: it ends with a line feed unless a single backslash ends it."""
    open_ended = (len(text) - len(text.rstrip(b"\\"))) % 2
    return unescape(text[:-1] if open_ended else text + b"\n")


def read_cases(path):
    """Each case is a dictionary: run, status, says, and the contents of its files by "file NAME"."""
    cases, content = [], None
    for row in path.read_bytes().split(b"\n"):
        word, _, argument = row.partition(b" ")
        if word == b"case":
            cases.append(case := {"case": argument.decode(), "status": 0, "files": {}, "says": bytearray()})
        elif word == b"file":
            content = case["files"][argument.decode()] = bytearray()
        elif word in (b"says", b"complains"):
            content = case[word.decode()] = bytearray()
        elif word == b"run":
            case["run"] = argument.decode()
        elif word == b"status":
            case["status"] = int(argument)
        elif word == b"|":
            content += content_line(row[2:])
        elif row and word != b"#":
            raise ValueError(f"{path}: {row}")
    return cases


class Tool(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def run_tool(self, *arguments, data=b"", status=0, **environment):
        sanitizers = {name: value for name, value in os.environ.items() if name.endswith("SAN_OPTIONS")}
        done = subprocess.run([TOOL, *arguments], input=data, cwd=self.folder, capture_output=True, timeout=300,
                              env={"PATH": "/usr/bin:/bin", "LANG": "C", **sanitizers, **environment})
        self.assertEqual(done.returncode, status, (done.stdout, done.stderr))
        return done

    def check(self, case):
        for name, content in case["files"].items():
            (self.folder / name).write_bytes(content)
        call = case["run"].format(key=KEY, samples=SAMPLES, ticket=TICKET)
        done = self.run_tool(*shlex.split(call), status=case["status"])
        self.assertEqual(done.stdout.decode().splitlines(), case["says"].decode().splitlines())
        self.assertEqual(done.stderr.decode().splitlines(), case.get("complains", b"").decode().splitlines())


def read_damaged():
    """Names for pieces of a job; then rows of a job and what the tool says of it."""
    names, rows = {}, []
    for row in (DATA / "tool" / "damaged.rows").read_bytes().splitlines():
        name, _, text = row.partition(b" = ")
        job, arrow, said = row.partition(b" => ")
        if arrow:
            rows.append((re.sub(rb"\{(\w+)\}", lambda match: names[match[1]], unescape(job)), said))
        elif not row.startswith(b"#"):
            names[name] = unescape(text)
    return names, rows


class damaged(Tool):
    def test_jobs_get_a_clear_line(self):
        for job, said in read_damaged()[1]:
            complaint = said.removeprefix(b"complains: ")
            with self.subTest(said):
                done = self.run_tool("show", data=job, status=2 if complaint != said else 0)
                told = done.stderr if complaint != said else done.stdout
                self.assertIn(complaint, told)
                self.assertNotIn(b"\x1b", told)
                if said == b"a whole job":
                    self.assertNotIn(b"Worth a look", told)
                if complaint == said:
                    shown = json.loads(self.run_tool("show", "--json", data=job).stdout)
                    self.assertEqual(shown["whole"], b": a whole job" in told)

    def test_every_cut_of_a_job_is_told(self):
        names = read_damaged()[0]
        job = b"@PJL SET JOBATTR=\"@DAID=4711\"\n".join([names[b"head"], names[b"enter"] + names[b"doc"] + names[b"end"]])
        self.assertNotIn(b"Worth a look", self.run_tool("show", data=job).stdout)
        for length in range(len(job)):
            done = subprocess.run([TOOL, "show"], input=job[:length], capture_output=True)
            self.assertEqual(done.returncode, 0 if done.stdout else 2)
            self.assertIn(b"standard input: ", done.stderr or done.stdout)
            self.assertTrue(done.stderr or b"Worth a look" in done.stdout, job[:length])

    def test_noise_is_read_to_its_end(self):
        noise = bytes(range(256)) * 40
        for job in (noise, UEL + noise, UEL + b"@PJL " + noise, UEL + b"@PJL ENTER LANGUAGE=POSTSCRIPT\n" + noise,
                    UEL + b"@PJL SET A=" + 9000 * b"@PJL SET B=\"", UEL + 9000 * b"@PJL SET A=\"\n",
                    UEL + b"@PJL SET JOBATTR=\"@DAID=" + 70000 * b"x" + b"\"\n"):
            for arguments in (["show"], ["show", "--json"], ["show", "--check"]):
                done = subprocess.run([TOOL, *arguments], input=job, capture_output=True, timeout=300)
                self.assertIn(done.returncode, (0, 1, 2))
                self.assertFalse(re.search(rb"[\0-\x09\x0b-\x1f\x7f]", done.stdout + done.stderr))
                if arguments[-1] == "--json" and done.returncode == 0:
                    json.loads(done.stdout)


def define_classes():
    """One class a file, named for it, one test a case."""
    for path in DATA.glob("tool/*.cases"):
        tests = {"test_" + re.sub(r"\W+", "_", case["case"]): lambda self, case=case: self.check(case)
                 for case in read_cases(path)}
        globals()[path.stem] = type(path.stem, (Tool,), tests)


if __name__ == "__main__":
    define_classes()
    unittest.main(argv=[sys.argv[0], *sys.argv[5:]])
