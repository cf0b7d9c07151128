#!/usr/bin/env python3
"""Compares the Linguist files with docs/terms.md and with their own source texts: checkterms.py ROOT LANGUAGE COLUMN

Says what is wrong: a term with another word, a placeholder that came or went, a blank at the start or end that the
source text does not have.
"""

import glob
import re
import sys
import xml.etree.ElementTree as ElementTree


def main(root, language, column):
    with open(root + "/docs/terms.md", encoding="utf-8") as table:
        rows = [[cell.strip() for cell in line.split("|")[1:-1]] for line in table if line.startswith("| ")]
    terms = {row[0]: row[int(column)] for row in rows[1:]}
    files = [f for f in glob.glob(root + "/*/**/*_" + language + ".ts", recursive=True) if "/build" not in f]
    found, wrong = set(), []
    for message in (m for f in files for m in ElementTree.parse(f).getroot().iter("message")):
        source, text = message.findtext("source"), message.findtext("translation")
        if source in terms:
            found.add(source)
            if text != terms[source]:
                wrong.append(f"{source}: {text}, but the term is {terms[source]}")
        if sorted(re.findall(r"%\d", source)) != sorted(re.findall(r"%\d", text)):
            wrong.append(f"{source}: other placeholders in {text}")
        if text != text.strip() and source == source.strip():
            wrong.append(f"{source}: blanks around '{text}'")
    wrong += [f"{term} is no text any more" for term in terms if term not in found]
    sys.exit("\n".join(wrong) or 0)


main(*sys.argv[1:])
