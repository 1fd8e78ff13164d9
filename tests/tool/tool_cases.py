"""Runs the cases of data/tool/*.cases: orvane-job is called, and its exit status and every line it prints are compared.
A case has jobs as files by name, in lines of content as data/jobs has them; the call names them.

usage: tool_cases.py ORVANE-JOB FILTER SAMPLE-PPDS TEST-DATA [unittest arguments, such as show]
"""

import base64
import json
import os
import pty
import re
import shlex
import subprocess
import sys
import tempfile
import termios
import time
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parents[1] / "jobs"))
from content import ENTER, TICKET, TRAILER, UEL, content_line, line_of, unescape  # noqa: E402

TOOL, FILTER = sys.argv[1:3]
SAMPLES, DATA = map(Path, sys.argv[3:5])
KEY = DATA / "keys" / "development-2048.pem"
SOURCES = DATA.parents[1]
HEAD = UEL + b"@PJL JOB MODE=PRINTER\r\n"


def read_cases(path):
    """Each case is a dictionary: run, status, says, and its files by name; those before the first case are for all."""
    cases, content, shared = [], None, {}
    for row in re.sub(rb"\n +", b" ", path.read_bytes()).split(b"\n"):  # an indented line goes on with the one before
        word, _, argument = row.partition(b" ")
        if word == b"case":
            cases.append(case := {"case": argument.decode(), "status": 0, "files": dict(shared), "says": bytearray()})
        elif word == b"file":
            content = (case["files"] if cases else shared)[argument.decode()] = bytearray()
        elif word == b"says":
            content = case["says"]
        elif word == b"run":
            case["run"] = argument.decode()
        elif word == b"status":
            case["status"] = int(argument)
        elif word == b"|":
            content += content_line(argument)
        elif word == b"=":
            content += b"".join(map(line_of, argument.split()))
        elif row and word != b"#":
            raise ValueError(f"{path}: {row}")
    return cases


