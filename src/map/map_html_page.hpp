// The fixed parts of brixmap's HTML page: its style sheet and its script. The page's data
// is one JSON object that the script renders; see map_html.cpp for its layout.
#pragma once

inline constexpr const char* html_style = R"CSS(
:root { --line: #c8ccd4; --head: #eef1f6; --accent: #2457a6; --gap: #f4f4f4; }
* { box-sizing: border-box; }
body { margin: 0; font: 14px/1.4 system-ui, sans-serif; color: #1c1e21; display: flex; }
nav { position: sticky; top: 0; height: 100vh; overflow: auto; width: 17rem; flex: none;
      padding: .8rem; border-right: 1px solid var(--line); background: #fafbfc; }
nav a { display: block; color: var(--accent); text-decoration: none; white-space: nowrap;
        overflow: hidden; text-overflow: ellipsis; }
nav a:hover { text-decoration: underline; }
nav .dom { font-weight: 600; margin-top: .6rem; }
main { flex: 1; min-width: 0; padding: 0 1.2rem 2rem; }
header { position: sticky; top: 0; background: #fff; padding: .8rem 0 .5rem; z-index: 1;
         border-bottom: 1px solid var(--line); }
h1 { font-size: 1.3rem; margin: 0 0 .4rem; }
input[type=search] { width: min(36rem, 100%); padding: .35rem .5rem; font-size: 1rem; }
#status { color: #555; margin-left: .6rem; }
section { content-visibility: auto; contain-intrinsic-size: auto 12rem; margin: .8rem 0; }
section.node { contain-intrinsic-size: auto 2.5rem; }
section.node h2 { font-size: 1.05rem; background: var(--head); padding: .3rem .5rem; margin: 0; }
section.reg { border: 1px solid var(--line); border-radius: 4px; padding: .4rem .6rem; }
section.reg h3 { font-size: 1rem; margin: 0 0 .3rem; }
.addr { font-family: ui-monospace, monospace; color: var(--accent); margin-right: .5rem; }
.meta { color: #555; font-weight: normal; font-size: .9rem; margin-left: .5rem; }
.doc { margin: .2rem 0 .4rem; white-space: pre-wrap; }
.diagram { display: flex; border: 1px solid #777; margin: .3rem 0; font-size: .75rem;
           min-height: 2.6rem; }
.diagram div { border-right: 1px solid #777; padding: .1rem .2rem; overflow: hidden; min-width: 2.2rem;
               text-align: center; min-width: 0; }
.diagram div:last-child { border-right: none; }
.diagram .gap { background: repeating-linear-gradient(45deg, var(--gap), var(--gap) 4px,
                #e2e2e2 4px, #e2e2e2 8px); color: #888; }
.diagram .hit { background: #fff3b0; }
.diagram b { display: block; font-weight: 600; white-space: nowrap; overflow: hidden;
             text-overflow: ellipsis; }
table { border-collapse: collapse; font-size: .85rem; }
th, td { border: 1px solid var(--line); padding: .15rem .4rem; text-align: left;
         vertical-align: top; }
th { background: var(--head); }
td.mono { font-family: ui-monospace, monospace; }
#more { color: #555; padding: 1rem 0; }
@media print {
  nav, header input, #status, #more { display: none; }
  body { display: block; }
  header { position: static; }
  section { content-visibility: visible; break-inside: avoid; }
  .diagram .gap { background: none; }
}
)CSS";

inline constexpr const char* html_script = R"JS(
"use strict";
const map = JSON.parse(document.getElementById("map-data").textContent);
const CHUNK = 200;      // entries rendered at a time
const AUTO = 4000;      // entries rendered without scrolling to them
const list = document.getElementById("list");
const more = document.getElementById("more");
const status = document.getElementById("status");
const search = document.getElementById("search");
const cache = [];
let view = map.nodes.map((_, i) => i);
let shown = 0;
let query = "";
let timer = 0;

const el = (tag, cls, text) => {
  const e = document.createElement(tag);
  if (cls) e.className = cls;
  if (text !== undefined) e.textContent = text;
  return e;
};
const nameOf = (path) => path.slice(path.lastIndexOf(".") + 1);
const isReg = (kind) => kind === "register" || kind === "vregister";

function bitsText(f) {
  return f[2] > 1 ? (f[1] + f[2] - 1) + ":" + f[1] : String(f[1]);
}

// One box per field and per gap, most significant bit first unless the domain is big endian.
function diagram(fields, bytes, bigEndian, hits) {
  const width = bytes * 8;
  const boxes = [];
  let next = 0;
  const sorted = fields.filter((f) => f[0] !== "unused" && f[0] !== "reserved")
                       .sort((a, b) => a[1] - b[1]);
  for (const f of sorted) {
    if (f[1] > next) boxes.push([null, next, f[1] - next]);
    boxes.push(f);
    next = Math.max(next, f[1] + f[2]);
  }
  if (next < width) boxes.push([null, next, width - next]);
  if (!bigEndian) boxes.reverse();
  const d = el("div", "diagram");
  for (const b of boxes) {
    const box = el("div", b[0] === null ? "gap" : hits(b[0]) ? "hit" : "");
    box.style.flex = b[2] + " 1 0";
    box.title = (b[0] === null ? "reserved" : b[0]) + " [" + bitsText(b) + "]";
    box.append(el("b", "", b[0] === null ? "—" : b[0]), bitsText(b));
    d.append(box);
  }
  return d;
}

function fieldTable(fields) {
  const t = el("table");
  const head = t.insertRow();
  for (const h of ["Bits", "Field", "Access", "Reset", "Values", "Description"]) {
    head.append(el("th", "", h));
  }
  for (const f of fields) {
    const r = t.insertRow();
    r.append(el("td", "mono", bitsText(f)), el("td", "mono", f[0]), el("td", "", f[3]),
             el("td", "mono", f[4]), el("td", "mono", f[6]), el("td", "", f[5]));
  }
  return t;
}

// node: [domain, depth, kind, path, address, count, stride, size, detail, doc, fields, bytes]
function render(i) {
  const n = map.nodes[i];
  const reg = isReg(n[2]);
  const s = el("section", reg ? "reg" : "node");
  if (reg) s.dataset.path = n[3]; else s.dataset.node = n[3];
  if (map.first[n[3]] === i) s.id = n[3];
  const h = el(reg ? "h3" : "h2");
  h.append(el("span", "addr", n[4] || "—"), el("code", "", n[3]));
  let meta = n[2] + ", " + n[8];
  if (n[5] > 1) meta += ", " + n[5] + " × stride " + n[6];
  h.append(el("span", "meta", meta));
  s.append(h);
  if (n[9]) s.append(el("p", "doc", n[9]));
  if (reg) {
    const fields = map.fields[n[10]];
    const dom = map.domains[n[0]];
    const q = query;
    const hits = (name) => q !== "" && name.toLowerCase().includes(q);
    s.append(diagram(fields, n[11], dom.endian === "big", hits), fieldTable(fields));
  }
  return s;
}

function element(i) {
  return cache[i] || (cache[i] = render(i));
}

function renderMore(upto) {
  const end = Math.min(view.length, Math.max(upto, shown + CHUNK));
  const frag = document.createDocumentFragment();
  for (; shown < end; shown++) frag.append(element(view[shown]));
  list.append(frag);
  more.textContent = shown < view.length ? (view.length - shown) + " more below" : "";
}

function background() {
  if (shown < Math.min(view.length, AUTO)) {
    renderMore(0);
    setTimeout(background, 0);
  } else {
    document.body.dataset.ready = "1";
  }
}

function show(indexes) {
  view = indexes;
  shown = 0;
  list.replaceChildren();
  document.body.dataset.ready = "";
  renderMore(CHUNK);
  const regs = map.registers;
  status.textContent = query === "" ? regs + " registers"
    : view.length + " of " + map.nodes.length + " entries match";
  setTimeout(background, 0);
}

// A register or memory matches by its path, a field's name or an address inside it.
function matches(q) {
  let address = null;
  if (/^0x[0-9a-f]+$/.test(q)) address = BigInt(q);
  const fieldHits = map.fields.map((fs) => fs.some((f) => f[0].toLowerCase().includes(q)));
  const out = [];
  map.nodes.forEach((n, i) => {
    if (n[3].toLowerCase().includes(q) || (isReg(n[2]) && fieldHits[n[10]])) {
      out.push(i);
    } else if (address !== null && n[4] && !n[2].match(/block|system/)) {
      const first = BigInt(n[4]);
      const span = BigInt(n[6] === "0x0" ? 0 : n[6]) * BigInt(n[5] - 1) + BigInt(n[7]);
      if (address >= first && address < first + span) out.push(i);
    }
  });
  return out;
}

function filter() {
  query = search.value.trim().toLowerCase();
  cache.length = 0; // the diagrams mark the fields that match
  show(query === "" ? map.nodes.map((_, i) => i) : matches(query));
}

search.addEventListener("input", () => {
  clearTimeout(timer);
  timer = setTimeout(filter, map.nodes.length > 5000 ? 150 : 0);
});

new IntersectionObserver((seen) => {
  if (seen.some((e) => e.isIntersecting) && shown < view.length) renderMore(0);
}, { rootMargin: "600px" }).observe(more);

// The navigation jumps to an entry, rendering up to it if need be.
function reveal(path) {
  const i = map.first[path];
  if (i === undefined) return;
  if (query !== "") { search.value = ""; filter(); }
  const at = view.indexOf(i);
  if (at >= shown) renderMore(at + 1);
  element(i).scrollIntoView();
}
window.addEventListener("hashchange", () => reveal(decodeURIComponent(location.hash.slice(1))));
window.addEventListener("beforeprint", () => renderMore(view.length));

map.first = {};
map.nodes.forEach((n, i) => { if (!(n[3] in map.first)) map.first[n[3]] = i; });
show(view);
if (location.hash) reveal(decodeURIComponent(location.hash.slice(1)));
)JS";
