#!/usr/bin/python3
"""The offsets of `brixmap json` are those of the generated SystemVerilog constructors.

Runs over every example and every golden description that generates a model, and validates
each JSON document against docs/brixmap.schema.json on the way. A description whose model is
refused for its placement (an instance of a block of several domains that names none) is
refused by brixmap with the same message.

    offsets_match.py <brixgen> <brixmap> <source folder>
"""
import json
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

import jsonschema

from map_runs import copy_case, finish, map_args, model_builds, runs

BRIXGEN, BRIXMAP = (str(pathlib.Path(a).resolve()) for a in sys.argv[1:3])
SRC = pathlib.Path(sys.argv[3]).resolve()
ADDR = r"`QVT_BRX_ADDR_WIDTH'h([0-9A-F]+)"
CONSTRUCTORS = [  # (pattern, groups: member, instance domain, list domain, offset)
    (rf'this\.(\w+)(?:\[J\])? = new\(this, .*?, {ADDR}(?:\+J\*\S+)?, "(\w*)", cover_on', "m o d"),
    (rf'this\.(\w+)\.add_domain\({ADDR}, "(\w*)"', "m o d"),
    (rf'this\.(\w+)(?:\[J\])? = new\(parent, .*?, offset\+{ADDR}', "m o"),
    (rf'this\.register_(?:block|subsys)\(this\.(\w+)(?:\[J\])?, "(\w*)", "(\w*)", {ADDR}',
     "m i d o"),
]
CLASS = re.compile(r"^class brx_(block|sys|regfile)_(\w+)")
REFUSED = ["tests/golden/systems_instances/multi_domain_block_needs_domain"]


def sv_offsets(text):
    """(class kind, class suffix) -> set of (member, instance domain, list domain, offset)."""
    found, current = {}, None
    for line in text.splitlines():
        m = CLASS.match(line)
        if m:
            current = found.setdefault((m.group(1), m.group(2)), set())
            continue
        for pattern, groups in CONSTRUCTORS:
            m = re.search(pattern, line)
            if m and current is not None:
                g = dict(zip(groups.split(), m.groups()))
                current.add((g["m"], g.get("i"), g.get("d"), int(g["o"], 16)))
    return found


CLASS_KIND = {"block": "block", "system": "sys", "regfile": "regfile"}


def compare(doc, sv, label):
    """Every placed component of the JSON against its parent's class; counts the checks."""
    checked, errors = 0, []

    def walk(kind, suffix, domain, components):
        nonlocal checked
        cls = sv.get((CLASS_KIND[kind], suffix))
        for c in components:
            if c["kind"] != "vregister":
                if kind == "system":
                    want = (c["name"], c["domain"] or "", domain, c["offset"])
                elif kind == "regfile":
                    want = (c["name"], None, None, c["offset"])
                else:
                    want = (c["name"], None, domain, c["offset"])
                checked += 1
                if cls is None or want not in cls:
                    errors.append(f"{label}: {c['path']} at offset {c['offset']:#x} "
                                  f"not in class {suffix}")
            if c["kind"] in CLASS_KIND:
                walk(c["kind"], c["type"], c.get("domain") or "", c["components"])

    for d in doc["domains"]:
        walk(doc["kind"], doc["top"], d["name"] or "", d["components"])
    return checked, errors


def main():
    schema = json.loads((SRC / "docs/brixmap.schema.json").read_text())
    validator = jsonschema.Draft202012Validator(schema)
    total, failures, cases = 0, [], 0
    for label, folder, args in runs(SRC, with_data=True):
        keep = map_args(args)
        with tempfile.TemporaryDirectory() as tmp:
            work = pathlib.Path(tmp) / "run"
            copy_case(folder, work)
            if not model_builds(BRIXGEN, work, keep):
                continue
            out = subprocess.run([BRIXMAP, "json", "-o", "-"] + keep, cwd=work,
                                 capture_output=True, text=True)
            if out.returncode != 0:
                failures.append(f"{label}: brixmap failed: {out.stderr.strip()}")
                continue
            try:
                doc = json.loads(out.stdout)
            except ValueError as e:
                failures.append(f"{label}: not JSON: {e}: {out.stdout[:200]!r}")
                continue
            for error in validator.iter_errors(doc):
                failures.append(f"{label}: schema: {error.message} at {list(error.path)}")
            checked, errors = compare(doc, sv_offsets((work / "model.sv").read_text()), label)
            total += checked
            failures += errors
            cases += 1
    for case in REFUSED:
        folder = SRC / case
        args = shlex.split((folder / "cmd").read_text())[2:]  # without -l sv
        out = subprocess.run([BRIXMAP, "json", "-o", "-"] + args, cwd=folder,
                             capture_output=True, text=True)
        want = (folder / "expected" / "stderr").read_text()
        if out.returncode != 1 or out.stderr != want or out.stdout:
            failures.append(f"{case}: brixmap gave status {out.returncode}, {out.stderr!r}")
    return finish(f"{cases} descriptions, {total} offsets compared, {len(REFUSED)} refused alike",
                  failures, cases > 0)


sys.exit(main())
