#!/usr/bin/python3
"""`brixmap c` headers compile as C99 and C++17, and every macro holds the JSON's value.

For every description of map_runs, a C program is written from the JSON alone: one check
per macro the header must define, at the first and last element of every array index. The
header must define exactly those macros. A description whose names collide must fail.

    c_header.py <brixgen> <brixmap> <source folder>
"""
import json
import pathlib
import re
import subprocess
import sys
import tempfile

from map_runs import copy_case, finish, map_args, model_builds, runs

BRIXGEN, BRIXMAP = (str(pathlib.Path(a).resolve()) for a in sys.argv[1:3])
SRC = pathlib.Path(sys.argv[3]).resolve()
COMPILERS = [["gcc", "-std=c99", "-Wall", "-Wextra", "-Werror", "-pedantic"],
             ["g++", "-std=c++17", "-Wall", "-Wextra", "-Werror", "-pedantic"]]


def number(text):
    """A reset as the description writes it; None for digits of no known value."""
    m = re.fullmatch(r"(?:\d*'([hHbBoOdD])|(0[xX]))?([0-9a-fA-F_]+)", text)
    if not m:
        return None
    base = {"h": 16, "b": 2, "o": 8, "d": 10}.get((m.group(1) or "").lower(),
                                                  16 if m.group(2) else 10)
    try:
        return int(m.group(3).replace("_", ""), base)
    except ValueError:
        return None


def expected(doc):
    """{macro name: [(C expression, value)]} from the JSON."""
    want = {}
    several = len(doc["domains"]) > 1

    def walk(c, domain, arrays):
        path = c["path"]
        if several and domain:
            top, _, rest = path.partition(".")
            path = f"{top}.{domain}.{rest}"
        name = re.sub(r"[^A-Za-z0-9]", "_", path).upper()
        if c["count"] > 1:
            arrays = arrays + [(c["count"], c["stride"])]
        if c["address"] is not None and not c["unmapped"]:
            corners = [[0] * len(arrays)] + [[n - 1 if k == j else 0 for k, (n, _) in
                                             enumerate(arrays)] for j in range(len(arrays))]
            want[name + "_ADDR"] = [
                (f"{name}_ADDR({', '.join(map(str, idx))})" if arrays else name + "_ADDR",
                 c["address"] + sum(i * s for i, (_, s) in zip(idx, arrays)))
                for idx in corners]
        if c["count"] > 1:
            want[name + "_COUNT"] = [(name + "_COUNT", c["count"])]
            want[name + "_STRIDE"] = [(name + "_STRIDE", c["stride"])]
        size = c["bytes"] if c["kind"] in ("register", "vregister") else c["size"]
        want[name + "_SIZE"] = [(name + "_SIZE", size)]
        if c["kind"] == "memory":
            want[name + "_WORDS"] = [(name + "_WORDS", c["words"])]
        for f in c.get("fields", []):
            if f["name"] in ("unused", "reserved"):
                continue
            fn = f"{name}_{f['name'].upper()}"
            values = {"SHIFT": f["lsb"], "WIDTH": f["width"],
                      "MASK": ((1 << f["width"]) - 1) << f["lsb"]
                      if f["lsb"] + f["width"] <= 64 else None,
                      "RESET": number(f["hard_reset"]) if f["hard_reset"] else 0}
            if values["RESET"] is not None and values["RESET"] >= 2**64:
                values["RESET"] = None  # no literal holds it; the header leaves it out
            values.update({e["name"].upper(): e["value"] for e in f["enums"]})
            for suffix, v in values.items():
                if v is not None:
                    want[f"{fn}_{suffix}"] = [(f"{fn}_{suffix}", v)]
        for child in c.get("components", []):
            walk(child, domain, arrays)

    for d in doc["domains"]:
        for c in d["components"]:
            walk(c, d["name"], [])
    return want


def program(header, want):
    lines = [f'#include "{header}"', "#include <stdio.h>", "static int failed;",
             "static void check(const char* what, unsigned long long got, "
             "unsigned long long want) {",
             '    if (got != want) { printf("%s is %llx, not %llx\\n", what, got, want); '
             "failed = 1; }", "}", "int main(void) {"]
    for checks in want.values():
        for expr, value in checks:
            lines.append(f'    check("{expr}", (unsigned long long)({expr}), {value % 2**64}ULL);')
    return "\n".join(lines + ["    return failed;", "}", ""])


def check_header(work, keep, doc):
    """The failures of one description's header."""
    top = doc["top"]
    out = subprocess.run([BRIXMAP, "c"] + keep, cwd=work, capture_output=True, text=True)
    if out.returncode != 0:
        return [f"brixmap c failed: {out.stderr.strip()}"]
    header = (work / f"{top}.h").read_text()
    want = expected(doc)
    defined = set(re.findall(r"^#define (\w+?)(?:\(| )", header, re.M)) - {f"{top.upper()}_MAP_H"}
    failures = [f"{m} missing" for m in sorted(set(want) - defined)]
    failures += [f"{m} not expected" for m in sorted(defined - set(want))]
    (work / "check.c").write_text(program(f"{top}.h", want))
    for cc in COMPILERS:
        lang = ["-x", "c++"] if cc[0] == "g++" else []
        build = subprocess.run(cc + lang + ["check.c", "-o", "check"], cwd=work,
                               capture_output=True, text=True)
        if build.returncode != 0:
            failures.append(f"{cc[0]}: {build.stderr.strip()[:2000]}")
            continue
        run = subprocess.run(["./check"], cwd=work, capture_output=True, text=True)
        if run.returncode != 0:
            failures.append(f"{cc[0]}: {run.stdout.strip()}")
    return failures


def collision():
    """Two paths that give one macro: status 1, both paths named, no header left."""
    with tempfile.TemporaryDirectory() as tmp:
        work = pathlib.Path(tmp) / "run"
        copy_case(SRC / "examples/checks", work)
        out = subprocess.run([BRIXMAP, "c", "-t", "chip", "checks.brix"], cwd=work,
                             capture_output=True, text=True)
        if (out.returncode != 1 or "'chip.a.b_c'" not in out.stderr
                or "'chip.a_b.c'" not in out.stderr or (work / "chip.h").exists()):
            return [f"collision: status {out.returncode}, {out.stderr.strip()!r}"]
    return []


def main():
    failures, cases = collision(), 0
    for label, folder, args in runs(SRC, with_data=True):
        keep = map_args(args)
        with tempfile.TemporaryDirectory() as tmp:
            work = pathlib.Path(tmp) / "run"
            copy_case(folder, work)
            if label == "examples/checks" or not model_builds(BRIXGEN, work, keep):
                continue
            doc = json.loads(subprocess.run([BRIXMAP, "json", "-o", "-"] + keep, cwd=work,
                                            capture_output=True, text=True).stdout)
            failures += [f"{label}: {f}" for f in check_header(work, keep, doc)]
            cases += 1
    return finish(f"{cases} headers compiled and checked", failures, cases > 0)


sys.exit(main())
