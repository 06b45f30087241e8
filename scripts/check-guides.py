#!/usr/bin/env python3
"""Checks that the translations of the guide follow docs/kelta.md, and use the words of the interface.

Each docs/LANGUAGE/kelta.md must have the sections of docs/kelta.md, with the same paragraphs, list items, rows of
tables and blocks of code. Each of them must have as many sentences as in English, and the same code, links, pictures,
keys and numbers. Texts of the interface (in quotes, in cells and in headings) must be those of
translations/*_LANGUAGE.ts.

A change of the English guide that changes none of these, such as another word in a sentence, is not found.
"""
import collections
import difflib
import pathlib
import re
import sys
import xml.etree.ElementTree

ROOT = pathlib.Path(__file__).resolve().parent.parent
GUIDE = "kelta.md"

# The names of keys that differ from English, as Qt shows them.
KEY_NAMES = {"Strg": "Ctrl", "Umschalt": "Shift", "Entf": "Del", "Pos1": "Home"}

Block = collections.namedtuple("Block", "kind text line")
Section = collections.namedtuple("Section", "level title line blocks")


def read_blocks(lines):
    """Yields the blocks of a guide: headings, paragraphs, items, rows, and code."""
    kind, text, begin = None, [], 0
    for number, line in enumerate(lines + [""], 1):
        if line.startswith("    ") and kind in (None, "code"):
            new = "code"
        elif not line.strip():
            new = None
        elif line.startswith("#"):
            new = "heading"
        elif line.startswith("|"):
            new = "row"
        elif line.startswith("- "):
            new = "item"
        else:
            new = kind if kind in ("item", "paragraph") else "paragraph"
        if text and (new != kind or new in ("heading", "row") or line.startswith("- ")):
            yield Block(kind, "\n".join(text), begin)
            text = []
        if new and not text:
            begin = number
        kind = new
        if new:
            text.append(line)


def read_guide(path):
    """Returns the sections of a guide."""
    sections = []
    for block in read_blocks(path.read_text(encoding="utf-8").splitlines()):
        if block.kind == "heading":
            marks, title = block.text.split(" ", 1)
            sections.append(Section(len(marks), title, block.line, []))
        elif sections:
            sections[-1].blocks.append(block)
    return sections


def code_of(text):
    """Returns the pieces of code in a text."""
    return re.findall(r"`([^`]*)`", text)


def without_code(text):
    return re.sub(r"`[^`]*`", "`", text)


def in_english(key):
    """Returns a key combination with English names; any other text as it is."""
    return "+".join(KEY_NAMES.get(part, part) for part in key.split("+"))


def keys_of(text):
    """Returns the key combinations and function keys in a text, with English names."""
    names = "Ctrl|Strg|Shift|Umschalt"
    keys = re.findall(rf"\b(?:(?:{names})\+)+(?:F\d+|[A-Z,])|\bF\d+\b", text, re.ASCII)
    return [in_english(key) for key in keys]


def numbers_of(text):
    """Returns the digits of the numbers in a text. Thousands are separated as the language likes."""
    text = re.sub(r"(?<=\d)[.,](?=\d{3}\b)", "", text, flags=re.ASCII)
    return sorted(re.findall(r"(?<![A-Za-z\d])\d+", text, re.ASCII))


def targets_of(text):
    """Returns the targets of links. A page that is not translated is in the parent folder."""
    return [target.removeprefix("../") for target in re.findall(r"(?<!!)\[[^\]]*\]\(([^)]*)\)", text)]


def facts(block):
    """Returns what a block has in every language: a list of pairs of a name and a value."""
    if block.kind == "code":
        return [("code", [re.sub(r"\s+# .*", "", line) for line in block.text.splitlines()])]
    prose = without_code(block.text)
    bare = re.sub(r"\]\([^)]*\)", "]", prose)
    return [
        ("cells", block.text.count(" | ") if block.kind == "row" else 0),
        ("code", sorted(in_english(code) for code in code_of(block.text))),
        ("links", targets_of(prose)),
        ("pictures", re.findall(r"!\[[^\]]*\]\(([^)]*)\)", prose)),
        ("keys", sorted(keys_of(bare))),
        ("numbers", numbers_of(bare)),
        ("sentences", len(re.findall(r"[.!?](?=[\s)|\"”“]|$)|[。！？]", bare))),
    ]


def plain(text):
    """Returns a text of the interface without mnemonic, dots and colon."""
    text = re.sub(r"\(&\w\)", "", text.replace("&&", "\0")).replace("&", "").replace("\0", "&")
    return re.sub(r"(\.\.\.|…|:|：)$", "", text)


