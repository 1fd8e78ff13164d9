"""How the files under tests/data write bytes, and the short form of a header's lines; CONTRIBUTING.md has both."""

import re

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
