#!/usr/bin/env bash
# Size of brixmap's HTML page and its time until usable in headless Chromium, for a chip of
# about 3,000 registers and for the flat 100,000-register description of scale_bench.sh.
#
#   bench/html_bench.sh [brixgen binary, with brixmap beside it]
#
# "ready" is the time from navigation until the page has rendered what it renders without
# scrolling; "search" the time a search for one register then takes. Not a test: the
# figures depend on the machine.
set -eu
. "$(dirname "$0")/setup.sh" "${1:-}"
map=$(dirname "$bin")/brixmap
[ -x "$map" ] || cmake --build build/bench -j2 --target brixmap >/dev/null
# The descriptions as scale_bench.sh writes them.
# A function ends at the first "}" line after its here-document.
eval "$(awk '/^write_(flat|chip)\(\)/ { on = 1 } on { print } on && prev == "EOF" && /^}$/ { on = 0 }
             { prev = $0 }' bench/scale_bench.sh)"
write_chip 3000 >"$work/chip.brix"
write_flat 100000 >"$work/flat.brix"
for shape in chip:top:u3.b3_r5 flat:top:r99999; do
    IFS=: read -r name top path <<<"$shape"
    start=$(date +%s.%N)
    (cd "$work" && "$map" html -t "$top" -o "$name.html" "$name.brix")
    end=$(date +%s.%N)
    printf '%s: %s bytes, written in %.2f s\n' "$name" "$(stat -c %s "$work/$name.html")" \
        "$(echo "$end - $start" | bc)"
    /usr/bin/python3 - "$work/$name.html" "$top.$path" <<'PY'
import pathlib, sys, tempfile, time
from selenium import webdriver
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.by import By

page, path = pathlib.Path(sys.argv[1]), sys.argv[2]
needle = path.rsplit(".", 1)[1]
options = webdriver.ChromeOptions()
options.binary_location = "/usr/bin/chromium"
profile = tempfile.mkdtemp()
for flag in ["--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
             "--disable-background-networking", "--disable-component-update", "--disable-sync",
             f"--user-data-dir={profile}", "--window-size=1280,900"]:
    options.add_argument(flag)
driver = webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)
ready = "return document.body.dataset.ready === '1'"
try:
    driver.set_page_load_timeout(120)
    start = time.time()
    driver.get(page.as_uri())
    loaded = time.time() - start
    while not driver.execute_script(ready):
        time.sleep(0.02)
    shown = time.time() - start
    typed = time.time()
    driver.find_element(By.ID, "search").send_keys(needle)
    while driver.execute_script(
            "return !document.querySelector('[data-path=\"%s\"]') || !(%s)" %
            (path, ready[7:])):
        if time.time() - typed > 60:
            sys.exit(f"{path} not found after a minute")
        time.sleep(0.02)
    found = time.time() - typed
    print(f"  loaded {loaded:.2f} s, ready {shown:.2f} s, search found {needle} "
          f"in {found:.2f} s more")
finally:
    driver.quit()
PY
done