def read_interface(language):
    """Returns the translations of each text of the interface."""
    texts = collections.defaultdict(set)
    for path in (ROOT / "translations").glob(f"*_{language}.ts"):
        for message in xml.etree.ElementTree.parse(path).getroot().iter("message"):
            translation = message.findtext("translation")
            if translation:
                texts[plain(message.findtext("source"))].add(plain(translation))
    return texts


def cells_of(row):
    return [cell.strip().strip("`") for cell in row.strip().strip("|").split(" | ")]


def quotes_of(text):
    return re.findall(r"[\"„“]([^\"„“”]*)[\"“”]", " ".join(without_code(text).split()))


def translations_of(text, interface):
    """Returns how the guide may write a text of the interface, such as "View > Language"; None for any other text."""
    parts = [interface.get(plain(part)) for part in text.split(" > ")]
    if not all(parts):
        return None
    paths = [""]
    for options in parts:
        paths = [f"{path} > {option}" if path else option for path in paths for option in options]
    return paths


def missing_words(english, translated, interface):
    """Yields each text of the interface in a block, with its translations, that the translated block does not have."""
    quotes = {plain(quote) for quote in quotes_of(translated.text)}
    for quote in quotes_of(english.text):
        options = translations_of(quote, interface)
        if options and not quotes.intersection(options):
            yield quote, options
    if english.kind == "row":
        for cell, other in zip(cells_of(english.text), cells_of(translated.text)):
            options = translations_of(cell, interface)
            if options and other not in options:
                yield cell, options


def unmatched(wanted, found):
    """Returns the indices of what only `wanted` has, and of what only `found` has, in the order of `wanted`."""
    texts = [[str(each) for each in contents] for contents in (wanted, found)]
    matcher = difflib.SequenceMatcher(a=texts[0], b=texts[1], autojunk=False)
    steps = [step for step in matcher.get_opcodes() if step[0] != "equal"]
    return (
        [index for _, begin, end, _, _ in steps for index in range(begin, end)],
        [index for _, _, _, begin, end in steps for index in range(begin, end)],
    )


class Check:
    """Compares one translation with the English guide, and collects what differs."""

    def __init__(self, path, language):
        self.path = path
        self.interface = read_interface(language)
        self.problems = []

    def report(self, line, text):
        self.problems.append(f"{self.path.relative_to(ROOT)}:{line}: {text}")

    def compare_blocks(self, section, english, translated):
        place = f'section "{section.title}", {english.kind} in line {english.line} of docs/{GUIDE}'
        for (name, wanted), (_, found) in zip(facts(english), facts(translated)):
            if wanted != found:
                self.report(translated.line, f"{place}: {name} {wanted} in English, {found} here")
        for text, options in missing_words(english, translated, self.interface):
            self.report(translated.line, f'{place}: "{text}" of the interface is "{" or ".join(sorted(options))}"')

    def compare_sections(self, english, translated):
        options = self.interface.get(english.title)
        if options and translated.title not in options:
            self.report(translated.line, f'section "{english.title}" must have the title "{" or ".join(options)}"')
        if [block.kind for block in english.blocks] == [block.kind for block in translated.blocks]:
            for pair in zip(english.blocks, translated.blocks):
                self.compare_blocks(english, *pair)
            return
        contents = [[(block.kind, facts(block)) for block in section.blocks] for section in (english, translated)]
        missing, additional = unmatched(*contents)
        for block in (english.blocks[index] for index in missing):
            place = f"{block.kind} in line {block.line} of docs/{GUIDE}"
            self.report(translated.line, f'section "{english.title}": the {place} is missing or differs here')
        for block in (translated.blocks[index] for index in additional):
            self.report(block.line, f'section "{english.title}": this {block.kind} is not in docs/{GUIDE}, or differs')

    def compare_guides(self, english, translated):
        if [section.level for section in english] == [section.level for section in translated]:
            for pair in zip(english, translated):
                self.compare_sections(*pair)
            return
        contents = [
            [(section.level, [facts(block) for block in section.blocks]) for section in guide]
            for guide in (english, translated)
        ]
        missing, additional = unmatched(*contents)
        for section in (english[index] for index in missing):
            place = f"line {section.line} of docs/{GUIDE}"
            self.report(1, f'section "{section.title}" in {place} is missing or differs here')
        for section in (translated[index] for index in additional):
            self.report(section.line, f'section "{section.title}" is not in docs/{GUIDE}, or differs')


def main():
    english = read_guide(ROOT / "docs" / GUIDE)
    problems = []
    for texts in sorted((ROOT / "translations").glob("*.ts")):
        language = texts.stem.split("_", 1)[1]
        check = Check(ROOT / "docs" / language / GUIDE, language)
        if check.path.is_file():
            check.compare_guides(english, read_guide(check.path))
        else:
            check.report(1, f"docs/{GUIDE} is not translated into this language of the program")
        problems += check.problems
    for problem in problems:
        print(problem, file=sys.stderr)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
