#!/usr/bin/python3
"""`brixmap ipxact` writes components that the IEEE 1685-2014 schema accepts, and that hold
the JSON's map: every register element and memory at the same address, with the same type
and field bits, read back from the XML.

    ipxact_map.py <brixgen> <brixmap> <source folder>
"""
import collections
import json
import pathlib
import subprocess
import sys
import tarfile
import tempfile
import xml.etree.ElementTree as ET

from map_runs import copy_case, finish, map_args, model_builds, runs

BRIXGEN, BRIXMAP = (str(pathlib.Path(a).resolve()) for a in sys.argv[1:3])
SRC = pathlib.Path(sys.argv[3]).resolve()
# The standard's schema files, unmodified as their notice (tests/ipxact/README.md) requires,
# packed in one archive and unpacked for the run.
SCHEMA_ARCHIVE = SRC / "tests/ipxact/ieee-1685-2014.tar.xz"
NS = {"x": "http://www.accellera.org/XMLSchema/IPXACT/1685-2014"}
VLNV = {"vendor": "acme.example", "library": "regs", "name": "u", "version": "2.1"}


def value(element, tag):
    text = element.find(f"x:{tag}", NS).text
    return int(text[2:], 16) if text.startswith("'h") else int(text)


def dims(element):
    found = element.findall("x:dim", NS)
    return int(found[0].text) if found else 1


def from_xml(root):
    """Counter of (map, address, type or 'memory', bits) of every register element and
    memory block."""
    seen = collections.Counter()

    def registers(memory_map, parent, base):
        for r in parent.findall("x:register", NS):
            fields = tuple(sorted((value(f, "bitOffset"), value(f, "bitWidth"))
                                  for f in r.findall("x:field", NS)))
            for k in range(dims(r)):
                address = base + value(r, "addressOffset") + k * value(r, "size") // 8
                seen[(memory_map, address, r.find("x:typeIdentifier", NS).text, fields)] += 1
        for rf in parent.findall("x:registerFile", NS):
            for k in range(dims(rf)):
                registers(memory_map, rf, base + value(rf, "addressOffset") + k * value(rf, "range"))

    for mm in root.iterfind("x:memoryMaps/x:memoryMap", NS):
        name = mm.find("x:name", NS).text
        for ab in mm.iterfind("x:addressBlock", NS):
            if ab.find("x:usage", NS).text == "memory":
                seen[(name, value(ab, "baseAddress"), "memory", value(ab, "range"))] += 1
            registers(name, ab, value(ab, "baseAddress"))
    return seen


def from_json(doc):
    seen = collections.Counter()

    def walk(memory_map, c, offsets):
        if c["unmapped"] or c["kind"] == "vregister":
            return
        here = [o + k * c["stride"] for o in offsets for k in range(c["count"])]
        if c["kind"] == "memory":
            for o in here:
                seen[(memory_map, c["address"] + o, "memory", c["size"])] += 1
        if c["kind"] == "register":
            fields = tuple(sorted((f["lsb"], f["width"]) for f in c["fields"]))
            for o in here:
                seen[(memory_map, c["address"] + o, c["type"], fields)] += 1
        for child in c.get("components", []):
            walk(memory_map, child, here)

    for d in doc["domains"]:
        for c in d["components"]:
            walk(d["name"] or doc["top"], c, [0])
    return seen


def compare(label, xml_file, doc):
    got, want = from_xml(ET.parse(xml_file).getroot()), from_json(doc)
    if got == want:
        return []
    extra, missing = sorted(got - want)[:5], sorted(want - got)[:5]
    return [f"{label}: in the XML only {extra}, in the JSON only {missing}"]


def identity(work):
    """The vendor, library, name and version options."""
    options = [a for k, v in VLNV.items() for a in (f"--{k}", v)]
    out = work / "vlnv.xml"
    subprocess.run([BRIXMAP, "ipxact", "-t", "uart", "-o", out] + options + ["uart.brix"],
                   cwd=SRC / "examples/uart", check=True)
    root = ET.parse(out).getroot()
    got = {k: root.find(f"x:{k}", NS).text for k in VLNV}
    return [] if got == VLNV else [f"identity: {got}"]


def main():
    failures, written = [], []
    with tempfile.TemporaryDirectory() as tmp:
        out = pathlib.Path(tmp)
        schema = out / "schema"
        schema.mkdir()
        with tarfile.open(SCHEMA_ARCHIVE) as archive:
            archive.extractall(schema)
        failures += identity(out)
        written.append(out / "vlnv.xml")
        for n, (label, folder, args) in enumerate(runs(SRC, with_data=True)):
            keep = map_args(args)
            work = out / f"run{n}"
            copy_case(folder, work)
            if not model_builds(BRIXGEN, work, keep):
                continue
            xml_file = out / f"{n}.xml"
            subprocess.run([BRIXMAP, "ipxact", "-o", xml_file] + keep, cwd=work, check=True,
                           capture_output=True)
            doc = json.loads(subprocess.run([BRIXMAP, "json", "-o", "-"] + keep, cwd=work,
                                            capture_output=True, text=True, check=True).stdout)
            failures += compare(label, xml_file, doc)
            written.append(xml_file)
        # Offline: the schema's import of xml.xsd resolves to the copy beside it.
        lint = subprocess.run(["xmllint", "--nonet", "--noout", "--schema", schema / "index.xsd"] + written,
                              capture_output=True, text=True)
        if lint.returncode != 0:
            failures.append(lint.stderr.strip()[-3000:])
    return finish(f"{len(written)} components validated and read back", failures,
                  len(written) > 1)


sys.exit(main())
