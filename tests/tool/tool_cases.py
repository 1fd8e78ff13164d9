"""Runs the cases of data/tool/*.cases: orvane-job is called, and its exit status and every line it prints are compared.
A case has jobs as files by name, in lines of content as data/jobs has them; the call names them.

usage: tool_cases.py ORVANE-JOB FILTER SAMPLE-PPDS TEST-DATA [unittest arguments, such as show]
"""

import json
import os
import pty
import re
import shlex
import subprocess
import sys
import tempfile
import termios
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parents[1] / "jobs"))
from content import content_line, unescape  # noqa: E402

TOOL, FILTER = sys.argv[1:3]
SAMPLES, DATA = map(Path, sys.argv[3:5])
KEY = DATA / "keys" / "development-2048.pem"
UEL = b"\x1b%-12345X"
TICKET = "com.orvane.dlg.printsettings."
SOURCES = DATA.parents[1]


def read_cases(path):
    """Each case is a dictionary: run, status, says, and its files by name; those before the first case are all cases'."""
    cases, content, shared = [], None, {}
    for row in path.read_bytes().split(b"\n"):
        word, _, argument = row.partition(b" ")
        if word == b"case":
            cases.append(case := {"case": argument.decode(), "status": 0, "files": dict(shared), "says": bytearray()})
        elif word == b"file":
            content = (case["files"] if cases else shared)[argument.decode()] = bytearray()
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
            self.assertNotIn(b": a whole job", done.stdout)
            check = subprocess.run([TOOL, "show", "--check"], input=job[:length], capture_output=True)
            self.assertEqual((check.returncode, b" is missing\n" in check.stdout), (1, True) if done.stdout else (2, False))

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
        many = UEL + 9000 * b"@PJL SET RET=ON\n"
        self.assertIn(b"7000 further lines are not shown", self.run_tool("show", data=many).stdout)


