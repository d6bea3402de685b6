"""Builds: the original once, then of each mutant only what differs.

The sources are copied, so that work on them goes on meanwhile, and built with the project's own CMake files. The changed source
lies in a folder of its own that is searched for includes first: all includes name the path from src/, so that a changed header
takes the place of the original. The objects made with it are linked ahead of the libraries, which the linker then doesn't ask
for what it has already met.
"""

import collections
import json
import os
import pathlib
import shlex
import shutil
import subprocess


class DoesNotCompile(Exception):
    pass


class Build:
    """The copy of the sources, what is built of them, and the room in which mutants are built."""

    def __init__(self, project, work):
        self.project = project
        self.tree, self.folder, self.room, self.scratch = (work / name for name in ("tree", "build", "mutant", "scratch"))
        for folder in (self.tree, self.room, self.scratch):
            folder.mkdir(parents=True, exist_ok=True)
        self.scratch.chmod(0o777)  # tests write here, perhaps as another user
        self.links, self.objects = {}, {}  # of each program, read when it is met first

    def make(self, targets):
        """Builds the original: optimised a little, since tests run much more often than this compiles."""
        self._copy_sources()
        if not (self.folder / "build.ninja").exists():
            linker = ["-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld"] if shutil.which("ld.lld") else []
            run_checked(["cmake", "-S", self.tree, "-B", self.folder, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=None",
                         "-DCMAKE_CXX_FLAGS=-O1 -D_GLIBCXX_ASSERTIONS", *linker])
        run_checked(["ninja", "-j1", "-C", self.folder, *targets])
        self._read_compilations()
        self._read_includes()

    def _copy_sources(self):
        """What hasn't changed is left alone, so that it isn't built again."""
        command = ["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"]
        listed = subprocess.run(command, cwd=self.project, check=True, capture_output=True).stdout.decode()
        files = {name for name in listed.split("\0") if name and os.path.lexists(self.project / name)}
        for path in self.tree.rglob("*"):
            if not path.is_dir() and str(path.relative_to(self.tree)) not in files:
                path.unlink()
        for name in files:
            copy_if_changed(self.project / name, self.tree / name)

    def _read_compilations(self):
        """Source and command of each object, apart from those that no test links."""
        self.compilations = {}
        for entry in json.loads((self.folder / "compile_commands.json").read_text()):
            words = shlex.split(entry["command"])
            output = words[words.index("-o") + 1]
            if not output.startswith(("fuzz/", "benchmarks/")):
                self.compilations[output] = (os.path.relpath(entry["file"], self.tree), words)

    def _read_includes(self):
        """The objects that depend on each source or header: a line with an object, then what it was made of, indented."""
        self.dependents = collections.defaultdict(set)
        current = None
        for line in self._ask_ninja("deps").splitlines():
            if line.startswith("    "):
                self.dependents[os.path.relpath(line.strip(), self.tree)].add(current)
            elif line:
                current = line.split(":")[0]

    def _ask_ninja(self, *question):
        return run_checked(["ninja", "-C", self.folder, "-t", *question])

    def _read_program(self, program):
        """The command that links a program, without the shell's words around it, and all objects that may go into it."""
        if program not in self.links:
            command = self._ask_ninja("commands", "-s", program).strip().splitlines()[-1]
            self.links[program] = [word for word in shlex.split(command) if word not in (":", "&&")]
            self.objects[program] = set(self._ask_ninja("inputs", program).split())

    def write_mutant(self, mutant):
        """Clears the room and puts the changed source there."""
        shutil.rmtree(self.room)
        path = self.room / mutant.file
        path.parent.mkdir(parents=True)
        source = (self.tree / mutant.file).read_text()
        path.write_text(source[:mutant.start] + mutant.new + source[mutant.end:])

    def build_program(self, program, mutant, is_whole):
        """The program with the mutant that was written, or none where it doesn't hold the file."""
        self._read_program(program)
        replaced = {name: self._compile(name) for name in self._find_objects(program, mutant.file, is_whole)}
        return self._link(program, replaced) if replaced else None

    def _find_objects(self, program, file, is_whole):
        """The objects of a program that change with a file. Unless all are wanted, a header's own test and source do.

        A header without these is tried with the sources that are named after it, or else with some that include it.
        """
        dependents = sorted((self.dependents[file] & self.objects[program] & set(self.compilations)), key=lambda name: (len(name), name))
        if is_whole or file.endswith(".cpp"):
            return dependents
        stem = pathlib.PurePath(file).stem
        stems = {name: pathlib.PurePath(self.compilations[name][0]).stem for name in dependents}
        own = [name for name in dependents if stems[name] in (stem, stem + "Test")]
        return own or [name for name in dependents if stems[name].startswith(stem)][:3] or dependents[:8]

    def _compile(self, output):
        """The object of a source with the mutant. Programs share it."""
        target = self.room / output
        if not target.exists():
            source, (compiler, *words) = self.compilations[output]
            target.parent.mkdir(parents=True, exist_ok=True)
            words[words.index("-o") + 1] = str(target)
            if (self.room / source).exists():
                words[words.index("-c") + 1] = str(self.room / source)
            done = subprocess.run([compiler, f"-I{self.room}/src", "-w", *words], cwd=self.folder, capture_output=True, check=False)
            if done.returncode != 0:
                raise DoesNotCompile
        return str(target)

    def _link(self, program, replaced):
        """Links a program with objects in the place of others, or of what a library has."""
        target = self.room / "bin" / pathlib.PurePath(program).name
        target.parent.mkdir(parents=True, exist_ok=True)
        linker, *words = (word for word in self.links[program] if word not in replaced)
        words[words.index("-o") + 1] = str(target)
        run_checked([linker, *replaced.values(), *words], cwd=self.folder)
        return target


def copy_if_changed(source, target):
    if source.is_symlink():
        if not os.path.lexists(target):
            target.parent.mkdir(parents=True, exist_ok=True)
            os.symlink(os.readlink(source), target)
    elif not target.exists() or target.read_bytes() != source.read_bytes():
        target.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy2(source, target)
        target.touch()  # newer than what was built of the one before, however old the source is


def run_checked(command, cwd=None):
    done = subprocess.run(command, cwd=cwd, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
    if done.returncode != 0:
        raise SystemExit(f"{' '.join(map(str, command))}\n{done.stdout}")
    return done.stdout
