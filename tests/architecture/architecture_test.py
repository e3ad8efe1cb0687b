"""Checks src/ against the tables of docs/architecture.md. Usage: architecture_test.py ROOT"""

import pathlib
import re
import sys
import tempfile
import unittest

ROOT = pathlib.Path(sys.argv.pop(1) if len(sys.argv) > 1 else '.')
MAXIMUM_LINES = 400
SIBLINGS = {'history', 'notify', 'providers'}
SEAMS = ('platform/linux',)  # folders below a folder that are libraries of their own
INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*([<"])([^>"]+)[>"]', re.MULTILINE)
LINK = re.compile(r'\b(tallyvane_library|target_link_libraries)\s*\(([^)]*)\)')
LINKED_MODULE = {'Qt6': 'Qt', 'QCoro6': 'Qt', 'PkgConfig': ''}  # Qt6::DBus is QtDBus


def module_of(name):
    """Quick and Quick Controls, Qml and its parts count as one module each."""
    return next((m for m in ('QtQuick', 'QtQml') if name.startswith(m)), name)


def folder_of(path):
    return next((seam for seam in SEAMS if path.startswith(seam + '/')), path.split('/')[0])


def folder_of_target(target):
    name = target.removeprefix('tallyvane_')
    seam = next((seam for seam in SEAMS if (name + '_').startswith(seam.replace('/', '_') + '_')),
                None)
    return seam or name.split('_')[0]


def tables(document):
    """The tables by the heading of their first column, as {name: folders}."""
    found, current = {'Folder': {}, 'Module': {}, 'Name': {}}, None
    for line in document.splitlines():
        cells = [cell.strip() for cell in line.strip().strip('|').split('|')]
        if cells[0] in found:
            current = found[cells[0]]
        elif current is not None and line.startswith('| `'):
            for name in re.findall(r'`([^`]+)`', cells[0]):
                current[name] = set(re.findall(r'`([^`]+)`', cells[1]))
        elif not line.startswith('|'):
            current = None
    return found


def uses(root, names, problems):
    """Yields (where, folder, used folder or None, used module or None)."""
    source = root / 'src'
    folders = {entry.name for entry in source.iterdir() if entry.is_dir()}
    for path in sorted(source.rglob('*')):
        file = path.relative_to(source).as_posix()
        where = f'src/{file}'
        if path.suffix in ('.h', '.cpp'):
            text = path.read_text(encoding='utf-8')
            if text.count('\n') > MAXIMUM_LINES:
                problems.append(f'{where}: over {MAXIMUM_LINES} lines')
            code = re.sub(r'//.*', '', text)
            for name, allowed in names.items():
                pattern = r'\b' + name.replace('*', r'\w*') + r'\b'
                if folder_of(file) not in allowed and re.search(pattern, code):
                    problems.append(f'{where}: {name} has no place in {folder_of(file)}')
            for kind, included in INCLUDE.findall(text):
                if kind == '<':
                    if re.match(r'Q[A-Z]\w*$', included):
                        problems.append(f'{where}: <{included}> does not name its module')
                    module = included.split('/')[0]
                    coro = re.match(r'QCoro/QCoro(Network|DBus|Qml|Quick)', included)
                    yield where, folder_of(file), None, f'Qt{coro[1]}' if coro else module
                elif included.split('/')[0] in folders and '/' in included:
                    yield where, folder_of(file), folder_of(included), None
                elif not re.fullmatch(r'\w+\.moc|moc_\w+\.cpp', included):
                    problems.append(f'{where}: "{included}" is not a path from src/')
        elif path.name == 'CMakeLists.txt' and '/' in file:
            text = re.sub(r'#.*', '', path.read_text(encoding='utf-8'))
            for command, arguments in LINK.findall(text):
                owner, *words = arguments.split()
                is_program = command != 'tallyvane_library' and not owner.startswith('tallyvane_')
                owner = folder_of(file) if is_program else folder_of_target(owner)
                for word in words:
                    library, _, module = word.partition('::')
                    if word.startswith('tallyvane_') and word != 'tallyvane_options':
                        yield where, owner, folder_of_target(word), None
                    elif library in LINKED_MODULE:
                        yield where, owner, None, LINKED_MODULE[library] + module


def check(root):
    """What is wrong in the tree at root, as one line each."""
    found = tables((root / 'docs/architecture.md').read_text(encoding='utf-8'))
    arrows = {(a, b) for a, uses_of_a in found['Folder'].items() for b in uses_of_a}
    modules = found['Module']
    problems = [f'docs/architecture.md: {a} and {b} meet only in core'
                for a, b in arrows if {a, b} <= SIBLINGS]
    used = set()
    for where, folder, to, module in uses(root, found['Name'], problems):
        if to and to != folder:
            used.add((folder, to))
            if (folder, to) not in arrows:
                problems.append(f'{where}: no arrow {folder} -> {to}')
        allowed = modules.get(module_of(module)) if module else None
        if allowed is not None and folder not in allowed:
            problems.append(f'{where}: {module} has no place in {folder}')
    return problems + [f'docs/architecture.md: arrow {a} -> {b} is not used'
                       for a, b in sorted(arrows - used)]


DOCUMENT = '''
| Folder | Uses | Why |
|---|---|---|
| `providers` | `model` | because |
| `platform/linux` | `platform` | because |

| Module | Only in | Why |
|---|---|---|
| `QtDBus` | `platform/linux` | because |
| `QtQml` | `ui` | because |

| Name | Only in | Why |
|---|---|---|
| `getenv`, `qget*` | `app` | because |
| `localNow` | nowhere | because |
'''
SOUND = {
    'docs/architecture.md': DOCUMENT,
    'src/model/a.h': '#include <QtCore/QString>\n',
    'src/model/CMakeLists.txt': 'tallyvane_library(model SOURCES a.h PUBLIC Qt6::Core)\n',
    'src/history/h.h': '',
    'src/platform/p.h': '',
    'src/platform/linux/l.h': '#include "platform/p.h"\n#include <QtDBus/QDBusMessage>\n',
    'src/platform/CMakeLists.txt':
        'tallyvane_library(platform_linux PUBLIC tallyvane_platform PRIVATE Qt6::DBus)\n',
    'src/providers/claude/c.cpp': '#include "model/a.h"\n#include "c.moc"\n',
}


class Architecture(unittest.TestCase):
    maxDiff = None

    def test_this_tree(self):
        self.assertEqual(check(ROOT), [])

    def test_finds_planted_faults(self):
        for path, text, expected in (
            (None, None, None),
            ('src/model/b.h', '#include "history/h.h"', 'no arrow model -> history'),
            ('src/platform/q.h', '# include "platform/linux/l.h"',
             'no arrow platform -> platform/linux'),
            ('src/providers/CMakeLists.txt',
             'target_link_libraries(tallyvane_providers\n PRIVATE tallyvane_history) # why',
             'no arrow providers -> history'),
            ('src/model/b.h', '#include <QtDBus/QDBusMessage>', 'QtDBus has no place in model'),
            ('src/providers/b.h', '#include <QCoro/QCoroDBus>', 'QtDBus has no place in providers'),
            ('src/providers/b.h', '#include <QDBusMessage>', 'does not name its module'),
            ('src/model/CMakeLists.txt', 'tallyvane_library(model PUBLIC Qt6::QmlModels)',
             'QtQmlModels has no place in model'),
            ('src/platform/CMakeLists.txt',
             SOUND['src/platform/CMakeLists.txt'] +
             'tallyvane_library(platform_linux_keyring PRIVATE tallyvane_history)',
             'no arrow platform/linux -> history'),
            ('src/model/b.h', '#include "a.h"', '"a.h" is not a path from src/'),
            ('src/model/b.h', '#include "../model/a.h"', '"../model/a.h" is not a path from src/'),
            ('src/model/b.cpp', 'auto a = ::getenv("A");', 'getenv has no place in model'),
            ('src/model/b.cpp', 'qgetenv("A");', 'qget* has no place in model'),
            ('src/app/b.cpp', 'localNow();', 'localNow has no place in app'),
            ('src/app/b.cpp', 'qgetenv("A"); // not localNow()', None),
            ('src/model/b.h', '\n' * 401, 'over 400 lines'),
            ('src/providers/claude/c.cpp', '', 'arrow providers -> model is not used'),
            ('docs/architecture.md', DOCUMENT.replace('`model` |', '`model`, `history` |'),
             'providers and history meet only in core'),
        ):
            with self.subTest(expected=expected), tempfile.TemporaryDirectory() as root:
                for name, content in {**SOUND, **({path: text} if path else {})}.items():
                    file = pathlib.Path(root, name)
                    file.parent.mkdir(parents=True, exist_ok=True)
                    file.write_text(content, encoding='utf-8')
                problems = check(pathlib.Path(root))
                self.assertEqual(bool(problems), bool(expected), problems)
                self.assertIn(expected or '', ''.join(problems))


if __name__ == '__main__':
    unittest.main()
