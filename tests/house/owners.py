#!/usr/bin/env python3
"""Holds that whatever Windows opens has an owner that closes it: no closing call stands outside the headers of the owner
types, platform/win32/Owned*.h. A window is closed by platform/win32/Dialog.cpp, which is its owner.

    tests/house/owners.py SOURCE_FOLDER
"""
import re
import sys
from pathlib import Path

OWNERS = re.compile(r'platform/win32/Owned\w*\.h$')
CLOSING = {
    'files, kernel objects and libraries': 'CloseHandle FindClose FindVolumeClose FindCloseChangeNotification '
                                           'UnmapViewOfFile FreeLibrary DeregisterEventSource',
    'the registry': 'RegCloseKey',
    'memory': 'VirtualFree VirtualFreeEx HeapFree GlobalFree GlobalUnlock LocalFree CoTaskMemFree SysFreeString ILFree '
              'ReleaseStgMedium',
    'drawing': 'ReleaseDC DeleteDC DeleteObject SelectObject RestoreDC EndPaint CloseEnhMetaFile DeleteEnhMetaFile '
               'DestroyIcon DestroyCursor ImageList_Destroy',
    'windows': 'DestroyMenu DestroyAcceleratorTable UnhookWindowsHookEx RevokeDragDrop CloseClipboard '
               'DestroyPropertySheetPage CloseThemeData',
    'printing': 'ClosePrinter',
}
CALL = re.compile(r'\b(' + '|'.join(name for names in CLOSING.values() for name in names.split()) + r')\b|->(Release)\(\)')


def code_of(path):
    """Its lines without comments, so that these may speak of closing."""
    return [line.split('//')[0] for line in path.read_text().splitlines()]


def main():
    source = Path(sys.argv[1])
    found, owned = [], 0
    for path in sorted(p for p in source.rglob('*') if p.suffix in ('.h', '.cpp')):
        name = path.relative_to(source).as_posix()
        for number, line in enumerate(code_of(path), 1):
            for call in CALL.finditer(line):
                if OWNERS.match(name):
                    owned += 1
                else:
                    found.append(f'{name}:{number}: {call[1] or call[2]} outside an owner type')
    print('\n'.join(found) or f'{owned} closing calls, all in owner types.')
    return 1 if found or owned == 0 else 0


sys.exit(main())
