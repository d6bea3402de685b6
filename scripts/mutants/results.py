"""The sample of mutants, and the file that tells what became of them.

The file has a line for each mutant that was run, with tabs between status, name, change, the test that killed it and the time that
took. A line is written as soon as it is known, so that a run that was ended goes on where it was. The statuses:

    killed     a test tells the mutant from the original
    alive      the quick tests don't; the second look waits
    survived   no test does
    invalid    the mutant doesn't compile
"""

import collections
import random

LIVING = ("alive", "survived")


def take_sample(mutants, count, seed):
    """Parts the mutants, which stand in the order of the sources, into equal pieces. One of each is run: the others wait for it not to compile."""
    generator = random.Random(seed)
    count = min(count, len(mutants))
    pieces = [mutants[i * len(mutants) // count:(i + 1) * len(mutants) // count] for i in range(count)]
    for piece in pieces:
        generator.shuffle(piece)
    generator.shuffle(pieces)  # a run that is ended early has been everywhere, too
    return pieces


class Results:
    """What the file says. Of lines of the same mutant the last counts."""

    def __init__(self, path):
        self.path = path
        self.lines = {}
        if path.exists():
            for line in path.read_text().splitlines():
                status, name, rest = line.split("\t", 2)
                self.lines[name] = (status, rest)

    def check_sources(self, mutants):
        """A result of another source would stand for a mutant that is gone."""
        changes = {mutant.name: mutant.change for mutant in mutants}
        stale = [name for name, (_, rest) in self.lines.items() if changes.get(name) != rest.split("\t")[0]]
        if stale:
            raise SystemExit(f"{self.path} has results of other sources, such as {stale[0]}: remove it to begin again")

    def get_status(self, mutant):
        """Empty where it hasn't been run."""
        return self.lines.get(mutant.name, ("", ""))[0]

    def add(self, mutant, status, by, seconds):
        rest = f"{mutant.change}\t{by}\t{seconds:.0f} s"
        self.lines[mutant.name] = (status, rest)
        with self.path.open("a") as file:
            file.write(f"{status}\t{mutant.name}\t{rest}\n")
        self._print_line(mutant.name)

    def report(self):
        """Prints who lives, and the score."""
        for name, (status, _) in sorted(self.lines.items()):
            if status in LIVING:
                self._print_line(name)
        statuses = collections.Counter(status for status, _ in self.lines.values())
        killed = statuses["killed"]
        counted = killed + sum(statuses[status] for status in LIVING)
        print(f"{killed} of {counted} killed ({100 * killed / max(counted, 1):.1f} %), {statuses['survived']} survived, "
              f"{statuses['alive']} wait for a second look, {statuses['invalid']} don't compile")

    def _print_line(self, name):
        status, rest = self.lines[name]
        print(f"{status:8} {name}  {rest}".replace("\t", "  "), flush=True)
