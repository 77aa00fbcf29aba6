# SPDX-FileCopyrightText: The ctrDnContacts authors
# SPDX-License-Identifier: Apache-2.0
#
# Each file that an installed page names is installed too: named_files.py PREFIX SOURCES
# A name stands between backticks, as `host/mail` or as the first word of a command. What is in the sources alone may be
# named in a paragraph that says "sources".
import pathlib
import re
import sys

NAME = re.compile(r"`\"?([A-Za-z][\w.-]*(?:/[\w.-]+)+/?|[a-z]\w*/|\w[\w-]*\.(?:h|cpp|md|sql|cmake|so\.\d+))\"?(?: [^`]*)?`")

# Where the pages of a package lie, and from where their reader looks for a name.
PLACES = (
    ("share/doc/libdncontacts-dev", ("share/doc/libdncontacts-dev", "include/dncontacts", "")),
    ("share/dncontacts", ("share/dncontacts", "")),
)


def is_there(name, prefix, folders):
    if any((prefix / folder / name).exists() for folder in folders):
        return True
    return "/" not in name and any(any((prefix / folder).rglob(name)) for folder in folders)


def missing(page, prefix, sources, folders):
    for paragraph in re.split(r"\n\s*\n", page.read_text(encoding="utf-8")):
        for name in NAME.findall(paragraph):
            seen[page.relative_to(prefix)] = seen.get(page.relative_to(prefix), 0) + 1
            if is_there(name, prefix, folders):
                continue
            if (sources / name).exists() and "sources" in paragraph:
                continue
            yield f"{page.relative_to(prefix)}: {name}"


seen = {}
prefix, sources = (pathlib.Path(path) for path in sys.argv[1:3])
found = [line
         for place, folders in PLACES
         for page in sorted((prefix / place).rglob("*.md"))
         for line in missing(page, prefix, sources, folders)]
print("\n".join(found))
print(f"{sum(seen.values())} names in {len(seen)} pages, {len(found)} of them not installed")
sys.exit(1 if found or not seen else 0)
