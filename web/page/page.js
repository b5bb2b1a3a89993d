"use strict";
(() => {
const byId = (id) => document.getElementById(id);
/** The bytes of what the build put into the page, compressed and as text. */
const unpacked = (base64) => new Response(new Blob([Uint8Array.from(atob(base64), (letter) => letter.charCodeAt(0))])
  .stream().pipeThrough(new DecompressionStream("gzip"))).arrayBuffer();
const make = (tag, content = "", attributes = {}) => {
  const element = Object.assign(document.createElement(tag), attributes);
  element.append(...[content].flat());
  return element;
};

const MOST_ROWS_SHOWN = 1000;
const SAMPLES = {
  ean8: "9638507", ean13: "4006381333931", jan13: "4901234567894", upca: "036000291452", upce: "04252614",
  imb: "0123456709498765432101234567891", postnet: "555551237", "classic-postnet": "555551237",
  codabar: "31117013206375", msi: "1234567", i2of5: "15400141288763", "i2of5-text": "15400141288763",
  code128: "(01)09501101530003(17)251231(10)AB-123", code39: "FIX-0042",
  "classic-ean13": "400638133393", "classic-jan13": "490123456789", "classic-upca": "03600029145", "classic-upce": "01234565",
  "classic-code128c": "0123456789", "classic-codabar": "31117013206375", "classic-i2of5": "1540014128876",
  "classic-i2of5-text": "1540014128876", "classic-msi": "1234567", "classic-code39ascii": "Fix-0042",
};
const sampleOf = (type) => SAMPLES[type.shortName] ?? "FIX-0042";

let linewright;
let words = WORDS.en;
let types = [];
let type = null;
let drawing = null;
let rows = [];
/** Options by name, as they stand; a name that is not there is as usual. */
const chosen = {};

// ---- options: what there is for a type, and where it goes

const numbers = { kind: "number", min: 0, step: "any" };
const choices = (...names) => ({ kind: "choice", names });
const OPTIONS = {
  check: { kind: "check", has: (t) => t.check === "on request" },
  gtin: { kind: "check", has: (t) => /ean|jan|upc|i2of5$|^code128$/.test(t.shortName) },
  ratio: { kind: "choice", names: ["2", "2.5", "3"], has: (t) => t.hasRatio },
  code39CheckMode: { ...choices("none", "mod10", "mod43"), has: (t) => t.shortName.startsWith("classic-code39"), isPreference: true },
  code39UseAsterisk: { kind: "check", has: (t) => t.shortName.startsWith("classic-code39"), isPreference: true },
  i2of5CheckDigit: { kind: "check", has: (t) => t.shortName.startsWith("classic-i2of5"), isPreference: true },
  msiFirstCheck: { ...choices("none", "mod10", "mod11"), has: (t) => t.shortName === "classic-msi", isPreference: true },
  msiSecondCheck: { ...choices("none", "mod10", "mod11"), has: (t) => t.shortName === "classic-msi", isPreference: true },
  codabarStart: { ...choices("A", "B", "C", "D"), has: (t) => t.shortName === "classic-codabar", isPreference: true },
  codabarStop: { ...choices("A", "B", "C", "D"), has: (t) => t.shortName === "classic-codabar", isPreference: true },
  xDimension: { ...numbers, has: () => true, usual: (t) => t.xDimension },
  height: { ...numbers, has: (t) => t.font && !t.hasFixedHeight, usual: () => drawing?.barHeight },
  showText: { ...choices("usual", "yes", "no"), has: (t) => t.font },
  bearer: { kind: "check", has: (t) => t.shortName.endsWith("i2of5") },
  marginMarks: { kind: "check", has: (t) => /(ean13|jan13|ean8)$/.test(t.shortName) },
};
const ticked = (name) => OPTIONS[name].has(type) && chosen[name] === true;
const numberOf = (name) => (OPTIONS[name].has(type) && chosen[name] > 0 ? Number(chosen[name]) : undefined);

function wishOf(data) {
  return { type: type.name, data, check: ticked("check"), gtin: ticked("gtin"), ratio: OPTIONS.ratio.has(type) ? Number(chosen.ratio ?? 2) : 2 };
}

function drawingWish(more = {}) {
  const text = OPTIONS.showText.has(type) ? { yes: true, no: false }[chosen.showText] : undefined;
  return { xDimension: numberOf("xDimension"), height: numberOf("height"), text, bearer: ticked("bearer"), marginMarks: ticked("marginMarks"), ...more };
}

function control(name, option) {
  const value = option.isPreference ? linewright.preferences[name] : chosen[name];
  const changed = (next) => {
    if (option.isPreference) linewright.preferences = { [name]: next };
    else chosen[name] = next;
    update();
  };
  if (option.kind === "check") {
    const box = make("input", "", { type: "checkbox", id: `option-${name}`, checked: value === true, onchange: () => changed(box.checked) });
    return make("label", [box, words[name]], { className: "check" });
  }
  if (option.kind === "number") {
    const usual = option.usual(type);
    const field = make("input", "", { type: "number", id: `option-${name}`, min: option.min, step: option.step, value: value ?? "",
      placeholder: usual ? decimal(usual, 3) : "", oninput: () => changed(field.value === "" ? undefined : field.value) });
    return make("label", [words[name], field]);
  }
  const select = make("select", option.names.map((item) => make("option", words[item] ?? item, { value: item })),
    { id: `option-${name}`, onchange: () => changed(select.value) });
  select.value = value ?? option.names[0];
  return make("label", [words[name], select]);
}

function showOptions() {
  const field = byId("options");
  field.replaceChildren(field.querySelector("legend"));
  for (const [name, option] of Object.entries(OPTIONS)) if (option.has(type)) field.append(control(name, option));
}

// ---- types

function showTypes() {
  const list = byId("type-list");
  list.replaceChildren();
  const wanted = byId("filter").value.toLowerCase().replace(/[\s_-]/g, "");
  const isWanted = (t) => `${t.displayText}${t.shortName}${t.name}${words.groups[t.group]}`.toLowerCase().replace(/[\s_-]/g, "").includes(wanted);
  let count = 0;
  for (const [group, name] of Object.entries(words.groups)) {
    const members = types.filter((t) => t.group === group && isWanted(t));
    if (members.length === 0) continue;
    count += members.length;
    list.append(make("h3", name));
    for (const member of members) {
      const radio = make("input", "", { type: "radio", name: "type", value: member.name, checked: member.name === type?.name, onchange: () => choose(member) });
      list.append(make("label", [radio, member.displayText]));
    }
  }
  byId("filter-count").textContent = words.types(count);
}

function choose(next) {
  const isSample = !type || byId("data").value === sampleOf(type);
  type = next;
  if (isSample) byId("data").value = sampleOf(type);
  byId("description").textContent = type.description;
  drawing = null;
  update();
  showOptions();
}

// ---- one barcode

const decimal = (number, digits) => number.toLocaleString(linewright.language, { maximumFractionDigits: digits });
const note = (kind, text) => make("p", text, { className: `note ${kind}` });

function update() {
  drawing = null;
  const verdict = byId("verdict");
  verdict.replaceChildren();
  const data = byId("data").value;
  try {
    if (data !== "") drawing = linewright.draw(wishOf(data), drawingWish());
    if (drawing && drawing.message) verdict.append(note("bad", words.refused(drawing.message)));
    if (drawing?.note) verdict.append(note("good", drawing.note));
    for (const warning of [...(drawing?.warnings ?? []), ...(drawing?.drawingWarnings ?? [])]) verdict.append(note("warn", warning));
  } catch (error) {
    verdict.append(note("bad", error.message));
  }
  byId("data").setAttribute("aria-invalid", String(data !== "" && !drawing?.svg));
  showPaper();
  showFacts();
  for (const id of ["copy", "svg", "png"]) byId(id).disabled = !drawing?.svg;
  byId("font").disabled = !type.font;
  byId("done").textContent = "";
  readBack();
  convertColumn();
}

function showPaper() {
  const paper = byId("paper");
  paper.replaceChildren();
  if (!drawing?.svg) {
    paper.append(make("p", words.empty));
    return;
  }
  const picture = new DOMParser().parseFromString(drawing.svg, "image/svg+xml").documentElement;
  const [, , width, height] = picture.getAttribute("viewBox").split(" ").map(Number);
  // Whole pixels of the screen a module: bars are then as sharp as it can show them.
  const room = Math.max(paper.clientWidth - 34, 100) * devicePixelRatio;
  const pixels = Math.min(Math.max(Math.floor(room / width), 1), Math.ceil(4 * devicePixelRatio)) / devicePixelRatio;
  picture.setAttribute("width", width * pixels);
  picture.setAttribute("height", height * pixels);
  // Halves of modules, at the ratio 2.5, need not be whole pixels.
  if (chosen.ratio !== "2.5") picture.setAttribute("shape-rendering", "geometricPrecision");
  picture.setAttribute("role", "img");
  picture.setAttribute("aria-label", `${type.displayText}: ${drawing.printed}`);
  picture.classList.toggle("wide", width * pixels > paper.clientWidth - 34);
  paper.append(picture);
}

function showFacts() {
  const facts = byId("facts");
  facts.replaceChildren();
  if (!drawing?.svg) return;
  const add = (name, ...content) => facts.append(make("dt", words[name]), make("dd", content));
  if (drawing.barsSay) add("says", make("code", drawing.barsSay));
  add("text", make("code", drawing.text, { id: "font-text" }));
  add("size", `${decimal(drawing.width, 1)} × ${decimal(drawing.height, 1)} mm`);
  add("font", type.font ? `${type.font.family}, ${words.at(decimal(drawing.fontSize, 2))}` : words.anyFont);
}

// ---- copying and saving

function say(sentence, id = "done") {
  byId(id).textContent = sentence;
}

async function copy(text, id) {
  try {
    await navigator.clipboard.writeText(text);
    say(words.copied, id);
  } catch {
    say(words.noCopy, id);
  }
}

function save(content, kind, name) {
  const address = URL.createObjectURL(new Blob([content], { type: kind }));
  make("a", "", { href: address, download: name }).click();
  setTimeout(() => URL.revokeObjectURL(address), 60000);
  say(words.saved(name));
}

const fileName = (ending) => `${type.shortName}-${byId("data").value.replace(/[^\w.-]+/g, "_").slice(0, 60)}.${ending}`;

/** The drawing with its bars on dots, as a canvas of one pixel a dot. */
function paint(dpi) {
  const dots = linewright.draw(wishOf(byId("data").value), drawingWish({ dpi, fit: true }));
  const picture = new DOMParser().parseFromString(dots.svg, "image/svg+xml").documentElement;
  const [, , width, height] = picture.getAttribute("viewBox").split(" ").map(Number);
  const canvas = make("canvas", "", { width: Math.ceil(width), height: Math.ceil(height) });
  const context = canvas.getContext("2d");
  context.fillStyle = "#fff";
  context.fillRect(0, 0, canvas.width, canvas.height);
  context.fillStyle = "#000";
  context.fill(new Path2D(picture.querySelector("path:last-of-type").getAttribute("d")));
  return canvas;
}

async function savePng() {
  const dpi = Number(byId("dpi").value);
  try {
    if (!byId("dpi").checkValidity() || !dpi) return byId("dpi").reportValidity();
    const canvas = paint(dpi);
    const blob = await new Promise((done) => canvas.toBlob(done, "image/png"));
    save(withResolution(new Uint8Array(await blob.arrayBuffer()), dpi), "image/png", fileName("png"));
  } catch (error) {
    say(error.message);
  }
}

// ---- read back, where the page was built with a scanner

const scanner = DATA.scanner && unpacked(DATA.scanner).then((wasmBinary) => ZXingWASM.prepareZXingModule({ overrides: { wasmBinary } }));
let readNumber = 0;
async function readBack() {
  const place = byId("read");
  place.hidden = true;
  const current = ++readNumber;
  if (!scanner || !drawing?.svg || !type.hasScanner) return;
  await scanner;
  if (current !== readNumber) return;
  const canvas = paint(300);
  const results = await ZXingWASM.readBarcodes(canvas.getContext("2d").getImageData(0, 0, canvas.width, canvas.height),
    { tryHarder: true, maxNumberOfSymbols: 1, textMode: "Plain" });
  if (current !== readNumber) return;
  const { text, symbology } = { text: results[0]?.text, symbology: results[0]?.format };
  // Scanners leave out what symbologies leave to them: start and stop, zeros in front, GS between
  // elements. Full ASCII of Code 39 they translate, and say its check character behind it.
  const plain = (said) => said.replace(/[^0-9A-Za-z]/g, "").replace(/^0+/, "");
  const bars = plain(drawing.barsSay);
  const said = plain(text ?? "");
  const agrees = said.length > 0 && ((bars.includes(said) && bars.length - said.length <= 2) ||
    (type.shortName === "classic-code39ascii" && said.startsWith(plain(drawing.printed)) && said.length - plain(drawing.printed).length <= 1));
  place.className = agrees ? "agrees" : "differs";
  place.textContent = text === undefined ? words.readsNot : agrees ? words.reads(`${symbology} ${text}`) : words.readsOther(text);
  place.hidden = false;
}

// ---- a whole column

function convertColumn() {
  const text = byId("column").value.replace(/\r?\n$/, "");
  byId("rows").hidden = text === "";
  rows = [];
  if (text === "") return showRows();
  const lines = text.split(/\r?\n/);
  for (const data of lines) {
    if (data === "") {
      rows.push({ data, text: "", remark: "", kind: "" });
      continue;
    }
    const outcome = linewright.encode(wishOf(data));
    rows.push({
      data, text: outcome.text ?? "",
      remark: outcome.message !== undefined ? words.refused(outcome.message) : [outcome.note, ...outcome.warnings].filter(Boolean).join("; "),
      kind: outcome.message !== undefined ? "bad" : outcome.warnings.length > 0 ? "warn" : "",
    });
  }
  showRows();
}

function showRows() {
  const isOnlyMarked = byId("only-marked").checked;
  const list = document.createDocumentFragment();
  let shown = 0;
  rows.forEach((row, place) => {
    if (shown >= MOST_ROWS_SHOWN || (isOnlyMarked && !row.kind)) return;
    shown++;
    list.append(make("tr", [`${row.kind === "bad" ? "✗ " : ""}${place + 1}`, row.data, row.text, row.remark].map((text) => make("td", text)), { className: row.kind }));
  });
  byId("row-list").replaceChildren(list);
  const count = (kind) => rows.filter((row) => row.kind === kind).length;
  const made = rows.filter((row) => row.text !== "").length;
  const tally = words.tally(...[made, count("bad"), count("warn")].map((number) => number.toLocaleString(linewright.language)));
  say(rows.length > MOST_ROWS_SHOWN ? `${tally}; ${words.shown(MOST_ROWS_SHOWN.toLocaleString(linewright.language))}` : tally, "tally");
}

/** A cell of a spreadsheet's clipboard. */
const cell = (text) => (/["\t\n]/.test(text) ? `"${text.replaceAll('"', '""')}"` : text);

// ---- languages

function speak(language) {
  linewright.language = language;
  words = WORDS[language];
  document.documentElement.lang = language;
  for (const element of document.querySelectorAll("[data-word]")) element.textContent = words[element.dataset.word];
  byId("filter").placeholder = words.filter;
  types = linewright.types();
  choose(types.find((t) => t.name === type?.name) ?? types.find((t) => t.shortName === "ean13"));
  showTypes();
}

const remembered = (() => {
  try {
    return localStorage.getItem("linewright-language");
  } catch {
    return null;
  }
})();
const spoken = [remembered, ...navigator.languages.map((tag) => tag.slice(0, 2))].find((tag) => tag in WORDS) ?? "en";

byId("language").value = spoken;
byId("language").onchange = ({ target }) => {
  try {
    localStorage.setItem("linewright-language", target.value);
  } catch {
    // A page from a file may not be allowed to remember.
  }
  speak(target.value);
};
byId("filter").oninput = showTypes;
byId("data").oninput = update;
byId("column").oninput = convertColumn;
byId("only-marked").onchange = showRows;
byId("copy").onclick = () => copy(drawing.text, "done");
byId("svg").onclick = () => save(drawing.svg, "image/svg+xml", fileName("svg"));
byId("png").onclick = savePng;
byId("font").onclick = async () => {
  const { file } = type.font;
  save(await unpacked(DATA.fonts[file]), "font/ttf", file);
};
byId("copy-rows").onclick = () => copy(rows.map((row) => cell(row.text)).join("\n"), "tally");
byId("copy-table").onclick = () => copy(rows.map((row) => [row.data, row.text, row.remark].map(cell).join("\t")).join("\n"), "tally");
addEventListener("resize", showPaper);
unpacked(DATA.wasm).then(WebAssembly.compile).then((module) => {
  linewright = new Linewright(module, spoken);
  speak(spoken);
});
})();
