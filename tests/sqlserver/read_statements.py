# SPDX-FileCopyrightText: The ctrDnContacts authors
# SPDX-License-Identifier: Apache-2.0
"""A second opinion on the statements that the stand-in for SQL Server took: sqlglot reads each of them as T-SQL.

    read_statements.py LOG...

A log has a line for each text: who sent it, the number of its refusal or 0, the text. Those of the control that read or
change rows are read; what is left of it is EXEC, which sqlglot does not know, and what the host sets on a connection.
Texts that differ by their values alone are read once.
"""
import re
import sys

import sqlglot


def unescaped(text):
    return re.sub(r"\\(.)", lambda escape: {"n": "\n", "r": "\r", "t": "\t"}.get(escape[1], escape[1]), text)


def shape(text):
    return re.sub(r"\d+", "0", re.sub(r"'[^']*'", "''", text))


def statements(logs):
    shapes = {}
    for log in logs:
        with open(log, encoding="utf-8", newline="\n") as lines:
            for line in lines:
                sender, refusal, text = line.rstrip("\n").split("\t", 2)
                verb = text.split(" ", 1)[0].upper()
                if sender == "control" and refusal == "0" and verb in ("SELECT", "INSERT", "UPDATE", "DELETE"):
                    shapes.setdefault(shape(text), unescaped(text))
    return shapes.values()


def main(logs):
    read = failed = 0
    for text in statements(logs):
        try:
            assert len(sqlglot.parse(text.strip().rstrip(";"), read="tsql")) == 1
            read += 1
        except Exception as refusal:  # whatever it is, the statement was not read
            failed += 1
            print(f"{text}\n    {refusal}")
    print(f"{read} statements read, {failed} not")
    return 1 if failed or read < 20 else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