class calls(Tool):
    """What a table of calls and answers cannot say."""

    def job(self, name, options, document=b"%!PS\nep\n", ppd="office"):
        made = subprocess.run([FILTER, "1", "taro", "Report", "1", options], input=document, capture_output=True,
                              env={"PPD": str(SAMPLES / f"{ppd}.ppd"), "TMPDIR": str(self.folder)}, check=True)
        (self.folder / name).write_bytes(made.stdout)

    def held(self, name, password):
        stored = self.run_tool("password", data=password).stdout.decode().strip()
        self.job(name, f"{TICKET}PrintTypeTicketKey=2 {TICKET}PrintTypeUserNameTicketKey=taro "
                       f"{TICKET}PrintTypePasswordTicketKey={stored}")

    def test_passwords_have_the_form_that_the_filter_reads(self):
        self.assertEqual(self.run_tool("password", data=b"pin-1139").stdout,
                         b"/047/097/071/085/109/104/067/073/076/109/090/084/069/121/111/054/084/121/069/051/088/065/061/061\n")
        self.assertEqual(self.run_tool("password", data=b"secret").stdout, self.run_tool("password", data=b"secret\n").stdout)
        for refused, why in ((b"pin-1004 " + 40 * b"x", b"choose a shorter one"), (b"", b"no password"),
                             (b"\n", b"no password"), (240 * b"x", b"choose a shorter one")):
            done = self.run_tool("password", data=refused, status=2)
            self.assertEqual((done.stdout, why in done.stderr), (b"", True), refused)

    def test_passwords_open_with_the_key_alone(self):
        for password in (b"1234", 50 * b"y", b"pin-1139", 239 * b"x", "暗証".encode()):
            self.held("held", password)
            shown = self.run_tool("show", "held").stdout
            self.assertIn(b"encrypted", shown)
            opened = self.run_tool("show", "--key", KEY, "held").stdout
            self.assertIn(b"the key opens it: %d characters\n" % len(password), opened)
            for told in (shown, opened, self.run_tool("show", "--json", "--key", KEY, "held").stdout):
                self.assertFalse(re.search(re.escape(password[:200]), told.replace(b"1234 bytes", b"")))
            self.assertIn(b" characters: " + password, self.run_tool("show", "--key", KEY, "--reveal", "held").stdout)
        other = DATA / "keys" / "development-3072.pem"
        self.assertIn(b"it does not open", self.run_tool("show", "--key", other, "held").stdout)
        for no_key in ("held", "/", "none"):
            self.assertIn(b"not a private RSA key", self.run_tool("show", "--key", no_key, "held", status=2).stderr)
        blob = re.search(b'HOLDENCRYPTKEY="([^"]*)"', (self.folder / "held").read_bytes())[1]
        for place in (4, 10, 20, 40, 60):  # lengths, reserved bytes, key identifier
            changed = blob[:place] + (b"A" if blob[place:place + 1] != b"A" else b"B") + blob[place + 1:]
            job = (self.folder / "held").read_bytes().replace(blob, changed)
            self.assertIn(b"encrypted for another key than this build's" if 22 <= place < 64 else b"damaged",
                          self.run_tool("show", data=job).stdout)

    def test_jobs_with_the_same_passwords_are_the_same(self):
        for name, password in (("one", b"1234"), ("two", b"1234"), ("other", b"4321"), ("longer", 40 * b"1")):
            self.held(name, password)
        same = b"The jobs say the same"
        self.assertIn(same + b"; without --key", self.run_tool("diff", "one", "two").stdout)
        self.assertIn(same, self.run_tool("diff", "one", "other").stdout)
        self.assertEqual(self.run_tool("diff", "--key", KEY, "one", "two").stdout, b"< one: a whole job\n> two: a whole job\n" + same + b".\n")
        for *arguments, said in (["--key", KEY, "one", "other", b"the two passwords differ\n"],
                                 ["one", "longer", b"the two passwords have different lengths\n"]):
            told = self.run_tool("diff", *arguments, status=1).stdout.splitlines(keepends=True)
            self.assertEqual((told[2:], len(told)), ([b"! HOLDENCRYPTKEY=(secret)         " + said], 3))

    def test_documents_come_out_as_they_went_in(self):
        document = b"%!PS\r%%BeginFeature: *OVSetTrapMode True\r\n\x1b\0\n" + bytes(range(5, 256)) + b"\n\x04\nep\n"
        for ppd in ("office", "production"):
            self.job("job", "", document, ppd)
            self.run_tool("show", "--postscript", "out", "job")
            self.assertEqual((self.folder / "out").read_bytes(), document, ppd)
        copy = UEL + b"@PJL JOB MODE=PRINTER\r\n%!PS\r@PJL SET RET=ON\n%%EOF\x04@PJL ENTER LANGUAGE=POSTSCRIPT\n"
        self.run_tool("show", "--postscript", "out", data=copy + UEL + b"@PJL EOJ\n")
        self.assertEqual((self.folder / "out").read_bytes(), b"%!PS\r%%EOF")
        # Where the end of the document lies across the pieces in which the job is read.
        for length in range(16384 - 12, 16384 + 3):
            long_line = b"%!PS" + (length - 4) * b"x"
            for end in (b"\x04", b""):
                self.run_tool("show", "--postscript", "out",
                              data=UEL + b"@PJL ENTER LANGUAGE=POSTSCRIPT\n" + long_line + end + UEL + b"@PJL EOJ\n")
                self.assertEqual((self.folder / "out").read_bytes(), long_line, length)
        before = (self.folder / "job").read_bytes()
        self.assertIn(b"is the job itself", self.run_tool("show", "--postscript", "job", "job", status=2).stderr)
        self.assertEqual((self.folder / "job").read_bytes(), before)
        self.run_tool("show", "--postscript", "none/out", "job", status=2)

    def test_large_jobs_need_little_memory(self):
        block = b"(some text) show\n" * 60000
        head = UEL + b"@PJL JOB MODE=PRINTER\r\n@PJL ENTER LANGUAGE=POSTSCRIPT\n%!PS\n"
        with subprocess.Popen([TOOL, "show"], stdin=subprocess.PIPE, stdout=subprocess.PIPE) as tool:
            for piece in (head, *[block] * 128, b"\x04" + UEL + b"@PJL EOJ\n"):
                tool.stdin.write(piece)
            tool.stdin.close()
            shown = tool.stdout.read()
            _, status, usage = os.wait4(tool.pid, 0)
            tool.returncode = status
        self.assertIn(b"a whole job", shown)
        self.assertIn(b"%d bytes\n" % (5 + 128 * len(block)), shown)
        self.assertLess(usage.ru_maxrss, 100000)

    @unittest.skipUnless(os.path.exists("/dev/full"), "no full device")
    def test_a_full_disk_is_an_error(self):
        self.job("job", "")
        told = self.run_tool("show", "--postscript", "/dev/full", "job", status=2)
        self.assertEqual((told.stdout, told.stderr), (b"", b"orvane-job: /dev/full: cannot be written\n"))
        for arguments in (["password"], ["show", "job"], ["show", "--json", "job"], ["show", "--postscript", "/dev/full", "job"],
                          ["diff", "job", "job"], ["options", SAMPLES / "office.ppd", "a=b"], ["--help"], ["--version"]):
            with open("/dev/full", "wb") as full:
                done = subprocess.run([TOOL, *arguments], input=b"1234", stdout=full, stderr=subprocess.PIPE, cwd=self.folder)
            self.assertEqual((done.returncode, b"cannot" in done.stderr), (2, True), arguments)

    def test_terminals_get_colour_and_their_width(self):
        self.job("job", "OVStaple=LeftDouble")
        for environment, coloured in (({"TERM": "xterm"}, True), ({"TERM": "xterm", "NO_COLOR": "1"}, False), ({}, False),
                                      ({"TERM": "dumb"}, False)):
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
        self.assertIn(max(map(len, self.run_tool("show", "job").stdout.decode().splitlines())), range(100, 500))

    def test_help_manual_and_completion_name_the_same(self):
        known = self.run_tool("--help").stdout.decode()
        manual = (SOURCES / "man" / "orvane-job.1.in").read_text().replace("\\-", "-").split(".SH DESCRIPTION")[0]
        completion = (SOURCES / "tools" / "orvane-job" / "completion.bash").read_text()
        words = set(re.findall(r"--[a-z]+|orvane-job ([a-z]+)", known)) | set(re.findall(r"--[a-z]+", known))
        for text in (manual, completion):
            self.assertEqual({word for word in words if word and word not in text}, set())
        self.assertLessEqual(set(re.findall(r"--[a-z]+", completion.split("compgen")[0] + manual)), words)
        script = 'source "$0"; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _orvane_job 2> /dev/null; echo "${COMPREPLY[*]}"'
        for typed, completed in ((["sh"], "show"), (["pass"], "password"), (["show", "--p"], "--postscript"),
                                 (["diff", "--j"], ""), (["show", "--key", "--p"], "")):
            done = subprocess.run(["bash", "-c", script, SOURCES / "tools" / "orvane-job" / "completion.bash", "orvane-job", *typed],
                                  capture_output=True, text=True)
            self.assertEqual(done.stdout.strip(), completed)

    def test_wrong_calls_are_told_how_to_be_right(self):
        for arguments in ([], ["shwo"], ["show", "a", "b"], ["show", "--none"], ["show", "--reveal"], ["diff", "a"],
                          ["show", "--json", "--check"], ["password", "1234"], ["options", "a"], ["options", "--help", "a"],
                          ["diff", "--json", "a", "b"], ["--version", "a"]):
            done = self.run_tool(*arguments, status=2)
            self.assertEqual((done.stdout, b"Usage: orvane-job show" in done.stderr), (b"", True), arguments)
        self.assertIn(b"orvane-job: shwo: unknown command\n", self.run_tool("shwo", status=2).stderr)
        for command in ("show", "diff", "password", "options"):
            self.assertEqual(self.run_tool(command, "--help").stdout, self.run_tool("--help").stdout)
        for arguments in (["show", "none"], ["show", "."], ["diff", "none", "none"], ["options", "none", "a=b"]):
            done = self.run_tool(*arguments, status=2, CUPS_SERVER="/none")
            self.assertRegex(done.stderr, b"^orvane-job: [^\n]+: [^\n]+\n$")
        for folder in ("none", "/proc"):
            told = self.run_tool("options", SAMPLES / "mono.ppd", "a=b", status=2, TMPDIR=folder).stderr
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
