#!/usr/bin/python3
# SPDX-FileCopyrightText: The ctrDnContacts authors
# SPDX-License-Identifier: Apache-2.0
"""Prints the cells that a program of others finds in a file: sheet, row and column counted from 0, and the text's
UTF-8 in hexadecimal digits, a line for each cell that is not empty.

usage: cells.py xlrd|gnumeric|html|bold FILE     bold: the cells in bold letters alone
"""
import subprocess
import sys
import xml.etree.ElementTree as xml


def by_xlrd(path, bold_only=False):
    import xlrd

    book = xlrd.open_workbook(path, formatting_info=True)
    for number, sheet in enumerate(book.sheets()):
        for row in range(sheet.nrows):
            for column in range(sheet.ncols):
                cell = sheet.cell(row, column)
                if cell.ctype in (xlrd.XL_CELL_EMPTY, xlrd.XL_CELL_BLANK):
                    continue
                assert cell.ctype == xlrd.XL_CELL_TEXT, (number, row, column, cell)
                bold = book.font_list[book.xf_list[cell.xf_index].font_index].bold
                if bold or not bold_only:
                    yield number, row, column, cell.value


def by_gnumeric(path):
    text = subprocess.run(
        ["ssconvert", "--export-type=Gnumeric_XmlIO:sax:0", path, "fd://1"], check=True, stdout=subprocess.PIPE
    ).stdout
    space = "{http://www.gnumeric.org/v10.dtd}"
    for number, sheet in enumerate(xml.fromstring(text).iter(space + "Sheet")):
        for cell in sheet.iter(space + "Cell"):
            assert cell.get("ValueType") == "60", cell.attrib  # a text, and no formula
            yield number, int(cell.get("Row")), int(cell.get("Col")), cell.text


def of_html(path):
    space = "{http://www.w3.org/1999/xhtml}"
    row = 0
    for _, line in xml.iterparse(path):
        if line.tag != space + "tr":
            continue
        for column, cell in enumerate(line):
            if cell.text:
                yield 0, row, column, cell.text
        row += 1
        line.clear()


READERS = {
    "xlrd": by_xlrd,
    "bold": lambda path: by_xlrd(path, bold_only=True),
    "gnumeric": by_gnumeric,
    "html": of_html,
}

for sheet, row, column, text in sorted(READERS[sys.argv[1]](sys.argv[2])):
    print(sheet, row, column, text.encode().hex())
