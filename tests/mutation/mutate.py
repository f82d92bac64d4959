# SPDX-License-Identifier: MIT
"""Changes single lines of the six editor folders and runs their tests: a change that no test notices is printed. Changes without
an effect that a test could see stand in equal.txt, with the reason.

mutate.py [FOLDER|FILE...]   below src/; without: all six folders. The tests must have been built (build/files)."""

import concurrent.futures
import hashlib
import json
import os
import pickle
import re
import resource
import shlex
import shutil
import subprocess
import sys
from collections import Counter
from pathlib import Path

import mutants

ROOT = Path(__file__).resolve().parents[2]
HERE, SOURCES, BUILD, WORK = ROOT / 'tests/mutation', ROOT / 'src', ROOT / 'build/files', ROOT / 'build/mutate'
FOLDERS = ['resources', 'settings', 'dialogs', 'recipe', 'editor', 'addin']  # in the order of the layers
JOBS = os.cpu_count() or 1
GENERATOR = Path(mutants.__file__).read_bytes()
LOADED = 'addin/posix_module.cpp'  # the tests load the module as it is shipped


def parallel(function, items):
    with concurrent.futures.ThreadPoolExecutor(JOBS) as pool:
        return list(pool.map(function, items))


# --- the copy of the sources

def parse(path):
    """The file with its changes, from the cache where the file is the same."""
    key = hashlib.sha256(path.read_bytes() + GENERATOR).hexdigest()
    cached = WORK / 'parsed' / key
    if not cached.exists():
        file = mutants.File(SOURCES, path, ['-std=c++20', f'-I{SOURCES}'])
        cached.parent.mkdir(parents=True, exist_ok=True)
        cached.write_bytes(pickle.dumps(file))
    return pickle.loads(cached.read_bytes())


class Copy:
    """The wanted sources, changed, and their objects."""

    def __init__(self, wanted):
        names = {p: str(p.relative_to(SOURCES)) for p in mutants.files_of(SOURCES, FOLDERS)}
        paths = [p for p, name in names.items() if name != LOADED and (not wanted or any(w in 'src/' + name for w in wanted))]
        with concurrent.futures.ProcessPoolExecutor(JOBS) as pool:
            self.files = {f.name: f for f in pool.map(parse, paths)}
        self.left_out = {name: set() for name in self.files}
        commands = json.loads((BUILD / 'compile_commands.json').read_text())
        self.commands = {str(Path(c['file']).relative_to(SOURCES)): c['command'] for c in commands
                         if Path(c['file']).is_relative_to(SOURCES)}

    def build(self):
        shutil.rmtree(WORK / 'src', ignore_errors=True)
        todo = set(self.files)
        while todo:
            for name in todo:
                path = WORK / 'src' / name
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_bytes(self.files[name].text(self.left_out[name]))
            units = self._units() if any(n.endswith('.h') for n in todo) else sorted(todo)
            failures = ''.join(parallel(self._compile, units))
            todo = self._leave_out(failures)
        return [self._object(n) for n in self._units()]

    def _units(self):
        """What has to be compiled: the sources, and all that use a constant of a header."""
        headers = [f'"{n}"' for n, f in self.files.items() if n.endswith('.h') and f.mutants]
        uses = [n for n in self.commands if n.split('/')[0] in FOLDERS and
                any(f'#include {h}' in (SOURCES / n).read_text() for h in headers)]
        return sorted(({n for n in self.files if n in self.commands} | set(uses)) - {LOADED})

    def _object(self, name):
        return str(WORK / 'objects' / name) + '.o'

    def _compile(self, name):
        output = Path(self._object(name))
        output.parent.mkdir(parents=True, exist_ok=True)
        command = shlex.split(self.commands[name])
        command = ['ccache'] + [a for a in command if not re.fullmatch(r'-O\d|-W.*', a)]
        command[command.index('-o') + 1] = str(output)
        command[command.index('-c') + 1] = str((WORK / 'src' if name in self.files else SOURCES) / name)
        first = next(i for i, a in enumerate(command) if a.startswith('-I'))
        command[first:first] = [f'-I{WORK}/src', f'-I{HERE}', '-include', 'mutation.h', '-O0', '-w', '-fpermissive', '-Wno-narrowing']
        done = subprocess.run(command, cwd=BUILD, capture_output=True, text=True)
        return done.stderr if done.returncode else ''

    def _leave_out(self, messages):
        """The changes in lines that the compiler complains about: first those that were not sure to compile."""
        touched = set()
        for name, line in set(re.findall(rf'{WORK}/src/(\S+?):(\d+):\d+: (?:fatal )?(?:error|note)', messages)):
            here = [m for m in self.files[name].mutants
                    if m.line <= int(line) <= m.last_line and m.number not in self.left_out[name]]
            risky = [m for m in here if m.risky]
            self.left_out[name].update(m.number for m in risky or here)
            if here:
                touched.add(name)
        if messages and not touched:
            sys.exit('The copy does not compile:\n' + messages[:4000])
        return touched


# --- the test programs

