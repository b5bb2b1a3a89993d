// The module against the rows of tests/vectors, and against the command.
import assert from "node:assert/strict";
import { readdirSync, readFileSync, writeFileSync } from "node:fs";
import { execFileSync } from "node:child_process";
import path from "node:path";
import test, { beforeEach } from "node:test";
import { csvField, csvRows, folder, linewright, loadModule, LOCALES, OUT, randomNumbers, ROOT, SAMPLES } from "./support.mjs";

const module = await loadModule();
const types = module.types();

// Whatever a test that failed left behind.
beforeEach(() => {
  module.language = "en";
});

// ---- vectors

const CODABAR = (code) => String.fromCharCode(code);
const PREFERENCES = {
  code39CheckMode: (value) => ["none", "mod10", "mod43"][value],
  code39UseAsterisk: (value) => value !== 0 && value !== false,
  i2of5CheckDigit: (value) => value !== 0 && value !== false,
  msiFirstCheck: (value) => ["none", "mod10", "mod11"][value],
  msiSecondCheck: (value) => ["none", "mod10", "mod11"][value],
  codabarStart: CODABAR,
  codabarStop: CODABAR,
};

/** A field of a row as bytes: a text, or an array of texts and [text, count] pairs. */
function bytesOf(field) {
  const parts = Array.isArray(field) ? field.map((part) => (Array.isArray(part) ? part[0].repeat(part[1]) : part)) : [field];
  return Buffer.from(parts.join(""), "latin1");
}

/** The texts of hints in a language, by key; they stand on one line or, folded, on two. */
function hintsOf(locale) {
  const toml = readFileSync(path.join(ROOT, `plugin/resources/strings/${locale}.toml`), "utf8").replace(/"""\\\n\s+([^\n]*)"""/g, '"$1"');
  return new Map([...toml.matchAll(/^"(0x122100kLWRBarCode\w+Hint)" = "(.*)"$/gm)].map(([, key, text]) => [key, text]));
}

/** What a hint of a row, a key and what fills its text, is in a language. */
function hintIn(hints, hint) {
  const [key, ...values] = hint.split("|");
  if (key === "") return "";
  const text = hints.get(key);
  return text === undefined ? hint : values.reduce((filled, value, place) => filled.replace(`^${place}`, value), text);
}

const rows = readdirSync(path.join(ROOT, "tests/vectors")).flatMap((file) =>
  readFileSync(path.join(ROOT, "tests/vectors", file), "utf8").split("\n").map((line, place) => ({ line, where: `${file}:${place + 1}` })))
  .filter(({ line }) => line.startsWith("{")).map(({ line, where }) => ({ ...JSON.parse(line), where }))
  // Calls of functions inside have names of their own; preferences that nobody can choose are the file's.
  .filter((row) => row.call === "" || row.call.startsWith("_"))
  .map((row) => ({ ...row, preferences: Object.fromEntries(Object.entries(row.prefs ?? {}).map(([name, value]) => [name, PREFERENCES[name](value)])) }))
  .filter((row) => Object.entries(row.preferences).every(([name, value]) => value !== undefined && (!name.startsWith("codabar") || "ABCD".includes(value))));

test("rows of tests/vectors that name a type", () => {
  assert.ok(rows.length > 1000, `${rows.length} rows`);
  for (const [language, locale] of Object.entries(LOCALES)) {
    module.language = language;
    const hints = hintsOf(locale);
    assert.equal(hints.size, 7);
    for (const row of rows) {
      const usual = module.preferences;
      module.preferences = row.preferences;
      const answer = module.request({ type: bytesOf(row.call), data: bytesOf(row.data ?? ""), utf8: row.utf8 ?? false, check: row.check ?? 0, ratio: row.ratio ?? 2 });
      module.preferences = usual;
      if (row.status !== undefined) assert.equal(answer.status, row.status, row.where);
      if (row.result !== undefined) assert.equal(answer.hex, bytesOf(row.result).toString("hex"), row.where);
      if (row.hint !== undefined) assert.equal(answer.hint, hintIn(hints, row.hint), row.where);
      if (row.recognised !== undefined) assert.equal(answer.recognised, row.recognised, row.where);
    }
  }
  console.log(`  ${rows.length} rows in ${Object.keys(LOCALES).length} languages`);
});

// ---- random rows

const ALPHABETS = ["0123456789", "0123456789-$:/.+", "ABCXYZ0189 -.$/+%", "abcXYZ019~(),*", "(01)~2021", " \t\u0000\u001f~é€日ÿ"];

