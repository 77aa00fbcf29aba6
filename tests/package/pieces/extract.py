# SPDX-FileCopyrightText: The ctrDnContacts authors
# SPDX-License-Identifier: Apache-2.0
"""Makes one source of the pieces of C++ in a document: a class stands as it is, statements in a function of their own.

usage: extract.py DOCUMENT SOURCE
"""
import pathlib
import re
import sys

document, source = map(pathlib.Path, sys.argv[1:])
includes, bodies = ['#include "frame.h"'], []
pieces = re.findall(r"^```cpp\n(.*?)^```$", document.read_text(), re.MULTILINE | re.DOTALL)
if not pieces:
    sys.exit(f"{document} has no pieces of C++")
for number, piece in enumerate(pieces, 1):
    lines = piece.splitlines()
    includes += [line for line in lines if line.startswith("#include")]
    code = "\n".join("" if line.startswith("#include") else line for line in lines)
    bodies.append(code if code.lstrip().startswith("class ") else f"void piece_{number}()\n{{\n{code}\n}}")
source.write_text("\n".join(includes + bodies) + "\n")
print(f"{len(pieces)} pieces")
