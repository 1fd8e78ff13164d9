"""Runs the cases of data/jobs/*.jobs, whole jobs with their expected output, through the filter as CUPS runs it.
CONTRIBUTING.md has their form.

usage: job_cases.py FILTER FILTER-THAT-KEEPS-A-COPY SAMPLE-PPDS TEST-DATA [unittest arguments, such as job_names]
"""

import os
import re
import socket
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

from blobs import Blob
from content import ENTER, PPD_HEAD, TICKET, TRAILER, UEL, content_line, line_of, unescape

FILTER, COPYING_FILTER = sys.argv[1:3]
SAMPLES, DATA = map(Path, sys.argv[3:5])
EXPLAIN = os.environ.get("ORVANE_JOB")  # the tool, which must know every line
DEFAULTS = {b"ppd": b"none", b"user": b"taro", b"title": b"Report", b"copies": b"1",
            b"environment": b"LANG=C TZ=JST-9 TMPDIR={folder}"}
TOKEN = re.compile(rb"""(?:\\\{\d+ .*?\}|\{blob:[^}]*\}|'[^']*'|"[^"]*"|\S)+""")
CHOICE = re.compile(rb"\[([^][]*\|[^][]*)\]")


def key_of(line):
    """What tells the lines of a header apart: what precedes the equals sign in the token of the line."""
    found = re.match(rb'@PJL (?:SET|(COMMENT) PRINTJOBINFO) (?:JOBATTR=")?(@?\w+)', line)
    return found and (b":" if found[1] else b"") + found[2]


class Content(list):
    """Pairs of a key and a line, and places for lines: the keys that belong there (none: all others) and no line."""

    def put(self, key, line):
        own = [i for i, (item, _) in enumerate(self) if item == key]
        if own:  # in place of the plain job's line; what follows with the same key goes after it
            self[own[0]:own[-1] + 1] = [[[key], b""]]
        places = {i: item for i, (item, _) in enumerate(self) if isinstance(item, list)}
        place = [i for i in places if key in places[i]] or [i for i in places if not places[i]]
        self.insert(place[0], [None, line])

    def remove(self, key):
        self[:] = [item for item in self if item[0] != key]

    def __bytes__(self):
        return b"".join(line for _, line in self)


def rows_of(given, expected):
    """A row for each alternative of [a|b]; on the right the n-th [c|d] goes with the n-th on the left, and all of them
    with a single one."""
    choices = [found[1].split(b"|") for found in CHOICE.finditer(given)]
    if not choices:
        yield given, expected
        return
    for i, value in enumerate(choices[0]):
        left = CHOICE.sub(lambda _: value, given, count=1)
        right = CHOICE.sub(lambda found: found[1].split(b"|")[i], expected, count=len(choices) > 1)
        yield from rows_of(left, right)


