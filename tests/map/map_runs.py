"""The descriptions the map tests run: every example, every golden description that gives a
model, and the corner cases of tests/map/data."""
import pathlib
import shlex
import shutil
import subprocess


def runs(src, with_data=False):
    """(label, folder, arguments without -l) of every run that should give a model."""
    for args in sorted(src.glob("examples/*/brixgen.args")):
        yield str(args.parent.relative_to(src)), args.parent, shlex.split(args.read_text())
    for cmd in sorted(src.glob("tests/golden/*/*/cmd")):
        files = cmd.parent / "expected" / "files"
        if cmd.parent.parent.name.startswith("map_") or not files.is_dir():
            continue
        if not any(files.glob("brx_*.sv")) and not any(files.glob("brx_*.hxs")):
            continue
        yield str(cmd.parent.relative_to(src)), cmd.parent, shlex.split(cmd.read_text())
    if with_data:
        data = src / "tests/map/data"
        for brix in sorted(data.glob("*.brix")):
            yield str(brix.relative_to(src)), data, ["-t", brix.stem, brix.name]


def map_args(args):
    """The options of a brixgen run that decide the map: -t, -I and the description."""
    keep, i = [], 0
    while i < len(args):
        if args[i] in ("-t", "-I"):
            keep += args[i:i + 2]
            i += 2
        elif args[i].startswith("-"):
            i += 2 if args[i] in ("-l", "-o", "-c", "-d") else 1
        else:
            keep.append(args[i])
            i += 1
    return keep


def copy_case(folder, work):
    """A scratch copy of a case's folder, so that runs leave nothing in the sources."""
    shutil.copytree(folder, work, ignore=shutil.ignore_patterns("expected", "cmd"))


def model_builds(brixgen, work, keep):
    """Whether brixgen makes a model of the description: the runs without one are skipped."""
    gen = subprocess.run([brixgen, "-l", "sv", "-q", "-o", "model"] + keep, cwd=work,
                         capture_output=True)
    return gen.returncode == 0


def finish(summary, failures, ran):
    """Prints the summary and the failures; the status of the test."""
    print(summary)
    for f in failures:
        print(f)
    return 1 if failures or not ran else 0
