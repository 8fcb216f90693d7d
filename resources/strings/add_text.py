#!/usr/bin/env python3
"""Adds texts to the plug-in's string table, or replaces them, in every language at once.

Usage: add_text.py FILE.json
       {"The key": {"de": "...", "es": "...", "fr": "...", "it": "...", "ja": "...", "pt": "...",
                    "zh_CN": "..."}, ...}

The key is the English text, character by character. The tables stay sorted by key.
"""

import json
import pathlib
import sys
from xml.etree import ElementTree
from xml.sax.saxutils import escape

TABLES = pathlib.Path(__file__).parent
LANGUAGES = ["de", "en", "es", "fr", "it", "ja", "pt", "zh_CN"]


def read(path):
    if not path.exists():
        return {}
    messages = ElementTree.parse(path).iter("message")
    return {message.findtext("source"): message.findtext("translation") for message in messages}


def write(path, language, texts):
    lines = ['<?xml version="1.0" encoding="utf-8"?>', "<!DOCTYPE TS>"]
    lines += [f'<TS version="2.1" language="{language}" sourcelanguage="en">']
    lines += ["<context>", "    <name>Localizable</name>"]
    for key in sorted(texts):
        lines += ["    <message>"]
        lines += [f"        <source>{escape(key)}</source>"]
        lines += [f"        <translation>{escape(texts[key])}</translation>"]
        lines += ["    </message>"]
    lines += ["</context>", "</TS>"]
    path.write_text("\n".join(lines) + "\n", encoding="utf-8")


def main():
    added = json.loads(pathlib.Path(sys.argv[1]).read_text(encoding="utf-8"))
    missing = [(key, language) for key, texts in added.items() for language in LANGUAGES
               if language != "en" and not texts.get(language)]
    if missing:
        sys.exit("\n".join(f"{language}: no text for {key!r}" for key, language in missing))
    for language in LANGUAGES:
        path = TABLES / f"Localizable_{language}.ts"
        texts = read(path) | {key: key if language == "en" else translations[language]
                              for key, translations in added.items()}
        write(path, language, texts)


if __name__ == "__main__":
    main()
