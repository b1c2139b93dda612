#!/usr/bin/env python3
"""Prints what scripts/bench measured as Markdown, and judges it by the goals.

usage: report.py RESULTS KIND

RESULTS holds what the programs wrote, KIND names the kind of build that is released. The exit status is 1 when a
goal that does not depend on time is missed.
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


class Build:
    """What was measured of one build, by "operation/body/library"."""

    def __init__(self, directory):
        self.rounds = [self.read_round(path) for path in sorted(directory.glob("round-*.json"))]
        self.machine = json.loads(next(directory.glob("round-*.json")).read_text())["context"]
        self.instructions = {name: int(count) for name, count in rows(directory / "instructions")}
        self.stack = [(name, int(depth), body) for name, depth, body in rows(directory / "stack")]
        self.frames = self.read_frames(directory / "frames")

    @staticmethod
    def read_round(path):
        return {each["name"]: each["cpu_time"] for each in json.loads(path.read_text())["benchmarks"]}

    @staticmethod
    def read_frames(path):
        """Frames of all functions, largest first."""
        frames = []
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

    def own_instructions(self, operation, body):
        return self.instructions[f"{operation}/{body}/{OWN}"]


class Results:
    """What was measured: both builds, and what is the same for them."""

    def __init__(self, directory):
        self.released = Build(directory / "released")
        self.profiled = Build(directory / "profiled")
        self.builds = [self.released, self.profiled]
        self.heap = {tuple(row[1:3]): list(map(int, row[3:])) for row in rows(directory / "heap") if row[0] == "heap"}
        self.kept = {row[1]: list(map(int, row[2].split(","))) for row in rows(directory / "heap") if row[0] == "kept"}
        self.sizes = rows(directory / "sizes")
        self.compiler = (directory / "compiler").read_text().strip()


def microseconds(nanoseconds):
    return "" if nanoseconds is None else f"{nanoseconds / 1000:,.2f}"


def call_row(results, operation, body):
    _, allocations, peak = results.heap[operation, body]
    ratios = [build.to_fastest(operation, body) for build in results.builds]
    return [operation, f"{body}, {(EXAMPLES / f'{body}.sdp').stat().st_size:,}",
            *(microseconds(build.time(operation, body)) for build in results.builds),
            *(microseconds(results.released.time(operation, body, peer)) for peer in results.released.peers()),
            *("" if ratio is None else f"{ratio:.2f}" for ratio in ratios),
            *(f"{build.own_instructions(operation, body):,}" for build in results.builds), allocations, f"{peak:,}"]


def print_calls(results):
    print("## Calls\n")
    table(["call", "body, bytes", f"{OWN}, µs", "profiled, µs", *results.released.peers(), "to the fastest",
           "profiled to the fastest", "instructions", "profiled instructions", "allocations", "peak heap, bytes"],
          [call_row(results, operation, body) for operation in OPERATIONS for body in BODIES])
    print("Where examples/ has no answer, \"validate answer\" takes the offer as its own answer.\n")
    for (operation, body), (code, *_) in results.heap.items():
        if code != 0:
            print(f"\"{operation}\" refuses {body} with code {code}: the row is what it takes to find that.\n")
    for name, package in PEERS.items():
        if not any(peer.startswith(name) for peer in results.released.peers()):
            print(f"Without {name}: {package} is not installed.\n")


def print_peers(build):
    def cells(body, peer):
        counts = [build.instructions.get(f"{operation}/{body}/{peer}") for operation in OPERATIONS[:3]]
        return [body, peer, microseconds(build.time("parse, formats as text", body, peer)),
                *("" if count is None else f"{count:,}" for count in counts)]

    if not build.peers():
        return
    print("## The other libraries\n")
    table(["body", "library", "parse without breaking formats down, µs", "instructions of parse", "generate",
           "round trip"], [cells(body, peer) for body in BODIES for peer in build.peers()])


def floor(build):
    """Time of zeroing the records of many_media, of a scan of its text, of its parse, and of what is allowed."""
    zero, scan, parse = (build.time(name, "many_media") for name in ("zero", "scan", "parse"))
    return zero, scan, parse, 2 * zero + scan


def print_floor(results):
    times = [map(microseconds, each) for each in zip(*map(floor, results.builds))]
    kept = results.kept["many_media"]
    print("## 18 media lines\n")
    texts = [f"zeroing what its container keeps: {plural(len(kept), 'block')}, {sum(kept):,} bytes",
             "looking at every line of its text once", "parse", "twice the zeroing and the scan"]
    table(["many_media", "µs", "profiled, µs"], [[text, *each] for text, each in zip(texts, times)])


def print_stack(results):
    print("## Stack\n")
    table(["call", "bytes", "deepest with", "profiled, bytes"],
          [[name, f"{depth:,}", body, f"{profiled:,}"]
           for (name, depth, body), (_, profiled, _) in zip(results.released.stack, results.profiled.stack)])
    table(["largest frames", "function", "bytes", ""],
          [[place, f"`{function}`", f"{size:,}", kind] for size, place, function, kind
           in results.released.frames[:LARGEST_FRAMES]])


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


Outcome = collections.namedtuple("Outcome", "measured met")
NOT_JUDGED = Outcome("not measured", None)


def peer_outcome(build, operation, bodies, most):
    ratios = [build.to_fastest(operation, body) for body in bodies]
    if None in ratios:
        return NOT_JUDGED
    return Outcome(", ".join(f"{ratio:.2f}" for ratio in ratios), max(ratios) < most)


def answer_outcome(build):
    shares = [build.time("validate answer", body) / build.time("parse both", body) for body in BODIES]
    return Outcome(", ".join(f"{share:.3f}" for share in shares), max(shares) < 1 / 5)


def floor_outcome(build):
    _, _, parse, allowed = floor(build)
    return Outcome(f"{microseconds(parse)} of {microseconds(allowed)} µs", parse <= allowed)


def count_outcome(build, operation, most):
    count = build.own_instructions(operation, "volte_offer")
    return Outcome(f"{count:,}", count <= most)


def stack_outcome(build):
    depth = max(depth for _, depth, _ in build.stack)
    return Outcome(f"{depth:,}", depth <= STACK_LIMIT)


def frame_outcome(build):
    frame, _, _, _ = build.frames[0]
    unbounded = [function for _, _, function, kind in build.frames if kind == "dynamic"]
    return Outcome(f"{frame:,}; {len(unbounded)} without bound", frame <= STACK_LIMIT and not unbounded)


def size_outcome(results, name, most):
    sizes = {(row[0], row[1]): row[2] for row in results.sizes}
    if (name, SMALLEST) not in sizes:
        return NOT_JUDGED
    size = int(sizes[name, SMALLEST])
    return Outcome(f"{size / KB:.1f} KB", size <= most * KB)


# Each with what judges a build.
GOALS = {
    "parse takes less time than the fastest other library (first four bodies; half is aimed at)":
        lambda build: peer_outcome(build, "parse", BODIES[:4], 1),
    "generate takes less than half the time of the fastest other library":
        lambda build: peer_outcome(build, "generate", BODIES, 0.5),
    "validating an answer takes less than a fifth of parsing both bodies": answer_outcome,
    "parsing many_media takes at most twice the zeroing and the scan": floor_outcome,
    "parse of volte_offer takes at most 30,000 instructions": lambda build: count_outcome(build, "parse", 30000),
    "generate of volte_offer takes at most 12,000 instructions": lambda build: count_outcome(build, "generate", 12000),
}
FIRM_GOALS = {
    f"a call takes at most {STACK_LIMIT:,} bytes of stack": stack_outcome,
    f"no frame has more than {STACK_LIMIT:,} bytes, and each has a bound": frame_outcome,
}
SIZE_GOALS = {"AArch64": 120, "Thumb-2": 90}


def print_goals(results):
    def cells(outcome):
        return [outcome.measured, {True: "yes", False: "**no**", None: "not judged"}[outcome.met]]

    print("## Goals\n")
    table(["goal", "measured", "met", "profiled", "met"],
          [[text, *cells(judge(results.released)), *cells(judge(results.profiled))]
           for text, judge in (GOALS | FIRM_GOALS).items()] +
          [[f"the library for {name} has at most {most} KB ({SMALLEST})", *cells(size_outcome(results, name, most)),
            "", ""] for name, most in SIZE_GOALS.items()])


def main(directory, kind):
    results = Results(pathlib.Path(directory))
    machine = results.released.machine
    print(f"Medians of {len(results.released.rounds)} rounds of processor time; {machine['num_cpus']} processors at "
          f"{machine['mhz_per_cpu']:,} MHz, {results.compiler}, {kind}. \"Profiled\" is what `scripts/pgo` makes.\n")
    print_calls(results)
    print_peers(results.released)
    print_floor(results)
    print_stack(results)
    print_sizes(results)
    print_goals(results)
    return any(not judge(build).met for build in results.builds for judge in FIRM_GOALS.values())


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    sys.exit(main(*sys.argv[1:]))
