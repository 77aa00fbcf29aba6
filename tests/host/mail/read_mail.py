# SPDX-FileCopyrightText: The ctrDnContacts authors
# SPDX-License-Identifier: Apache-2.0
"""Reads a mail with Python's own parser and tells what it found."""
import email
import email.policy
import hashlib


def read(path):
    with open(path, "rb") as file:
        raw = file.read()
    mail = email.message_from_bytes(raw, policy=email.policy.default)
    lines = raw.split(b"\r\n")
    parts = [part for part in mail.walk() if not part.is_multipart()]
    body = parts[0]
    defects = [repr(defect) for part in mail.walk() for defect in part.defects]
    defects += [name + ": " + repr(defect) for name, value in mail.items() for defect in value.defects]
    return {
        "headers": [name for name, _ in mail.items()],
        "from_name": mail["From"].addresses[0].display_name,
        "from": mail["From"].addresses[0].addr_spec,
        "to": [address.addr_spec for address in mail["To"].addresses],
        "subject": mail["Subject"],
        "date": mail["Date"].datetime.isoformat() if mail["Date"].datetime else "",
        "id": mail["Message-ID"],
        "unsent": mail["X-Unsent"],
        "body": body.get_content().replace("\r\n", "\n"),
        "body_type": body.get_content_type(),
        "attachments": [{"name": part.get_filename(), "type": part.get_content_type(),
                         "size": len(part.get_payload(decode=True)),
                         "sha256": hashlib.sha256(part.get_payload(decode=True)).hexdigest()} for part in parts[1:]],
        "defects": defects,
        "longest_line": max(len(line) for line in lines),
        "bare_line_ends": raw.replace(b"\r\n", b"").count(b"\n") + raw.replace(b"\r\n", b"").count(b"\r"),
        "eight_bit": any(byte > 127 for byte in raw),
    }