function randomRow(random) {
  const type = random(40) === 0 ? "_NO_TYPE_" : types[random(types.length)].name + (random(50) === 0 ? "X" : "");
  const alphabet = [...ALPHABETS[random(3) === 0 ? random(ALPHABETS.length) : 0]];
  const length = random(20) === 0 ? random(300) : random(24);
  const text = Array.from({ length }, () => alphabet[random(alphabet.length)]).join("");
  const isBytes = random(4) === 0;
  return { type, ...(isBytes ? { hex: Buffer.from(Array.from({ length }, () => random(256))).toString("hex") } : { data: text }),
    check: random(2), ratio: [2, 2.5, 3, 1.7][random(4)] };
}

test("100,000 random rows, as the command's stream answers them", () => {
  const random = randomNumbers(18);
  const requests = Array.from({ length: 100_000 }, () => randomRow(random));
  const answers = linewright(["stream"], requests.map((row) => JSON.stringify(row)).join("\n") + "\n").trimEnd().split("\n");
  assert.equal(answers.length, requests.length);
  let made = 0;
  requests.forEach((row, place) => {
    const data = row.hex === undefined ? row.data : Buffer.from(row.hex, "hex");
    const answer = module.request({ type: row.type, data, check: row.check, ratio: row.ratio });
    assert.deepEqual(answer, JSON.parse(answers[place]), JSON.stringify(row));
    if (answer.status === 0 && answer.recognised) made++;
  });
  assert.ok(made > 20_000, `only ${made} rows were made`);
  console.log(`  ${made} of 100,000 were made`);
});

// ---- sentences

test("warnings and refusals say in each language what the command says", () => {
  const random = randomNumbers(81);
  const wanted = Object.entries(SAMPLES).flatMap(([type, list]) => list.map((data) => ({ type, data, check: 0 })));
  wanted.push({ type: "gs1-128", data: "no identifiers", check: 0 }, { type: "itf-14", data: "1234", check: 0 }, { type: "EAN", data: "1", check: 0 });
  while (wanted.length < 3000) {
    const { type, data, check } = randomRow(random);
    if (data && !/[\0\r\n]/.test(data) && type !== "_NO_TYPE_") wanted.push({ type, data, check });
  }
  const file = ["type,data,check", ...wanted.map((row) => [row.type, row.data, row.check].map((field) => csvField(String(field))).join(","))].join("\n");
  for (const [language, locale] of Object.entries(LOCALES)) {
    module.language = language;
    const [names, ...lines] = csvRows(linewright(["batch", "-", "-o", "-", "--locale", locale], `${file}\n`));
    assert.equal(lines.length, wanted.length);
    const column = (line, name) => line[names.indexOf(name)];
    lines.forEach((line, place) => {
      const { type, data, check } = wanted[place];
      const outcome = module.encode({ type, data, check: check !== 0 });
      const seen = { text: outcome.text ?? "", status: outcome.status === null ? "" : String(outcome.status), message: outcome.message ?? "", warning: outcome.warnings.join("; ") };
      const told = { text: column(line, "barcode"), status: column(line, "status"), message: column(line, "message"), warning: column(line, "warning") };
      assert.deepEqual(seen, told, `${language}: ${type} ${data}`);
    });
  }
  console.log(`  ${wanted.length} rows in ${Object.keys(LOCALES).length} languages`);
});

test("article numbers are brought to the type's form as the command brings them", () => {
  const wanted = ["9780306406157", "0-306-40615-2", "0306406153", "036000291452", "4006381333931", "2049-3630", "96385074", "x"]
    .flatMap((data) => ["ean13", "ean8", "upca", "upce", "i2of5", "code128", "code39"].map((type) => ({ type, data })));
  const file = ["type,data", ...wanted.map(({ type, data }) => `${type},${data}`)].join("\n");
  for (const [language, locale] of Object.entries(LOCALES)) {
    module.language = language;
    const [names, ...lines] = csvRows(linewright(["batch", "-", "-o", "-", "--gtin", "--locale", locale], `${file}\n`));
    lines.forEach((line, place) => {
      const outcome = module.encode({ ...wanted[place], gtin: true });
      assert.equal(outcome.text ?? "", line[names.indexOf("barcode")], line.join());

      assert.equal(outcome.message ?? "", line[names.indexOf("message")], line.join());
      assert.equal([outcome.note, ...outcome.warnings].filter(Boolean).join("; "), line[names.indexOf("warning")], line.join());
    });
  }
  module.language = "en";
});

// ---- drawings

