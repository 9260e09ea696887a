#!/usr/bin/python3
"""`brixmap html` pages of the examples in headless Chromium: no console errors, one
`data-path` entry per register of the JSON, and the search box narrowing the page to a
register typed by name. Saves a screenshot of each page.

    html_browser.py <brixmap> <source folder> <folder for screenshots>
"""
import json
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

from selenium import webdriver
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.by import By
from selenium.webdriver.support.ui import WebDriverWait

from map_runs import finish

BRIXMAP = str(pathlib.Path(sys.argv[1]).resolve())
SRC = pathlib.Path(sys.argv[2]).resolve()
SHOTS = pathlib.Path(sys.argv[3]).resolve()
# Without the networking switches, the closed network refuses Chromium's own connections.
FLAGS = ["--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
         "--disable-background-networking", "--disable-component-update", "--disable-sync",
         "--window-size=1280,900"]


def browser(profile):
    options = webdriver.ChromeOptions()
    options.binary_location = "/usr/bin/chromium"
    for flag in FLAGS + [f"--user-data-dir={profile}"]:
        options.add_argument(flag)
    options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
    return webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)


def registers(doc):
    found = []

    def walk(c):
        if c["kind"] in ("register", "vregister"):
            found.append(c)
        for child in c.get("components", []):
            walk(child)

    for d in doc["domains"]:
        for c in d["components"]:
            walk(c)
    return found


def unique_name(regs):
    """A register name that no other register's path or field contains."""
    for r in regs:
        others = [o for o in regs if o["path"] != r["path"]]
        if not any(r["name"] in o["path"] or any(r["name"] in f["name"] for f in o["fields"])
                   for o in others):
            return r
    return None


def ready(driver):
    WebDriverWait(driver, 10).until(
        lambda d: d.execute_script("return document.body.dataset.ready === '1'"))


def visible_paths(driver):
    """The paths of the register entries on the page that are displayed, in one call, as the
    page replaces its entries while one looks."""
    return driver.execute_script(
        "return [...document.querySelectorAll('[data-path]')]"
        ".filter((e) => e.checkVisibility()).map((e) => e.dataset.path)")


def check_page(driver, page, doc, shot):
    failures = []
    html = page.read_text()
    if re.search(r"""(src|href)=["']?(https?:)?//|<link\b""", html):
        failures.append("the page loads something from outside")
    driver.get(page.as_uri())
    ready(driver)
    errors = [e["message"] for e in driver.get_log("browser") if e["level"] == "SEVERE"]
    failures += [f"console: {e}" for e in errors]
    regs = registers(doc)
    entries = driver.find_elements(By.CSS_SELECTOR, "[data-path]")
    if len(entries) != len(regs):
        failures.append(f"{len(entries)} data-path entries, {len(regs)} registers in the JSON")
    driver.save_screenshot(str(shot))
    target = unique_name(regs)
    if target is None:
        return failures + ["no register with a name of its own to search for"]
    driver.find_element(By.ID, "search").send_keys(target["name"])
    WebDriverWait(driver, 10).until(lambda d: len(visible_paths(d)) < len(regs))
    ready(driver)
    visible = visible_paths(driver)
    if target["path"] not in visible or len(set(visible)) != 1:
        failures.append(f"searching {target['name']!r} shows {visible}")
    return failures


def main():
    failures, pages = [], 0
    SHOTS.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory() as tmp:
        out = pathlib.Path(tmp)
        driver = browser(out / "profile")
        try:
            # Every example, the one whose mistakes only brixmap runs on included.
            for args in sorted([*SRC.glob("examples/*/brixgen.args"),
                                *SRC.glob("examples/*/brixmap.args")]):
                words = shlex.split(args.read_text())
                top = words[words.index("-t") + 1]
                for command, suffix in (("html", "html"), ("json", "json")):
                    subprocess.run([BRIXMAP, command, "-t", top, "-o", out / f"{top}.{suffix}",
                                    words[-1]], cwd=args.parent, check=True, capture_output=True)
                doc = json.loads((out / f"{top}.json").read_text())
                failures += [f"{top}: {f}" for f in
                             check_page(driver, out / f"{top}.html", doc, SHOTS / f"{top}.png")]
                pages += 1
        finally:
            driver.quit()
    return finish(f"{pages} pages opened in Chromium", failures, pages > 0)


sys.exit(main())
