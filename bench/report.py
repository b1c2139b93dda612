#!/usr/bin/env python3
"""Prints what scripts/bench measured as Markdown, and judges it by the goals.

usage: report.py RESULTS OBJECTS BUILD

RESULTS holds what the programs wrote, OBJECTS what the compiler says of each function's frame, BUILD names the
kind of build that is released. The exit status is 1 when a goal that does not depend on time is missed.
"""

import collections
import json
import pathlib
import statistics
import sys

OWN = "daksdp"
EXAMPLES = pathlib.Path(__file__).resolve().parent.parent / "examples"
BODIES = ["small_audio_offer", "volte_offer", "vilte_offer", "msrp_file_transfer", "many_media"]
SMALLEST = "MinSizeRel"
OPERATIONS = ["parse", "generate", "round trip", "validate offer", "validate answer", "duplicate"]
PEERS = {"GStreamer": "libgstreamer-plugins-base1.0-dev", "oSIP": "libosip2-dev", "Sofia-SIP": "libsofia-sip-ua-dev"}
LARGEST_FRAMES = 3
STACK_LIMIT = 4096
KB = 1024


def rows(path):
    return [line.split("\t") for line in path.read_text().splitlines()]


def plural(count, noun):
    return f"{count:,} {noun}" if count == 1 else f"{count:,} {noun}s"


def table(head, lines):
    print("|", " | ".join(head), "|")
    print("|" + "---|" * len(head))
    for line in lines:
        print("|", " | ".join(str(cell) for cell in line), "|")
    print()


class Results:
    """What was measured, by "operation/body/library"."""

    def __init__(self, directory, objects, build):
        self.build = build
        self.rounds = [self.read_round(path) for path in sorted(directory.glob("round-*.json"))]
        self.machine = json.loads(next(directory.glob("round-*.json")).read_text())["context"]
        self.instructions = {name: int(count) for name, count in rows(directory / "instructions")}
        self.heap = {tuple(row[1:3]): list(map(int, row[3:])) for row in rows(directory / "heap") if row[0] == "heap"}
        self.kept = {row[1]: list(map(int, row[2].split(","))) for row in rows(directory / "heap") if row[0] == "kept"}
        self.stack = [(name, int(depth), body) for name, depth, body in rows(directory / "stack")]
        self.sizes = rows(directory / "sizes")
        self.compiler = (directory / "compiler").read_text().strip()
        self.frames = self.read_frames(objects)

    @staticmethod
    def read_round(path):
        return {each["name"]: each["cpu_time"] for each in json.loads(path.read_text())["benchmarks"]}

    @staticmethod
    def read_frames(objects):
        """Frames of all functions, largest first; those of a source that is gone are left over from an older build."""
        frames = []
        for path in objects.rglob("*.su"):
            if not path.with_suffix(".o").exists():
                continue
            for place, size, kind in rows(path):
                file, line, _, function = place.split(":", 3)
                frames.append((int(size), f"{pathlib.Path(file).name}:{line}", function, kind))
        return sorted(frames, reverse=True)

    def time(self, operation, body, library=OWN):
        """Median in nanoseconds, or None."""
        name = f"{operation}/{body}/{library}"
        return statistics.median(each[name] for each in self.rounds) if name in self.rounds[0] else None

    def ratio(self, operation, body, library):
        """Median of the rounds' ratios: what slows a round down slows both."""
        name = f"{operation}/{body}/"
        return statistics.median(each[name + OWN] / each[name + library] for each in self.rounds)

    def peers(self):
        found = dict.fromkeys(name.rsplit("/", 1)[1] for name in self.rounds[0])
        found.pop(OWN)
        return list(found)

    def to_fastest(self, operation, body):
        times = {peer: self.time(operation, body, peer) for peer in self.peers()}
        times = {peer: time for peer, time in times.items() if time is not None}
        return self.ratio(operation, body, min(times, key=times.get)) if times else None


def microseconds(nanoseconds):
    return "" if nanoseconds is None else f"{nanoseconds / 1000:,.2f}"


def call_row(results, operation, body):
    ratio = results.to_fastest(operation, body)
    _, allocations, peak = results.heap[operation, body]
    times = [microseconds(results.time(operation, body, library)) for library in [OWN] + results.peers()]
    size = (EXAMPLES / f"{body}.sdp").stat().st_size
    return [operation, f"{body}, {size:,}", *times, "" if ratio is None else f"{ratio:.2f}",
            f"{results.instructions[f'{operation}/{body}/{OWN}']:,}", allocations, f"{peak:,}"]


def print_calls(results):
    print("## Calls\n")
    table(["call", "body, bytes", f"{OWN}, µs", *results.peers(), "to the fastest", "instructions", "allocations",
           "peak heap, bytes"],
          [call_row(results, operation, body) for operation in OPERATIONS for body in BODIES])
    print("Where examples/ has no answer, \"validate answer\" takes the offer as its own answer.\n")
    for (operation, body), (code, *_) in results.heap.items():
        if code != 0:
            print(f"\"{operation}\" refuses {body} with code {code}: the row is what it takes to find that.\n")
    for name, package in PEERS.items():
        if not any(peer.startswith(name) for peer in results.peers()):
            print(f"Without {name}: {package} is not installed.\n")


