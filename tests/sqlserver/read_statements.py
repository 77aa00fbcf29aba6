# SPDX-FileCopyrightText: The ctrDnContacts authors
# SPDX-License-Identifier: Apache-2.0
"""A second opinion on the statements that the stand-in for SQL Server took: sqlglot reads each of them as T-SQL.

    read_statements.py LOG...

A log has a line for each text: who sent it, the number of its refusal or 0, the text. What reads or changes rows is read,
and views and indexes. sqlglot does not know EXEC and procedures, IDENTITY in the definition of a table, and a national
text behind ESCAPE, which it is given without its N. Texts that differ by their values alone are read once. Ahead of them it is shown texts that it must not take: a reader
that takes everything would be no second opinion.
"""
import re
import sys

import sqlglot


FEWEST = 200  # shapes that the logs hold at least
READ = re.compile(r"(SELECT|INSERT|UPDATE|DELETE|TRUNCATE|CREATE (OR ALTER )?VIEW|CREATE (UNIQUE )?INDEX)\b", re.IGNORECASE)
WRONG = (
    "SELECT FROM WHERE",
    "UPDATE ut_icontact SET WHERE Sys_PK=12",
    "UPDATE ut_icontact SET uf_NotaStatus='d'Arc' WHERE Sys_PK=1",
    "INSERT INTO xt_biticontact (uf_Tiempo VALUES (CURRENT_TIMESTAMP)",
    "SELECT (ISNULL(Persona.Nombre, '') + ' ' + ISNULL(Persona.Apellido2), ''))  as Nombre FROM Persona",
    "SELECT Sys_PK FROM ut_icontact ORDER uf_Fecha",
    "SELECT 1 SELECT 2 FROM",
)


def unescaped(text):
    return re.sub(r"\\(.)", lambda escape: {"n": "\n", "r": "\r", "t": "\t"}.get(escape[1], escape[1]), text)


def shape(text):
    return re.sub(r"\d+", "0", re.sub(r"'[^']*'", "''", text))


def statements(logs):
    shapes = {}
    for log in logs:
        with open(log, encoding="utf-8", newline="\n") as lines:
            for line in lines:
                _, refusal, text = line.rstrip("\n").split("\t", 2)
                if refusal == "0" and READ.match(text):
                    shapes.setdefault(shape(text), unescaped(text).replace("ESCAPE N'", "ESCAPE '"))
    return shapes.values()


def is_read(text):
    """None when it is one statement of T-SQL, else why it is not."""
    try:
        count = len(sqlglot.parse(text.strip().rstrip(";"), read="tsql"))
        return None if count == 1 else f"{count} statements"
    except Exception as refusal:  # its tokenizer throws what comes
        return str(refusal)


def main(logs):
    taken = [text for text in WRONG if is_read(text) is None]
    for text in taken:
        print(f"taken, and wrong: {text}")
    sent = list(statements(logs))
    refused = [(text, why) for text in sent if (why := is_read(text)) is not None]
    for text, why in refused:
        print(f"{text}\n    {why}")
    print(f"{len(sent) - len(refused)} statements read, {len(refused)} not; {len(WRONG) - len(taken)} wrong ones refused")
    return 1 if refused or taken or len(sent) < FEWEST else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