class Program:
    def __init__(self, folder, objects):
        self.name = f'{folder}_tests'
        self.folder = BUILD / 'tests' / folder
        self.file = WORK / self.name
        link = subprocess.run(['ninja', '-t', 'commands', f'tests/{folder}/{self.name}'], cwd=BUILD, capture_output=True, text=True,
                              check=True).stdout.splitlines()[-1]
        self.link = next(part for part in link.split('&&') if f'-o tests/{folder}/{self.name} ' in part)
        self.uses = {f for f in FOLDERS if f'libhx_{f}.a' in self.link}
        changed = ' '.join(o for o in objects if Path(o).parent.name in self.uses)
        # Before the tests' own objects, which would bring constants of headers that cannot be written.
        self.link = self.link.replace(f'-o tests/{folder}/{self.name} ', f'-o {self.file} ').replace(' tests/', f' {changed} tests/', 1)
        self.reached, self.cpu = {}, 0.0

    def build(self, runtime):
        link = self.link.replace(' -o ', f' {runtime} -o ', 1)
        done = subprocess.run(link, shell=True, cwd=BUILD, capture_output=True, text=True)
        if done.returncode:
            sys.exit(f'{self.name} does not link:\n{done.stderr[:4000]}')

    def record(self):
        """Which tests reach which changes, and what all tests take."""
        record = WORK / (self.name + '.reached')
        record.unlink(missing_ok=True)
        before = resource.getrusage(resource.RUSAGE_CHILDREN)
        code = self._run({'HX_MUTATION_RECORD': str(record)}, [], 600)
        after = resource.getrusage(resource.RUSAGE_CHILDREN)
        if code:
            sys.exit(f'{self.file} fails without any change')
        self.cpu = after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime
        for line in record.read_text().splitlines() if record.exists() else []:
            test, *numbers = line.split(' ')
            for number in numbers:
                self.reached.setdefault(int(number), set()).add(test)

    def notices(self, mutant):
        tests = self.reached.get(mutant.number)
        if not tests:
            return False
        every = mutant.static or '*' in tests or len(tests) > 300
        chosen = [] if every else ['--gtest_filter=' + ':'.join(sorted(tests))]
        return self._run({'HX_MUTANT': str(mutant.number)}, ['--gtest_fail_fast', *chosen], int(5 + 4 * self.cpu)) != 0

    def _run(self, environment, arguments, seconds):
        def limit():
            resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds))  # a loop without end
            resource.setrlimit(resource.RLIMIT_AS, (4 << 30, 4 << 30))
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
        done = subprocess.run([self.file, '--gtest_brief=1', *arguments], cwd=self.folder, preexec_fn=limit,
                              env={**os.environ, 'TMPDIR': str(WORK / 'tmp'), 'HOME': str(WORK / 'tmp'), **environment}, stdin=subprocess.DEVNULL,
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        return done.returncode


def programs_of(folder, programs):
    """Those that use the folder, its own first."""
    return [p for p in programs if folder in p.uses]


# --- the result

def equal_changes():
    """How often {(file, source line, change)} is known: file, line, change and reason stand on lines of their own, each further to
    the right."""
    known, place = Counter(), ['', '', '']
    for line in (HERE / 'equal.txt').read_text().splitlines():
        depth = (len(line) - len(line.lstrip())) // 4
        if line and not line.startswith('#') and depth < len(place):
            place[depth] = line.strip()
            if depth == 2:
                known[tuple(place)] += 1
    return known


def place_of(file, mutant):
    return ('src/' + file.name, file.source.decode().splitlines()[mutant.line - 1].strip(), mutant.change)


class Results:
    """What noticed a change stays true while the file is the same: tests are only added."""

    def __init__(self):
        self.path = WORK / 'noticed.json'
        self.noticed = json.loads(self.path.read_text()) if self.path.exists() else {}

    def key(self, file, mutant):
        return hashlib.sha256(file.source + GENERATOR).hexdigest()[:16] + f'{mutant.number}'

    def save(self):
        self.path.write_text(json.dumps(self.noticed))


def try_all(file, copy, programs, results):
    """Gives the changes of the file that nothing noticed."""
    def attempt(mutant):
        key = results.key(file, mutant)
        if key not in results.noticed:
            noticed = next((p.name for p in programs_of(file.name.split('/')[0], programs) if p.notices(mutant)), None)
            if noticed is None:
                return mutant
            results.noticed[key] = noticed
        return None
    todo = [m for m in file.mutants if m.number not in copy.left_out[file.name] and
            # What the tests alone compile of a header is not changed.
            (file.name.endswith('.cpp') or any(m.number in p.reached for p in programs))]
    alive = [m for m in parallel(attempt, todo) if m is not None]
    results.save()
    return len(todo), alive


def main(wanted):
    (WORK / 'tmp').mkdir(parents=True, exist_ok=True)
    copy = Copy(wanted)
    objects = copy.build()
    runtime = str(WORK / 'mutation.o')
    subprocess.run(['ccache', 'c++', '-std=c++20', '-O1', '-c', str(HERE / 'mutation.cpp'), '-o', runtime], check=True)
    first = min(FOLDERS.index(f.name.split('/')[0]) for f in copy.files.values())
    programs = [Program(folder, objects) for folder in FOLDERS[first:]]
    parallel(lambda p: p.build(runtime), programs)
    for program in programs:
        program.record()
    equal, results, total = equal_changes(), Results(), Counter()
    for file in copy.files.values():
        tried, alive = try_all(file, copy, programs, results)
        total.update(tried=tried, left=len(copy.left_out[file.name]))
        for mutant in sorted(alive, key=lambda m: (m.line, m.number)):
            place = place_of(file, mutant)
            if equal[place] > 0:
                equal[place] -= 1
                total['equal'] += 1
            else:
                total['alive'] += 1
                print(f'src/{file.name}:{mutant.line}: {mutant.change}', flush=True)
    print(f'{total["tried"]} changes tried, {total["alive"]} not noticed, {total["equal"]} without effect, '
          f'{total["left"]} that do not compile')
    return total['alive'] != 0


if __name__ == '__main__':
    sys.exit(main(sys.argv[1:]))
