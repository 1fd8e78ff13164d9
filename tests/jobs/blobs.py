"""Encrypted passwords, opened as the printer does it, with none of the filter's code."""

import base64
import hashlib
import hmac
import subprocess
from pathlib import Path

PRIVATE_KEY = Path(__file__).parents[1] / "data" / "keys" / "development-2048.pem"


def openssl(*arguments, data=b""):
    return subprocess.run(["openssl", *arguments], input=data, check=True, stdout=subprocess.PIPE).stdout


class Blob:
    """secret, salt, key and vector of a blob, and the password; fails when its header is not what it must be."""

    def __init__(self, text):
        blob = base64.b64decode(text, validate=True)
        sizes = b"".join(size.to_bytes(4, "little") for size in (len(blob) - 352, len(blob)))
        identifier = hashlib.sha256(openssl("pkey", "-in", PRIVATE_KEY, "-pubout", "-outform", "DER")).digest()
        assert blob[:48] == b"\x08\x01" + sizes + b"\x01\0\0\0\0\0" + identifier, f"no header of a blob: {blob[:48]}"
        self.secret = openssl("pkeyutl", "-decrypt", "-inkey", PRIVATE_KEY, "-pkeyopt", "rsa_padding_mode:oaep",
                              "-pkeyopt", "rsa_oaep_md:sha256", "-pkeyopt", "rsa_mgf1_md:sha256", data=blob[80:336])
        self.salt, self.vector = blob[48:80], blob[336:352]
        self.key = hmac.digest(self.secret, self.salt, "sha256")
        self.password = openssl("enc", "-d", "-aes-256-cbc", "-K", self.key.hex(), "-iv", self.vector.hex(),
                                data=blob[352:])
