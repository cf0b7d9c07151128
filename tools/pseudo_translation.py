#!/usr/bin/env python3
"""Writes the pseudo language of a Linguist file: every source text with accents, 40 % longer, in brackets.

    tools/pseudo_translation.py TEXTS.ts PSEUDO.ts

The build calls it. A text that is cut lacks a bracket, a text that was never handed to a translator has none. What a
program reads (%1, file patterns) stays; so do texts without letters, and blanks at the ends, which join parts.
"""

import math
import re
import sys
import xml.etree.ElementTree as ElementTree

GROWTH = 1.4
ACCENTS = str.maketrans("ACDEGHIJKLNORSTUWYZacdeghijklnorstuwyz", "ÀĆĎÉĜĤÎĴĶĹŃÖŔŠŤÛŴÝŽàćďéĝĥîĵķĺńöŕšťûŵýž")
KEPT = re.compile(r"(%n|%L?\d+|\(\*[^)]*\))")
VOWEL = re.compile(r"[aeiouAEIOU]")


def pseudo(text):
    core = text.strip()
    if not any(c.isalpha() for c in KEPT.sub("", core)):
        return text
    missing = math.ceil(len(core) * GROWTH) - len(core) - 2
    parts = KEPT.split(core)
    for i in range(0, len(parts), 2):
        grown = ""
        for c in parts[i]:
            grown += c
            if missing > 0 and VOWEL.match(c):
                grown += c.lower()
                missing -= 1
        parts[i] = grown.translate(ACCENTS)
    tail = " " + "öńé ťŵö "[: missing - 1].strip() if missing > 1 else ""
    before, after = text[: len(text) - len(text.lstrip())], text[len(text.rstrip()) :]
    return before + "[" + "".join(parts) + tail + "]" + after


def main(texts, target):
    tree = ElementTree.parse(texts)
    tree.getroot().set("language", "en")
    for message in tree.getroot().iter("message"):
        translation = message.find("translation")
        if message.get("numerus"):
            sys.exit(f"{texts}: texts with plural forms are not known here")
        translation.attrib.clear()
        translation.text = pseudo(message.findtext("source"))
    tree.write(target, encoding="utf-8", xml_declaration=True)


if __name__ == "__main__":
    main(*sys.argv[1:])