const DRAWINGS = [
  [{}, []],
  [{ xDimension: 0.5 }, ["--x-dimension", "0.5mm"]],
  [{ text: false }, ["--no-text"]],
  [{ text: true, dpi: 600, fit: true }, ["--text", "--dpi", "600", "--fit"]],
  [{ height: 12.5, quietZone: 2, barWidthReduction: 0.02 }, ["--height", "12.5mm", "--quiet-zone", "2mm", "--bar-width-reduction", "0.02mm"], (type) => type.font && !type.hasFixedHeight],
  [{ bearer: true }, ["--bearer"], (type) => /i2of5$/.test(type.shortName)],
  [{ marginMarks: true }, ["--margin-marks"], (type) => /ean|jan/.test(type.shortName)],
];

test("drawings are the command's, byte for byte", () => {
  let count = 0;
  for (const [wish, words, suits = () => true] of DRAWINGS) {
    const wanted = types.filter(suits).flatMap((type) => SAMPLES[type.shortName].map((data) => ({ type: type.shortName, data })));
    const table = path.join(folder, "drawings.csv");
    writeFileSync(table, ["type,data", ...wanted.map(({ type, data }) => `${type},${csvField(data)}`)].join("\n") + "\n");
    linewright(["draw", table, "-o", path.join(folder, "{line}.svg"), ...words]);
    wanted.forEach(({ type, data }, place) => {
      const drawn = readFileSync(path.join(folder, `${place + 2}.svg`), "utf8");
      assert.equal(module.draw({ type, data }, wish).svg, drawn, `${type} ${data} ${words.join(" ")}`);
      count++;
    });
  }
  console.log(`  ${count} drawings of ${types.length} types`);
});

test("a drawing that cannot be had says why, and the module goes on", () => {
  const told = (words) => {
    try {
      linewright(["draw", ...words, "-o", path.join(folder, "x.svg")]);
    } catch (error) {
      return error.message;
    }
    return "";
  };
  for (const [wish, drawing, words] of [
    [{ type: "ean13", data: "400638133393" }, { xDimension: 99 }, ["ean13", "400638133393", "--x-dimension", "99mm"]],
    [{ type: "imb", data: "01234567094987654321" }, { height: 9 }, ["imb", "01234567094987654321", "--height", "9mm"]],
    [{ type: "classic-codabar", data: "1".repeat(250) }, { xDimension: 9 }, ["classic-codabar", "1".repeat(250), "--x-dimension", "9mm"]],
  ]) {
    module.preferences = { codabarStop: "B" };
    assert.throws(() => module.draw(wish, drawing), (error) => error.message.length > 20 && told(words).includes(error.message));
    assert.equal(module.encode({ type: "classic-codabar", data: "12" }).text, "A12B", "preferences stay");
    module.preferences = { codabarStop: "D" };
  }
});

test("what is no preference and no language is refused, and changes nothing", () => {
  const before = module.preferences;
  for (const change of [{ codabarStart: "E" }, { msiFirstCheck: "mod43" }, { code39CheckMode: 1 }, { other: 1 }]) {
    assert.throws(() => (module.preferences = change), RangeError);
    assert.deepEqual(module.preferences, before);
  }
  assert.throws(() => (module.language = "xx"), RangeError);
  assert.equal(module.language, "en");
});

// ---- the package

test("both forms of the module are the same, and npm packs the folder", async () => {
  const code = readFileSync(path.join(OUT, "module/linewright.js"), "utf8");
  const Classic = new Function(`${code}\nreturn Linewright;`)();
  const classic = new Classic(new WebAssembly.Module(readFileSync(path.join(OUT, "module/linewright.wasm"))));
  assert.deepEqual(classic.types(), types);
  const packed = JSON.parse(execFileSync("npm", ["pack", "--json", "--dry-run", "--offline"], { cwd: path.join(OUT, "module"), encoding: "utf8" }));
  assert.deepEqual(packed[0].files.map((file) => file.path).sort(), ["README.md", "linewright.d.ts", "linewright.js", "linewright.mjs", "linewright.wasm", "package.json"]);
});

test("types, fonts and sizes are the command's", () => {
  const fonts = new Map(JSON.parse(linewright(["fonts", "list", "--json"])).map((font) => [font.type, font]));
  for (const type of types.filter((t) => t.font)) {
    const font = fonts.get(type.shortName);
    assert.equal(type.font.family, font.font);
    assert.ok(Math.abs(type.font.size - font.size) < 0.01, type.shortName);
    assert.ok(Math.abs(type.xDimension - font.xDimension) < 0.0001, type.shortName);
  }
  assert.equal(fonts.size, types.filter((t) => t.font).length);
});
