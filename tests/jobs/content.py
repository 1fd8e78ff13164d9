"""How the files under tests/data write bytes, the short form of a header's lines (CONTRIBUTING.md has both), and what many
tests have in common of PPDs, options and jobs."""

import re

PPD_HEAD = (b'*PPD-Adobe: "4.3"\n*FormatVersion: "4.3"\n*FileVersion: "1.0"\n*LanguageVersion: English\n'
            b'*LanguageEncoding: ISOLatin1\n')
TICKET = "com.orvane.dlg.printsettings."
UEL = b"\x1b%-12345X"
ENTER = b"@PJL ENTER LANGUAGE=POSTSCRIPT\n"
TRAILER = UEL + b"@PJL EOJ\n"

CODES = {b"e": b"\x1b", b"r": b"\r", b"n": b"\n", b"t": b"\t", b"\\": b"\\"}


def unescape(text):
    def meaning(match):
        byte, count, repeated, code = match.groups()
        return bytes.fromhex(byte.decode()) if byte else int(count) * unescape(repeated) if count else CODES[code]
    return re.sub(rb"\\(?:x(..)|\{(\d+) (.*?)\}|(.))", meaning, text)


def content_line(text):
    """A line of content: it ends with a line feed unless a single backslash ends it."""
    open_ended = (len(text) - len(text.rstrip(b"\\"))) % 2
    return unescape(text[:-1] if open_ended else text + b"\n")


def line_of(token):
    """The line that a token stands for: @NAME=VALUE, a job attribute; :NAME=VALUE, a comment; NAME=VALUE, a setting."""
    if not token.startswith(b"@"):
        return content_line(b"@PJL COMMENT PRINTJOBINFO " + token[1:] if token[:1] == b":" else b"@PJL SET " + token)
    value, end = re.fullmatch(rb"(.*?)((?<!\\)\\|\\r|\.\.\.|)", token).groups()
    return content_line(b'@PJL SET JOBATTR="' + {b"\\": value + b"\\", b"...": b"\\"}.get(end, value + b'"' + end))