def print_peers(results):
    def cells(body, peer):
        counts = [results.instructions.get(f"{operation}/{body}/{peer}") for operation in OPERATIONS[:3]]
        return [body, peer, microseconds(results.time("parse, formats as text", body, peer)),
                *("" if count is None else f"{count:,}" for count in counts)]

    if not results.peers():
        return
    print("## The other libraries\n")
    table(["body", "library", "parse without breaking formats down, µs", "instructions of parse", "generate",
           "round trip"], [cells(body, peer) for body in BODIES for peer in results.peers()])


def floor(results):
    """Time of zeroing the records of many_media, of a scan of its text, of its parse, and of what is allowed."""
    zero, scan, parse = (results.time(name, "many_media") for name in ("zero", "scan", "parse"))
    return zero, scan, parse, 2 * zero + scan


def print_floor(results):
    zero, scan, parse, allowed = map(microseconds, floor(results))
    kept = results.kept["many_media"]
    print("## 18 media lines\n")
    table(["many_media", "µs"],
          [[f"zeroing what its container keeps: {plural(len(kept), 'block')}, {sum(kept):,} bytes", zero],
           ["looking at every line of its text once", scan], ["twice the zeroing and the scan", allowed],
           ["parse", parse]])


def print_stack(results):
    print("## Stack\n")
    table(["call", "bytes", "deepest with"], [[name, f"{depth:,}", body] for name, depth, body in results.stack])
    table(["largest frames", "function", "bytes", ""],
          [[place, f"`{function}`", f"{size:,}", kind] for size, place, function, kind
           in results.frames[:LARGEST_FRAMES]])


def print_sizes(results):
    print("## Size of the stripped library\n")
    kinds = list(dict.fromkeys(row[1] for row in results.sizes if row[1] != "-"))
    sizes = {(name, kind): size for name, kind, size in results.sizes}
    table(["bytes", *kinds],
          [[name, *(f"{int(sizes[name, kind]):,}" if (name, kind) in sizes else "" for kind in kinds)]
           for name in dict.fromkeys(row[0] for row in results.sizes)])
    for name, kind, reason in results.sizes:
        if kind == "-":
            print(f"{name} is left out: {reason}.\n")


Goal = collections.namedtuple("Goal", "text measured met")


def peer_goal(results, operation, bodies, most, text):
    ratios = [results.to_fastest(operation, body) for body in bodies]
    if None in ratios:
        return Goal(text, "no other library is installed", None)
    return Goal(text, ", ".join(f"{ratio:.2f}" for ratio in ratios), max(ratios) < most)


def answer_goal(results):
    shares = [results.time("validate answer", body) / results.time("parse both", body) for body in BODIES]
    return Goal("validating an answer takes less than a fifth of parsing both bodies",
                ", ".join(f"{share:.3f}" for share in shares), max(shares) < 1 / 5)


def floor_goal(results):
    _, _, parse, allowed = floor(results)
    return Goal("parsing many_media takes at most twice the zeroing and the scan",
                f"{microseconds(parse)} of {microseconds(allowed)} µs", parse <= allowed)


def count_goal(results, operation, most):
    count = results.instructions[f"{operation}/volte_offer/{OWN}"]
    return Goal(f"{operation} of volte_offer takes at most {most:,} instructions", f"{count:,}", count <= most)


def stack_goals(results):
    depth = max(depth for _, depth, _ in results.stack)
    frame, _, _, _ = results.frames[0]
    unbounded = [function for _, _, function, kind in results.frames if kind == "dynamic"]
    yield Goal(f"a call takes at most {STACK_LIMIT:,} bytes of stack", f"{depth:,}", depth <= STACK_LIMIT)
    yield Goal(f"no frame has more than {STACK_LIMIT:,} bytes, and each has a bound",
               f"{frame:,}; {len(unbounded)} without bound", frame <= STACK_LIMIT and not unbounded)


def size_goal(results, name, most):
    text = f"the library for {name} has at most {most} KB ({SMALLEST})"
    sizes = {(row[0], row[1]): row[2] for row in results.sizes}
    if (name, SMALLEST) not in sizes:
        return Goal(text, "not built", None)
    size = int(sizes[name, SMALLEST])
    return Goal(text, f"{size / KB:.1f} KB", size <= most * KB)


def goals(results):
    return [
        peer_goal(results, "parse", BODIES[:4], 1, "parse takes less time than the fastest other library (first four "
                  "bodies; half is aimed at)"),
        peer_goal(results, "generate", BODIES, 0.5, "generate takes less than half the time of the fastest other "
                  "library"),
        answer_goal(results), floor_goal(results), count_goal(results, "parse", 30000),
        count_goal(results, "generate", 12000), *stack_goals(results), size_goal(results, "AArch64", 120),
        size_goal(results, "Thumb-2", 90)]


def print_goals(judged):
    words = {True: "yes", False: "**no**", None: "not judged"}
    print("## Goals\n")
    table(["goal", "measured", "met"], [[goal.text, goal.measured, words[goal.met]] for goal in judged])


def main(directory, objects, build):
    results = Results(pathlib.Path(directory), pathlib.Path(objects), build)
    print(f"Medians of {len(results.rounds)} rounds of processor time; {results.machine['num_cpus']} processors at "
          f"{results.machine['mhz_per_cpu']:,} MHz, {results.compiler}, {build}.\n")
    print_calls(results)
    print_peers(results)
    print_floor(results)
    print_stack(results)
    print_sizes(results)
    print_goals(goals(results))
    return any(not goal.met for goal in stack_goals(results))


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    sys.exit(main(*sys.argv[1:]))
