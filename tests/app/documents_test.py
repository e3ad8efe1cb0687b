"""Checks docs/interfaces.md and docs/troubleshooting.md against the program and its source, in both
directions. Usage: documents_test.py ROOT PROGRAM"""

import configparser
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

PROGRAM = sys.argv.pop(2)
ROOT = pathlib.Path(sys.argv.pop(1))
LITERALS = re.compile(r'(?:"(?:[^"\\\n]|\\.)*"\s*)+')
SENTENCE = re.compile(r'[A-Z%].* .*[^.]\.$|(To|Make it|Move it|Keep it) ')
# Not for the user: what callers on the session bus read.
NOT_SHOWN = {'There is no action of this name.'}
CODEX = '''#!/bin/sh
reset=$(($(date +%s) + 9000))
echo '{"id":1,"result":{"rateLimits":{"planType":"plus","primary":{"usedPercent":80,"resetsAt":'$reset'},\
"secondary":{"usedPercent":1,"resetsAt":1}}}}'
cat
'''


def sections():
    """The first cells of each section's table in docs/interfaces.md, by heading."""
    found, heading = {}, None
    for line in (ROOT / 'docs/interfaces.md').read_text(encoding='utf-8').splitlines():
        if line.startswith('#'):
            heading = line.lstrip('# ')
        elif match := re.match(r'\| (?:`([^`]+)`( \?)?|(\d)) \|', line):
            found.setdefault(heading, []).append(match[1] or match[3])
    return found


def paths(value, prefix=''):
    """The paths of all values in a JSON value, as the document writes them."""
    if isinstance(value, dict) and not prefix.endswith('snapshot'):
        parts = [paths(member, f'{prefix}.{key}' if prefix else key)
                 for key, member in value.items()]
        return set().union(*parts)
    if isinstance(value, list) and not prefix.endswith('snapshot'):
        return set().union(*[paths(member, prefix + '[]') for member in value])
    return {re.sub(r'^(failures|totals)\.(codex|claude)', r'\1.<provider>', prefix)}


def literals():
    """The string literals of the source but for the windows' labels and --help."""
    for path in sorted((ROOT / 'src').rglob('*.cpp')):
        if ROOT / 'src/ui' not in path.parents and not path.name.startswith('usage'):
            code = re.sub(r'^\s*//.*$', '', path.read_text(encoding='utf-8'), flags=re.MULTILINE)
            for match in LITERALS.findall(code):
                parts = re.findall(r'"((?:[^"\\\n]|\\.)*)"', match)
                yield re.sub(r'%\d', '…', ''.join(parts).replace('\\"', '"'))


class Documents(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.home = pathlib.Path(folder.name)

    def run_program(self, *arguments):
        environment = {'HOME': str(self.home), 'PATH': '/usr/bin:/bin', 'LANG': 'C.UTF-8'}
        return subprocess.run([PROGRAM, *arguments], env=environment, capture_output=True,
                              check=False, text=True, timeout=60).stdout

    def install_codex(self, folder):
        program = self.home / folder / 'codex'
        program.parent.mkdir(parents=True)
        program.write_text(CODEX, encoding='utf-8')
        program.chmod(0o755)

    def test_fields(self):
        (self.home / '.codex/archived_sessions').mkdir(parents=True)
        self.install_codex('.bun/bin')
        refresh = self.run_program('refresh', '--json')
        self.install_codex('.local/bin')
        self.run_program('refresh')
        outputs = {name: self.run_program(command, '--json') for name, command in (
            ('quota-snapshot.json', 'status'), ('usage-history.json', 'history'),
            ('tokens --json', 'tokens'), ('pace --json', 'pace'), ('doctor --json', 'doctor'))}
        found = {name: paths(json.loads(output)) for name, output in outputs.items()}
        found['history --csv'] = set(self.run_program('history', '--csv').split('\n')[0].split(','))
        store = self.home / '.local/share/Gaugewell'
        self.assertEqual((store / 'quota-snapshot.json').read_text() + '\n',
                         outputs['quota-snapshot.json'])
        os.rename(store, str(store) + '-before')
        store.write_text('')
        found['refresh --json'] = (paths(json.loads(refresh)) | {'notCounted'} |
                                   paths(json.loads(self.run_program('refresh', '--json'))))
        self.assertIn('notCounted', set(literals()))
        documented = sections()
        for name, fields in found.items():
            checks = {'codex', 'claude', 'network', 'logs', 'files', 'desktop'}
            listed = {field for field in documented[name] if field.split('.')[0] not in checks}
            self.assertEqual(fields, listed, name)

    def test_checks(self):
        source = ''.join(path.read_text(encoding='utf-8')
                         for path in (ROOT / 'src/app').glob('doctor_*.cpp'))
        known = set(re.findall(r'"((?:codex|claude|network|logs|files|desktop)\.\w+)"', source))
        listed = {field for field in sections()['doctor --json']
                  if field.startswith(('codex', 'claude', 'network', 'logs', 'files', 'desktop'))}
        self.assertEqual(known | {'logs.claude'}, listed)

    def test_settings(self):
        self.install_codex('bin')
        for key, value in (('appearance', 'dark'), ('notifications', 'on'), ('providers', 'codex'),
                           ('low-quota-notifications', 'on'),
                           ('codex-path', str(self.home / 'bin/codex'))):
            self.run_program('config', 'set', key, value)
        self.run_program('refresh')
        settings = configparser.RawConfigParser(strict=False)
        settings.optionxform = str
        settings.read(self.home / '.config/group.corvelle.Gaugewell.conf')
        keys = set(settings['General']) | (
            {'hasAskedLaunchAtLogin', 'hidesStatusHostNotice', 'lowQuotaWarnings',
             'windowMaximized', 'windowSize'}
            & set(literals()))
        self.assertEqual(keys, set(sections()['Settings']))

    def test_exit_codes(self):
        terminal = (ROOT / 'src/app/terminal.h').read_text(encoding='utf-8')
        codes = re.findall(r'= (\d)', re.search(r'enum class ExitCode \{(.*?)\}', terminal,
                                                re.DOTALL)[1])
        self.assertEqual(codes, sections()['Exit codes'])

    def test_texts(self):
        known = set(literals())
        document = (ROOT / 'docs/troubleshooting.md').read_text(encoding='utf-8')
        quotes = set(re.findall(r'^> (.*)$', document, re.MULTILINE))
        wanted = {text for text in known if SENTENCE.match(text)} - NOT_SHOWN
        self.assertEqual(wanted - quotes, set(), 'not in docs/troubleshooting.md')
        # The others are put together from several texts.
        parts = {part.strip() for quote in quotes - known for part in re.split('[….]', quote)}
        unknown = {part for part in parts if not any(part in text for text in known)}
        self.assertEqual(unknown, set(), 'in docs/troubleshooting.md only')


if __name__ == '__main__':
    unittest.main()