class JobFile:
    """What a file of cases says; it starts with what common.jobs says."""

    def __init__(self, path, common=None):
        kinds = ("ppds", "plains", "lines", "words", "defaults", "documents")
        for kind in kinds:
            setattr(self, kind, dict(getattr(common, kind)) if common else {})
        self.cases, self.like = [], dict(common.like) if common else {}
        self.defaults = self.defaults or {**DEFAULTS, b"options": [], b"document": Content()}
        self.read(path)

    def read(self, path):
        text = re.sub(rb"\\\n +", b"", path.read_bytes())  # an indented line goes on with the one before it,
        rows = re.sub(rb"\n +", b" ", text).split(b"\n")  # without a blank where that ends with a backslash
        case, content, table = self.defaults, None, None
        for row, following in zip(rows, rows[1:] + [b""]):
            word, _, argument = row.partition(b" ")
            if row.startswith(b"| "):
                line = content_line(argument)
                content.append([key_of(line), line])
            elif word == b"=":
                content.extend([key_of(line), line] for line in map(line_of, argument.split()))
            elif row == b"|":
                content.append([None, b"\n"])
            elif word == b"+":
                content.extend(self.lines[argument])
            elif word == b"?":
                content.append([argument.split(), b""])
            elif word == b"choice":  # an option of the PPD; the first value is the default
                name, *values = argument.split()
                text = b"*OpenUI *%s/%s: PickOne\n*Default%s: %s\n" % (name, name, name, values[0])
                text += b"".join(b'*%s %s/%s: ""\n' % (name, value, value) for value in values)
                content.append([None, text + b"*CloseUI: *%s\n" % name])
            elif b" -> " in row:
                left, right = row.split(b" # ")[0].split(b" -> ")
                for given, expected in rows_of(left, right):
                    if word in (b"line", b"feature"):
                        self.append(case, given)
                        self.expect(case, expected)
                    else:
                        self.cases.append({**self.defaults, b"case": table + given})
                        self.give(self.cases[-1], table + given)
                        self.expect(self.cases[-1], expected)
            elif word == b"rows":
                table = argument + b" "
            elif word == b"word":
                name, _, meaning = argument.partition(b" ")
                self.words[name] = meaning
            elif word == b"case":
                self.cases.append(case := {**self.defaults, b"case": argument})
            elif word == b"lines":
                content = self.lines[argument] = Content()
            elif word == b"plain":
                content = self.plains[argument] = Content()
            elif word == b"ppd" and (b" like " in argument or following.startswith((b"|", b"+", b"choice"))):
                name, _, model = argument.partition(b" like ")
                content = self.ppds[name] = Content(self.ppds.get(model, []))
                self.like[name] = model
            elif word in (b"document", b"file", b"header", b"output", b"messages"):
                content = case[word] = Content([[None, argument]])
            elif word in (b"ticket", b"tickets", b"option"):
                for option in argument.split() if word == b"tickets" else [argument]:
                    case[b"options"] = case[b"options"] + [(b"" if word == b"option" else TICKET.encode()) + unescape(option)]
            elif word == b"given":
                self.give(case, argument)
            elif word == b"expect":
                self.expect(case, argument)
            elif word in DEFAULTS:
                case[word] = unescape(argument)
            elif row and word != b"#":
                raise ValueError(f"{path}: {row}")

    def tokens(self, text):
        for token in TOKEN.findall(text):
            name, equals, value = token.partition(b"=")
            if token in self.words:
                yield from self.tokens(self.words[token])
            else:
                yield self.words[name + equals] + value if name + equals in self.words else token

    def give(self, case, text):
        for token in self.tokens(text):
            name, _, value = token.partition(b"=")
            if name in DEFAULTS:
                case[name] = unescape(value)
            else:
                case[b"options"] = case[b"options"] + [(TICKET.encode() if b"Ticket" in name else b"") + unescape(token)]

    def append(self, case, row):
        """Appends a line to the case's document, which is empty at first."""
        if case[b"document"] is self.defaults[b"document"]:
            case[b"document"] = Content()
        word, _, text = row.partition(b" ")
        case[b"document"].append([None, content_line((b"%%BeginFeature: " if word == b"feature" else b"") + text)])

    def plain(self, ppd):
        while ppd not in self.plains:
            ppd = self.like.get(ppd) or b"legacy"
        return Content(self.plains[ppd])

    def expect(self, case, text):
        """Puts lines into the plain job's header, those with @PLACE into the document."""
        header = case.setdefault(b"header", self.plain(case[b"ppd"]))
        for token in self.tokens(text):
            name, _, place = token[1:].partition(b"@")
            if token.startswith(b"-"):
                header.remove(token[1:])
            elif token.startswith(b"+") and place:
                case[b"document"] = document = Content(case[b"document"])
                sent = case.setdefault(b"sent", bytes(document))
                document.put(place, bytes(self.lines[name]))
            elif token.startswith(b"+"):
                header.put(name, bytes(self.lines[name]))
            elif token != b"plain":
                header.put(re.match(rb"[@:]?\w*", token)[0], line_of(token))