class Tool(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def run_tool(self, *arguments, data=b"", status=0, output=subprocess.PIPE, **environment):
        """What the tool says, on standard output or, where it fails, as an error."""
        sanitizers = {name: value for name, value in os.environ.items() if name.endswith("SAN_OPTIONS")}
        done = subprocess.run([TOOL, *arguments], input=data, cwd=self.folder, stdout=output, stderr=subprocess.PIPE,
                              timeout=300, env={"PATH": "/usr/bin:/bin", "LANG": "C", **sanitizers, **environment})
        said = done.stdout or b""
        if status is not None:
            self.assertEqual((done.returncode, said if status == 2 else done.stderr), (status, b""), (arguments, done))
        return done.stderr if done.returncode == 2 else said

    def check(self, case):
        for name, content in case["files"].items():
            (self.folder / name).write_bytes(content)
        call = case["run"].format(key=KEY, samples=SAMPLES, ticket=TICKET)
        with tempfile.TemporaryDirectory() as temporary:
            said = self.run_tool(*shlex.split(call), status=case["status"], TMPDIR=temporary)
            self.assertEqual(os.listdir(temporary), [])
        self.assertEqual(said.decode().splitlines(), case["says"].decode().splitlines())


def read_damaged():
    """Names for pieces of a job; then rows of a job and what the tool says of it."""
    names, rows = {}, []

    def piece(text):
        return re.sub(rb"\{(\w+)\}", lambda match: names[match[1]], unescape(text))
    for row in (DATA / "tool" / "damaged.rows").read_bytes().splitlines():
        name, _, text = row.partition(b" = ")
        job, *said = row.split(b" => ")
        if said:
            rows.append((piece(job), said))
        elif not row.startswith(b"#"):
            names[name] = piece(text)
    return names, rows


class damaged(Tool):
    def test_jobs_get_a_clear_line(self):
        for job, said in read_damaged()[1]:
            with self.subTest(said):
                is_job = not said[0].startswith(b"complains: ")
                told = self.run_tool("show", data=job, status=0 if is_job else 2)
                for words in said:
                    self.assertIn(words.removeprefix(b"complains: "), told)
                self.assertNotIn(b"\x1b", told)
                if b"a whole job" in said:
                    self.assertNotIn(b"Worth a look", told)
                if is_job:
                    shown = json.loads(self.run_tool("show", "--json", data=job))
                    self.assertEqual(shown["whole"], b": a whole job" in told)
                    self.assertEqual(all(line["known"] for line in shown["lines"]), b"Not explained" not in told)

    def test_every_cut_of_a_job_is_told(self):
        names = read_damaged()[0]
        job = names[b"head"] + b'@PJL SET JOBATTR="@DAID=4711"\n' + names[b"enter"] + names[b"doc"] + names[b"end"]
        self.assertNotIn(b"Worth a look", self.run_tool("show", data=job))
        for length in range(len(job)):
            told = self.run_tool("show", data=job[:length], status=None)
            self.assertIn(b"standard input: ", told)
            self.assertNotIn(b": a whole job", told)
            is_job = not told.startswith(b"orvane-job: ")
            self.assertTrue(not is_job or b"Worth a look" in told, job[:length])
            if length % 7 == 0:
                check = self.run_tool("show", "--check", data=job[:length], status=1 if is_job else 2)
                self.assertTrue(not is_job or b" is missing\n" in check, job[:length])

    def test_noise_is_read_to_its_end(self):
        noise = bytes(range(256)) * 40
        for job in (noise, UEL + noise, UEL + b"@PJL " + noise, UEL + ENTER + noise,
                    UEL + b"@PJL SET A=" + 9000 * b'@PJL SET B="', UEL + 9000 * b'@PJL SET A="\n',
                    UEL + b'@PJL SET JOBATTR="@DAID=' + 70000 * b"x" + b'"\n'):
            for arguments in (["show"], ["show", "--json"], ["show", "--check"]):
                said = self.run_tool(*arguments, data=job, status=None)
                self.assertFalse(re.search(rb"[\0-\x09\x0b-\x1f\x7f]", said))
                if "--json" in arguments and said.startswith(b"{"):
                    json.loads(said)
        many = UEL + 9000 * b"@PJL SET RET=ON\n"
        self.assertIn(b"7000 further lines are not shown", self.run_tool("show", data=many))


class calls(Tool):
    """What a table of calls and answers cannot say."""

    def job(self, name, options, document=b"%!PS\nep\n", ppd="office"):
        made = subprocess.run([FILTER, "1", "taro", "Report", "1", options], input=document, capture_output=True,
                              env={"PPD": str(SAMPLES / f"{ppd}.ppd"), "TMPDIR": str(self.folder)}, check=True)
        (self.folder / name).write_bytes(made.stdout)

    def held(self, name, password):
        stored = self.run_tool("password", data=password).decode().strip()
        self.job(name, f"{TICKET}PrintTypeTicketKey=2 {TICKET}PrintTypeUserNameTicketKey=taro "
                       f"{TICKET}PrintTypePasswordTicketKey={stored}")

    def test_passwords_have_the_form_that_the_filter_reads(self):
        stored = b"047/097/071/085/109/104/067/073/076/109/090/084/069/121/111/054/084/121/069/051/088/065/061/061"
        for password in (b"pin-1139", b"pin-1139\n"):
            self.assertEqual(self.run_tool("password", data=password), b"/" + stored + b"\n")
        for refused, why in ((b"pin-1004 " + 40 * b"x", b"choose a shorter one"), (b"", b"no password"),
                             (b"\n", b"no password"), (240 * b"x", b"choose a shorter one")):
            self.assertIn(why, self.run_tool("password", data=refused, status=2))

    def test_passwords_open_with_the_key_alone(self):
        for password in (b"1234", 50 * b"y", b"pin-1139", 239 * b"x", "暗証".encode()):
            self.held("held", password)
            shown = self.run_tool("show", "held")
            self.assertIn(b"encrypted", shown)
            opened = self.run_tool("show", "--key", KEY, "held")
            self.assertIn(b"the key opens it: %d characters\n" % len(password), opened)
            for told in (shown, opened, self.run_tool("show", "--json", "--key", KEY, "held")):
                self.assertNotIn(password[:200], told.replace(b"1234 bytes", b""))
            self.assertIn(b" characters: " + password, self.run_tool("show", "--key", KEY, "--reveal", "held"))
        other = DATA / "keys" / "development-3072.pem"
        self.assertIn(b"it does not open", self.run_tool("show", "--key", other, "held"))
        for no_key in ("held", "/", "none", self.elliptic_key()):
            self.assertIn(b"not a private RSA key", self.run_tool("show", "--key", no_key, "held", status=2))
        held = (self.folder / "held").read_bytes()
        blob = re.search(b'HOLDENCRYPTKEY="([^"]*)"', held)[1]
        for place in (4, 9, 10, 13, 14, 20, 40, 60):  # lengths, mode, key type, reserved bytes, key identifier
            changed = blob[:place] + (b"A" if blob[place:place + 1] != b"A" else b"B") + blob[place + 1:]
            self.assertIn(b"encrypted for another key than this build's" if 22 <= place < 64 else b"damaged",
                          self.run_tool("show", data=held.replace(blob, changed)), place)
        # What is encrypted are whole blocks, as many as the payload's length says, and the whole's.
        raw = base64.b64decode(blob)
        payload, total = (int.from_bytes(raw[at:at + 4], "little") for at in (2, 6))
        for bytes_more, payload_more, total_more in ((16, 16, 16), (1, 1, 1), (16, 0, 16), (16, 16, 0)):
            lengths = (payload + payload_more).to_bytes(4, "little") + (total + total_more).to_bytes(4, "little")
            changed = base64.b64encode(raw[:2] + lengths + raw[10:] + bytes(bytes_more))
            told = self.run_tool("show", data=held.replace(blob, changed))
            self.assertEqual(b"damaged" in told, {bytes_more, payload_more, total_more} != {16}, lengths)

    def elliptic_key(self):
        subprocess.run(["openssl", "genpkey", "-algorithm", "ED25519", "-out", "other.pem"], cwd=self.folder,
                       check=True)
        return "other.pem"

    def test_jobs_with_the_same_passwords_are_the_same(self):
        for name, password in (("one", b"1234"), ("two", b"1234"), ("other", b"4321"), ("longer", 40 * b"1")):
            self.held(name, password)
        same = b"The jobs say the same"
        secret = b"! HOLDENCRYPTKEY=(secret)         the two passwords "
        for arguments, status, said in ((["one", "two"], 0, same + b"; without --key, passwords are compared by their"
                                                                   b" length only.\n"),
                                        (["--key", KEY, "one", "two"], 0, same + b".\n"),
                                        (["--key", KEY, "one", "other"], 1, secret + b"differ\n"),
                                        (["one", "longer"], 1, secret + b"have different lengths\n")):
            told = self.run_tool("diff", *arguments, status=status)
            self.assertEqual(told.split(b"\n", 2)[2], said)
        for name, end in (("whole", b"\x04"), ("cancelled", b"")):
            (self.folder / name).write_bytes(HEAD + ENTER + b"%!PS\n" + end + TRAILER)
        self.assertNotIn(same, self.run_tool("diff", "whole", "cancelled", status=1))

    def test_documents_come_out_as_they_went_in(self):
        def extracted(job=b"", *path):
            self.run_tool("show", "--postscript", "out", *path, data=job)
            return (self.folder / "out").read_bytes()

        document = b"%!PS\r%%BeginFeature: *OVSetTrapMode True\r\n\x1b\0\n" + bytes(range(5, 256)) + b"\n\x04\nep\n"
        for ppd in ("office", "production"):
            self.job("job", "", document, ppd)
            self.assertEqual(extracted(b"", "job"), document, ppd)
        copy = HEAD + b"%!PS\r@PJL SET RET=ON\n%%EOF\x04" + ENTER + TRAILER
        self.assertEqual(extracted(copy), b"%!PS\r%%EOF")
        # Where the end of the document lies across the pieces in which the job is read.
        for length in range(16384 - 12, 16384 + 3):
            long_line = b"%!PS" + (length - 4) * b"x"
            for end in (b"\x04", b""):
                self.assertEqual(extracted(UEL + ENTER + long_line + end + TRAILER), long_line, length)
        before = (self.folder / "job").read_bytes()
        self.assertIn(b"is the job itself", self.run_tool("show", "--postscript", "job", "job", status=2))
        self.assertEqual((self.folder / "job").read_bytes(), before)
        self.run_tool("show", "--postscript", "none/out", "job", status=2)

    def test_large_jobs_need_little_memory(self):
        block = b"(some text) show\n" * 60000
        with subprocess.Popen([TOOL, "show"], stdin=subprocess.PIPE, stdout=subprocess.PIPE) as tool:
            for piece in (HEAD + ENTER + b"%!PS\n", *[block] * 128, b"\x04" + TRAILER):
                tool.stdin.write(piece)
            tool.stdin.close()
            shown = tool.stdout.read()
            _, tool.returncode, usage = os.wait4(tool.pid, 0)
        self.assertIn(b"a whole job", shown)
        self.assertIn(b"%d bytes\n" % (5 + 128 * len(block)), shown)
        self.assertLess(usage.ru_maxrss, 100000)

    @unittest.skipUnless(os.path.exists("/dev/full"), "no full device")
    def test_a_full_disk_is_an_error(self):
        self.job("job", "")
        self.assertEqual(self.run_tool("show", "--postscript", "/dev/full", "job", status=2),
                         b"orvane-job: /dev/full: cannot be written\n")
        for arguments in (["password"], ["show", "job"], ["show", "--json", "job"], ["diff", "job", "job"],
                          ["options", SAMPLES / "office.ppd", "a=b"], ["--help"], ["--version"]):
            with open("/dev/full", "wb") as full:
                self.assertIn(b"cannot", self.run_tool(*arguments, data=b"1234", output=full, status=2), arguments)

    @unittest.skipUnless(sys.platform == "linux", "no /proc")
    def test_passwords_stay_out_of_core_files(self):
        with subprocess.Popen([TOOL, "password"], stdin=subprocess.PIPE, stderr=subprocess.DEVNULL) as tool:
            limits, end = "", time.monotonic() + 60
            while not re.search("Max core file size +0 +0 ", limits) and time.monotonic() < end:
                limits = Path(f"/proc/{tool.pid}/limits").read_text()
            self.assertRegex(limits, "Max core file size +0 +0 ")

    def test_terminals_get_colour_and_their_width(self):
        self.job("job", "OVStaple=LeftDouble")
        for environment, coloured in (({"TERM": "xterm"}, True), ({"TERM": "xterm", "NO_COLOR": ""}, True), ({}, False),
                                      ({"TERM": "xterm", "NO_COLOR": "1"}, False), ({"TERM": "dumb"}, False)):
            leader, follower = pty.openpty()
            termios.tcsetwinsize(follower, (24, 60))
            with subprocess.Popen([TOOL, "show", "job"], stdout=follower, cwd=self.folder, env=environment):
                os.close(follower)
                shown = b""
                try:
                    while block := os.read(leader, 65536):
                        shown += block
                except OSError:  # how a terminal ends
                    pass
            os.close(leader)
            self.assertEqual(b"\x1b[1mFrame\x1b[m" in shown, coloured)
            lines = re.sub(rb"\x1b\[[0-9;]*m", b"", shown).decode().splitlines()
            self.assertEqual([line for line in lines if len(line) > 60], [])
        self.assertIn(max(map(len, self.run_tool("show", "job").decode().splitlines())), range(100, 500))

    def test_help_manual_and_completion_name_the_same(self):
        known = self.run_tool("--help").decode()
        manual = (SOURCES / "man" / "orvane-job.1.in").read_text().replace("\\-", "-").split(".SH DESCRIPTION")[0]
        script = SOURCES / "tools" / "orvane-job" / "completion.bash"
        completion = script.read_text()
        words = set(re.findall(r"--[a-z]+|(?<=orvane-job )[a-z]+", known))
        for text in (manual, completion):
            self.assertEqual({word for word in words if word not in text}, set())
        self.assertLessEqual(set(re.findall(r"--[a-z]+", completion.split("compgen")[0] + manual)), words)
        run = 'source "$0"; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _orvane_job 2> /dev/null; echo "${COMPREPLY[*]}"'
        for typed, completed in ((["sh"], "show"), (["pass"], "password"), (["show", "--p"], "--postscript"),
                                 (["diff", "--j"], ""), (["show", "--key", "--p"], "")):
            done = subprocess.run(["bash", "-c", run, script, "orvane-job", *typed], capture_output=True, text=True)
            self.assertEqual(done.stdout.strip(), completed)

    def test_wrong_calls_are_told_how_to_be_right(self):
        for arguments in ([], ["shwo"], ["show", "a", "b"], ["show", "--none"], ["show", "--reveal"], ["diff", "a"],
                          ["show", "--json", "--check"], ["password", "1234"], ["options", "a"],
                          ["options", "--help", "a"], ["diff", "--json", "a", "b"],
                          ["diff", "--postscript", "c", "a", "b"], ["--version", "a"]):
            self.assertIn(b"Usage: orvane-job show", self.run_tool(*arguments, status=2), arguments)
        self.assertIn(b"orvane-job: shwo: unknown command\n", self.run_tool("shwo", status=2))
        for command in ("show", "diff", "password", "options"):
            self.assertEqual(self.run_tool(command, "--help"), self.run_tool("--help"))
        for arguments in (["show", "none"], ["show", "."], ["diff", "none", "none"], ["options", "none", "a=b"]):
            told = self.run_tool(*arguments, status=2, CUPS_SERVER="/none")
            self.assertRegex(told, b"^orvane-job: [^\n]+: [^\n]+\n$")
        self.assertIn(b": Is a directory\n", self.run_tool("show", ".", status=2))
        self.run_tool("options", SAMPLES / "mono.ppd", "Duplex=DuplexNoTumbel", status=1)
        for folder in ("none", "/proc"):
            told = self.run_tool("options", SAMPLES / "mono.ppd", "a=b", status=2, TMPDIR=folder)
            self.assertEqual(told, b"orvane-job: no folder can be made in TMPDIR\n")


def define_classes():
    """One class a file, named for it, one test a case."""
    for path in DATA.glob("tool/*.cases"):
        tests = {"test_" + re.sub(r"\W+", "_", case["case"]): lambda self, case=case: self.check(case)
                 for case in read_cases(path)}
        globals()[path.stem] = type(path.stem, (Tool,), tests)


if __name__ == "__main__":
    define_classes()
    unittest.main(argv=[sys.argv[0], *sys.argv[5:]])
