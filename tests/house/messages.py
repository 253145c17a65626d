#!/usr/bin/env python3
"""docs/messages.md lists every message number with its English text and the sources that use it. It is written from
src/ui/TextId.h and lang/english.ini; without --write it is only compared. No number may lie beyond the table that holds the
texts: reading there would end the program.

    tests/house/messages.py REPOSITORY [--write]
"""
import re
import sys
from pathlib import Path

ROOT = Path(sys.argv[1])
PAGE = ROOT / 'docs/messages.md'
HEAD = '''# Messages

Every text that the program shows has a number. `src/ui/TextId.h` names the numbers, each file in `lang/` holds the texts of one
language, and this page lists the numbers with the English texts and the sources that use them. It is made by
`tests/house/messages.py . --write`, and a test says when it is stale.

In a language file `&` comes before the letter that is pressed with Alt, `\\n` is a line break, and the program replaces `%1`,
`%2` and `%3`. A text is cut after 299 characters. A text that a file lacks is taken from `english.ini`; one that is missing
there, too, appears as its number: `**57**`. Numbers that are not listed are unused.
'''


def english():
    lines = (ROOT / 'lang/english.ini').read_text(encoding='utf-8').splitlines()
    return dict(re.findall(r'^(\d+)=(.*)$', '\n'.join(lines), re.M))


def uses():
    found = {}
    for source in sorted((ROOT / 'src').rglob('*')):
        if source.suffix in ('.cpp', '.h') and source.name != 'TextId.h':
            for name in set(re.findall(r'\bTextId::(\w+)', source.read_text(encoding='utf-8'))):
                found.setdefault(name, []).append(source.relative_to(ROOT / 'src').as_posix())
    return found


def cell(text):
    return text.replace('|', '\\|')


def page():
    texts, used, unused = english(), uses(), []
    rows = [HEAD]
    body = (ROOT / 'src/ui/TextId.h').read_text(encoding='utf-8').split('enum class TextId')[1]
    for line in body.splitlines():
        section = re.match(r'\s*// (.*)', line)
        entry = re.match(r'\s*(\w+) = (\d+),(?:\s*///< (.*))?', line)
        if section:
            rows += ['', f'## {section[1]}', '', '| Number | Name | English text | Used in |', '|---|---|---|---|']
        elif entry:
            name, number, note = entry.groups()
            if name not in used:
                unused.append(f'{number} ({name}) is used nowhere')
            text = f'`{cell(texts[number])}`' + (f'<br>{cell(note)}' if note else '')
            rows.append(f'| {number} | {name} | {text} | {", ".join(used.get(name, []))} |')
    return '\n'.join(rows) + '\n', unused


def numbers_beyond_the_table():
    size = int(re.search(r'kCount = (\d+);', (ROOT / 'src/ui/Messages.h').read_text(encoding='utf-8'))[1])
    named = re.findall(r'^  (\w+) = (\d+),', (ROOT / 'src/ui/TextId.h').read_text(encoding='utf-8'), re.M)
    return [f'{number} ({name}): numbers end at {size - 1}' for name, number in named if int(number) >= size]


def main():
    text, unused = page()
    beyond = numbers_beyond_the_table()
    if '--write' in sys.argv:
        PAGE.write_text(text, encoding='utf-8')
    stale = not PAGE.exists() or PAGE.read_text(encoding='utf-8') != text
    if stale:
        print('docs/messages.md is not what the sources say: run tests/house/messages.py . --write')
    print('\n'.join(beyond + unused))
    return 1 if stale or beyond else 0


sys.exit(main())
