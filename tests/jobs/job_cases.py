"""Runs the cases of data/jobs/*.jobs, whole jobs with their expected output, through the filter as CUPS runs it.
CONTRIBUTING.md has their form.

usage: job_cases.py FILTER FILTER-THAT-KEEPS-A-COPY SAMPLE-PPDS TEST-DATA [unittest arguments, such as job_names]
"""

import base64
import hashlib
import hmac
import os
import re
import socket
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

FILTER, COPYING_FILTER = sys.argv[1:3]
SAMPLES, DATA = map(Path, sys.argv[3:5])
PRIVATE_KEY = DATA / "keys" / "development-2048.pem"
EXPLAIN = os.environ.get("ORVANE_JOB")  # the tool, which must know every line
PPD_HEAD = (b'*PPD-Adobe: "4.3"\n*FormatVersion: "4.3"\n*FileVersion: "1.0"\n*LanguageVersion: English\n'
            b'*LanguageEncoding: ISOLatin1\n')
TICKET = b"com.orvane.dlg.printsettings."
CODES = {b"e": b"\x1b", b"r": b"\r", b"n": b"\n", b"t": b"\t", b"\\": b"\\"}
DEFAULTS = {b"ppd": b"none", b"user": b"taro", b"title": b"Report", b"copies": b"1", b"options": b""}


def unescape(text):
    def meaning(match):
        byte, count, repeated, code = match.groups()
        return bytes.fromhex(byte.decode()) if byte else int(count) * repeated if count else CODES[code]
    return re.sub(rb"\\(?:x(..)|\{(\d+) (.*?)\}|(.))", meaning, text)


def content_line(text):
    """A line of content: it ends with a line feed unless a single backslash ends it."""
    open_ended = (len(text) - len(text.rstrip(b"\\"))) % 2
    return unescape(text[:-1] if open_ended else text + b"\n")


def read_cases(path, ppds, lines, defaults):
    """Adds a file's PPDs and lines; returns its cases. What stands before the first case goes to the defaults."""
    cases, case, content = [], defaults, None
    rows = path.read_bytes().split(b"\n")
    for row, following in zip(rows, rows[1:] + [b""]):
        if row.startswith((b"|", b"+ ")):
            content += content_line(row[2:]) if row[:1] == b"|" else lines[row[2:]]
            continue
        word, _, argument = row.partition(b" ")
        if word == b"case":
            cases.append(case := {**defaults, b"case": argument.decode()})
        elif word == b"lines":
            content = lines[argument] = bytearray()
        elif word == b"ppd" and following.startswith((b"|", b"+")):
            content = ppds[argument] = bytearray()
        elif word in (b"document", b"file", b"header", b"output", b"messages"):
            content = case[word] = bytearray(argument)
        elif word in (b"ticket", b"tickets", b"option"):
            for option in argument.split() if word == b"tickets" else [argument]:
                case[b"options"] += b" " + (b"" if word == b"option" else TICKET) + unescape(option)
        elif word in DEFAULTS:
            case[word] = unescape(argument)
        elif row and word != b"#":
            raise ValueError(f"{path}: {row}")
    return cases


def openssl(*arguments, data=b""):
    return subprocess.run(["openssl", *arguments], input=data, check=True, stdout=subprocess.PIPE).stdout


def opened(text):
    """The password in an encrypted blob, opened as the printer does it, with none of the filter's code."""
    blob = base64.b64decode(text, validate=True)
    sizes = b"".join(size.to_bytes(4, "little") for size in (len(blob) - 352, len(blob)))
    identifier = hashlib.sha256(openssl("pkey", "-in", PRIVATE_KEY, "-pubout", "-outform", "DER")).digest()
    if blob[:48] != b"\x08\x01" + sizes + b"\x01\0\0\0\0\0" + identifier:
        return f"no header of a blob: {blob[:48]}"
    secret = openssl("pkeyutl", "-decrypt", "-inkey", PRIVATE_KEY, "-pkeyopt", "rsa_padding_mode:oaep", "-pkeyopt",
                     "rsa_oaep_md:sha256", "-pkeyopt", "rsa_mgf1_md:sha256", data=blob[80:336])
    key = hmac.digest(secret, blob[48:80], "sha256")
    return openssl("enc", "-d", "-aes-256-cbc", "-K", key.hex(), "-iv", blob[336:352].hex(), data=blob[352:])