class Jobs(unittest.TestCase):
    maxDiff = None
    lines = set()

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    @classmethod
    def explain(cls, job):
        """The tool must have words for every line. It gets those of the file's jobs in one job, at the end, unless a
        document's screen code says what lines there are."""
        header, _, document = job.partition(ENTER)
        if b"TSCR" in document or b"TCPR" in document:
            cls.show(job)
        else:
            cls.lines.update(line for line in header.replace(UEL, b"").splitlines(True) if line.startswith(b"@PJL "))

    @classmethod
    def show(cls, job):
        if EXPLAIN:
            shown = subprocess.run([EXPLAIN, "show", "--check"], input=job, capture_output=True)
            assert (shown.returncode, shown.stdout, shown.stderr) == (0, b"", b""), shown

    @classmethod
    def tearDownClass(cls):
        assert len(cls.lines) < 2000, "more than the tool looks at"
        cls.show(UEL + b"".join(sorted(cls.lines)) + ENTER + b"\x04" + TRAILER)

    def run_filter(self, *arguments, program=FILTER, document=b"", ppd=None, variables=DEFAULTS[b"environment"]):
        variables = variables.replace(b"{folder}", bytes(self.folder)).split()
        environment = {"PATH": "/usr/bin:/bin", **({"PPD": ppd} if ppd else {}),
                       **dict(variable.split(b"=", 1) for variable in variables),
                       **{name: value for name, value in os.environ.items() if name.endswith("SAN_OPTIONS")}}
        job = subprocess.run([program, b"1", *arguments], input=document, env=environment, capture_output=True)
        self.assertEqual(job.returncode, 0, job.stderr)
        return job

    def check(self, file, case):
        path = self.folder / "case.ppd"
        path.write_bytes(PPD_HEAD + bytes(file.ppds.get(case[b"ppd"], Content())))
        if case[b"ppd"].startswith(b"sample "):
            path = SAMPLES / (case[b"ppd"][7:].decode() + ".ppd")
        arguments = [case[b"user"], case[b"title"], case[b"copies"], b" ".join(case[b"options"])]
        if b"file" in case:
            arguments.append(bytes(case[b"file"]))
            if not arguments[-1].startswith(b"/"):
                arguments[-1] = self.folder / "document.ps"
                arguments[-1].write_bytes(bytes(case[b"file"]))
        document = bytes(case[b"document"])
        job = self.run_filter(*arguments, document=case.get(b"sent", document),
                              ppd=None if case[b"ppd"] == b"none" else path, variables=case[b"environment"])
        self.explain(job.stdout)
        expected = bytes(case[b"output"]) if b"output" in case else (
            bytes(case.get(b"header") or file.plain(case[b"ppd"])) + document + bytes(file.lines[b"trailer"]))
        sent_of_name = 32 if b"STRINGCODESET=UTF8" in expected else 96
        expected = expected.replace(b"{host}", socket.gethostname().encode()[:sent_of_name])
        parts = re.split(rb"\{blob:(.*?)\}", expected)
        found = re.fullmatch(b"([A-Za-z0-9+/=]+)".join(map(re.escape, parts[::2])), job.stdout)
        if found:
            self.assertEqual([Blob(text).password for text in found.groups()], parts[1::2])
        else:
            self.assertEqual(job.stdout.split(b"\n"), expected.split(b"\n"))
        if b"messages" in case:
            self.assertEqual(job.stderr, bytes(case[b"messages"]))


class job_copy(Jobs):
    def test_lies_beside_the_output_when_asked_for(self):
        self.run_filter("taro", "Report", "1", "")
        self.assertEqual(list(self.folder.iterdir()), [])
        self.folder = self.folder / "100%s"
        self.folder.mkdir()
        now = time.time()  # a longer file has the copy's name already, whichever second of the next minutes that is
        for second in range(200):
            name = time.strftime("wq%Y%m%d%H%M%S.job", time.gmtime(now + 9 * 3600 + second))
            (self.folder / name).write_bytes(b"old" * 1000)
        job = self.run_filter("taro", "Report", "1", "", program=COPYING_FILTER, document=b"ep\n")
        copy, = (path for path in self.folder.iterdir() if not path.read_bytes().startswith(b"old"))
        self.assertEqual(copy.read_bytes(), job.stdout)
        self.assertEqual(copy.stat().st_mode & 0o7777, 0o676)
        self.assertEqual(len(list(self.folder.iterdir())), 200)


def define_classes():
    """One class a file, job_FILE, one test a case."""
    common = JobFile(DATA / "jobs" / "common.jobs")
    for path in DATA.glob("jobs/*.jobs"):
        file, tests = JobFile(path, common), {}
        for case in file.cases:
            name = "test_" + re.sub(r"\W+", "_", case[b"case"].decode(errors="replace"))
            if name in tests:  # names differ in letters only
                name += f"_{len(tests)}"
            tests[name] = lambda self, file=file, case=case: self.check(file, case)
        globals()["job_" + path.stem] = type("job_" + path.stem, (Jobs,), {"lines": set(), **tests})


if __name__ == "__main__":
    define_classes()
    unittest.main(argv=[sys.argv[0], *sys.argv[5:]])
