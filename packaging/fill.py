#!/usr/bin/env python3
"""Writes a template with each @NAME@ replaced by its value, escaped as the kind of file asks for; templates put quotes
around values where the kind has any.

    packaging/fill.py TEMPLATE OUTPUT NAME=VALUE...
"""
import json
import re
import sys
from pathlib import Path
from xml.sax.saxutils import escape

ESCAPED = {
    '.json': lambda text: json.dumps(text, ensure_ascii=False)[1:-1],
    '.yaml': lambda text: json.dumps(text, ensure_ascii=False)[1:-1],  # the same in double quotes
    '.nuspec': escape,
    '.ps1': lambda text: re.sub("(['\u2018-\u201b])", r'\1\1', text),  # curly quotes end a string of PowerShell as well
}

template, output = map(Path, sys.argv[1:3])
values = dict(argument.split('=', 1) for argument in sys.argv[3:])
escaped = ESCAPED[template.suffix]
filled = re.sub('@([A-Z0-9_]+)@', lambda name: escaped(values[name[1]]), template.read_text('utf-8'))
output.parent.mkdir(parents=True, exist_ok=True)
output.write_text(filled, 'utf-8')