class Jobs(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def run_filter(self, *arguments, program=FILTER, document=b"", ppd=None):
        environment = {"PATH": "/usr/bin:/bin", "LANG": "C", "TMPDIR": self.folder, **({"PPD": ppd} if ppd else {}),
                       **{name: value for name, value in os.environ.items() if name.endswith("SAN_OPTIONS")}}
        job = subprocess.run([program, b"1", *arguments], input=document, env=environment, capture_output=True)
        self.assertEqual(job.returncode, 0, job.stderr)
        return job

    def check(self, case, ppds, lines):
        path = self.folder / "case.ppd"
        path.write_bytes(PPD_HEAD + ppds.get(case[b"ppd"], b""))
        if case[b"ppd"].startswith(b"sample "):
            path = SAMPLES / (case[b"ppd"][7:].decode() + ".ppd")
        arguments = [case[b"user"], case[b"title"], case[b"copies"], case[b"options"][1:]]
        if b"file" in case:
            arguments.append(bytes(case[b"file"]))
            if not case[b"file"].startswith(b"/"):
                arguments[-1] = self.folder / "document.ps"
                arguments[-1].write_bytes(case[b"file"])
        job = self.run_filter(*arguments, document=case[b"document"], ppd=None if case[b"ppd"] == b"none" else path)

        if EXPLAIN:
            shown = subprocess.run([EXPLAIN, "show", "--check"], input=job.stdout, capture_output=True)
            self.assertEqual((shown.returncode, shown.stdout, shown.stderr), (0, b"", b""))
        expected = case[b"output"] if b"output" in case else case[b"header"] + case[b"document"] + lines[b"trailer"]
        sent_of_name = 32 if b"STRINGCODESET=UTF8" in expected else 96
        expected = bytes(expected).replace(b"{host}", socket.gethostname().encode()[:sent_of_name])
        parts = re.split(rb"\{blob:(.*?)\}", expected)
        found = re.fullmatch(b"([A-Za-z0-9+/=]+)".join(map(re.escape, parts[::2])), job.stdout)
        if found:
            self.assertEqual([opened(blob) for blob in found.groups()], parts[1::2])
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
        job = self.run_filter("taro", "Report", "1", "", program=COPYING_FILTER, document=b"ep\n")
        copy, = self.folder.iterdir()
        self.assertEqual(copy.read_bytes(), job.stdout)
        self.assertEqual(copy.stat().st_mode & 0o7777, 0o676)
        self.assertRegex(copy.name, r"^wq2\d{13}\.job$")


def define_classes():
    """One class a file, job_FILE, one test a case."""
    ppds, lines, defaults = {}, {}, dict(DEFAULTS)
    read_cases(DATA / "jobs" / "common.jobs", ppds, lines, defaults)
    for path in DATA.glob("jobs/*.jobs"):
        own_ppds, own_lines, tests = dict(ppds), dict(lines), {}
        for case in read_cases(path, own_ppds, own_lines, dict(defaults)):
            name = "test_" + re.sub(r"\W+", "_", case[b"case"])
            assert name not in tests, name
            tests[name] = (
                lambda self, case=case, ppds=own_ppds, lines=own_lines: self.check(case, ppds, lines))
        globals()["job_" + path.stem] = type("job_" + path.stem, (Jobs,), tests)


if __name__ == "__main__":
    define_classes()
    unittest.main(argv=[sys.argv[0], *sys.argv[5:]])
