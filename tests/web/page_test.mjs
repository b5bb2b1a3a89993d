// The page, opened from its file in Debian's chromium as a person would.
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { existsSync, mkdirSync, readFileSync } from "node:fs";
import path from "node:path";
import test, { after, before } from "node:test";
import { gzipSync } from "node:zlib";
import { Browser } from "./browser.mjs";
import { csvRows, folder, linewright, loadModule, LOCALES, OUT, ROOT, SAMPLES } from "./support.mjs";

const PAGE = path.join(OUT, "linewright.html");
const READING_PAGE = path.join(OUT, "linewright-reads.html");
const AXE = path.join(ROOT, "build/web/npm/node_modules/axe-core/axe.min.js");
const PICTURES = path.join(ROOT, "build/web/pictures");
mkdirSync(PICTURES, { recursive: true });

const module = await loadModule();
const types = module.types();
let browser;
let page;

before(async () => {
  browser = new Browser();
  page = await browser.open(`file://${PAGE}`);
  await page.size(1280);
  await page.until(IS_READY);
});

after(async () => {
  await browser.close();
  assert.deepEqual(page.faults, []);
  const asked = page.requests.filter((address) => !/^(data|blob):/.test(address) && !address.startsWith(`file://${OUT}/`));
  assert.deepEqual(asked, [], "nothing is fetched");
});

const IS_READY = `document.getElementById("font-text") !== null`;
const choose = (type) => page.run(`document.querySelector('input[name="type"][value="${type.name}"]').click()`);
const speak = (language) => page.run(`{ const e = document.getElementById("language"); e.value = "${language}"; e.dispatchEvent(new Event("change")); }`);
const content = (selector) => page.run(`document.querySelector(${JSON.stringify(selector)}).textContent`);

/** Types into a field as a person does, in place of what stands there. */
async function typeInto(selector, text) {
  await page.run(`{ const e = document.querySelector(${JSON.stringify(selector)}); e.focus(); e.select(); }`);
  if (text === "") await page.press("Delete", "Delete", 46);
  else await page.type(text);
}

async function saved(button) {
  const before = page.saved.length;
  await page.click(button);
  for (let tries = 0; tries < 300; ++tries) {
    if (page.saved.length > before) return page.saved.at(-1);
    await new Promise((done) => setTimeout(done, 50));
  }
  throw new Error(`${button} saved nothing`);
}

test("the page has everything inside and is small", () => {
  const size = gzipSync(readFileSync(PAGE)).length;
  assert.ok(size < 600_000, `${size} bytes compressed`);
  console.log(`  ${size} bytes compressed; linewright.wasm ${gzipSync(readFileSync(path.join(OUT, "module/linewright.wasm"))).length}`);
});

test("what is typed is drawn as the command draws it, and saved so", async () => {
  for (const type of types) {
    await choose(type);
    const data = SAMPLES[type.shortName][0];
    await typeInto("#data", data);
    const file = path.join(folder, "told.svg");
    linewright(["draw", type.shortName, data, "-o", file]);
    assert.equal(readFileSync(await saved("#svg"), "utf8"), readFileSync(file, "utf8"), type.shortName);
    const shown = await page.run(`document.querySelector("#paper svg path:last-of-type").getAttribute("d")`);
    assert.ok(readFileSync(file, "utf8").includes(shown), type.shortName);
    assert.equal(await content("#font-text"), linewright(["encode", type.shortName, data]).trimEnd());
  }
});

/** What a text says when start, stop and separators are left out, and zeros in front. */
const plain = (text) => text.replace(/[^0-9A-Za-z]/g, "").replace(/^0+/, "");

function read(command, words) {
  try {
    return execFileSync(command, words, { encoding: "utf8", stdio: ["ignore", "pipe", "ignore"] });
  } catch {
    return "";
  }
}

/** UPC-E in its own digits, which some scanners say. */
const SHORT_FORMS = { "classic-upce": "01234565", upce: "04252614" };

const SCANNERS = {
  ZBar: (file) => read("zbarimg", ["--quiet", "--raw", file]).trim().split("\n")[0],
  "ZXing-C++": (file) => (read("ZXingReader", [file]).match(/^Text:\s+"(.*)"$/m) ?? ["", ""])[1],
};

test("scanners read every PNG that they can know", async () => {
  let count = 0;
  for (const type of types.filter((t) => t.hasScanner)) {
    await choose(type);
    const data = SAMPLES[type.shortName][0];
    await typeInto("#data", data);
    await typeInto("#dpi", "300");
    const file = await saved("#png");
    const says = module.draw({ type: type.shortName, data }).barsSay;
    for (const [name, scan] of Object.entries(SCANNERS)) {
      const text = plain(scan(file));
      const isSaid = (what) => plain(what).includes(text) && plain(what).length - text.length <= 2;
      assert.ok(isSaid(says) || isSaid(SHORT_FORMS[type.shortName] ?? ""), `${name} reads ${type.shortName} as ${text}, bars say ${says}`);
      count++;
    }
  }
  console.log(`  ${count} readings`);
});

test("a PNG has its resolution, and bars on whole pixels", async () => {
  await choose(types.find((t) => t.shortName === "code128"));
  for (const dpi of [203, 600, 1200]) {
    await typeInto("#dpi", String(dpi));
    const png = readFileSync(await saved("#png"));
    const resolution = png.indexOf("pHYs") + 4;
    assert.equal(png.readUInt32BE(resolution), Math.round(dpi / 0.0254));
    assert.equal(png[resolution + 8], 1);
    const greys = await page.run(`(async () => {
      const picture = await createImageBitmap(new Blob([Uint8Array.from(atob("${png.toString("base64")}"), (letter) => letter.charCodeAt(0))]));
      const canvas = new OffscreenCanvas(picture.width, 1); const context = canvas.getContext("2d"); context.drawImage(picture, 0, 0);
      return context.getImageData(0, 0, picture.width, 1).data.filter((v, i) => i % 4 === 0 && v !== 0 && v !== 255).length; })()`);
    assert.equal(greys, 0, `${greys} grey pixels at ${dpi} dpi`);
  }
});

test("fonts are saved as they are, and the font text is copied", async () => {
  await choose(types.find((t) => t.shortName === "ean13"));
  await typeInto("#data", "4006381333931");
  assert.deepEqual(readFileSync(await saved("#font")), readFileSync(path.join(ROOT, "build/web/fonts/LinewrightEANUPC.ttf")));
  await page.click("#copy");
  await page.until(`document.getElementById("done").textContent === "Copied"`);
  assert.equal(await page.run("navigator.clipboard.readText()"), "Y(0A63IB*NNNTNL(");
});

test("refusals and warnings are said in four languages", async () => {
  for (const language of Object.keys(LOCALES)) {
    await speak(language);
    module.language = language;
    assert.equal(await page.run("document.documentElement.lang"), language);
    await typeInto("#data", "400638133393x");
    const { message } = module.encode({ type: "ean13", data: "400638133393x" });
    assert.ok((await content("#verdict .bad")).endsWith(message));
    assert.equal(await page.run(`document.getElementById("svg").disabled`), true);
    await typeInto("#data", "4006381333932");
    assert.equal(await content("#verdict .warn"), module.encode({ type: "ean13", data: "4006381333932" }).warnings[0]);
    await typeInto("#data", "4006381333931");
    assert.equal(await content("#verdict"), "");
  }
  await speak("en");
  module.language = "en";
});

test("a wish that cannot be had is said, and the page goes on", async () => {
  await typeInto("#option-xDimension", "99");
  assert.match(await content("#verdict"), /0\.05 mm to 10 mm/);
  await typeInto("#option-xDimension", "0.5");
  const { width, height } = module.draw({ type: "ean13", data: "4006381333931" }, { xDimension: 0.5 });
  assert.ok((await content("#facts")).includes(`${width.toFixed(1)} × ${height.toFixed(1)} mm`));
  await typeInto("#option-xDimension", "");
  assert.equal(await content("#verdict"), "");
});

test("a column of 10,000 numbers comes back, the refused marked", async () => {
  const column = Array.from({ length: 10_000 }, (_, place) => (place % 1000 === 7 ? `no number ${place}` : String(400_000_000_000 + place)));
  const milliseconds = await page.run(`(() => { const field = document.getElementById("column"); field.value = ${JSON.stringify(column.join("\r\n"))};
    const start = performance.now(); field.dispatchEvent(new Event("input")); document.body.offsetHeight; return performance.now() - start; })()`);
  console.log(`  10,000 rows in ${milliseconds.toFixed(0)} ms`);
  assert.equal(await page.run(`document.querySelectorAll("#row-list tr.bad").length`), 1);
  await page.click("#only-marked");
  assert.equal(await page.run(`document.querySelectorAll("#row-list tr.bad").length`), 10);
  assert.equal(await page.run(`document.querySelectorAll("#row-list tr").length`), 10);
  assert.match(await content("#tally"), /9,990 made, 10 refused/);
  await page.click("#copy-rows");
  await page.until(`document.getElementById("tally").textContent === "Copied"`);
  const copied = (await page.run("navigator.clipboard.readText()")).split("\n");
  const [names, ...told] = csvRows(linewright(["batch", "-", "-o", "-", "--type", "ean13", "--column", "data"], `data\n${column.join("\n")}\n`));
  assert.deepEqual(copied, told.map((row) => row[names.indexOf("barcode")]));
  await typeInto("#column", "");
});

test("it works by keyboard alone", async () => {
  await page.run(`document.getElementById("filter").focus()`);
  await page.type("code 128");
  await page.press("Tab", "Tab", 9);
  await page.press(" ", "Space", 32);
  await page.until(`document.querySelector('input[name="type"]:checked')?.value === "_QVT_BARCODE_CODE128_"`);
  for (let presses = 0; presses < 12 && (await page.run("document.activeElement.id")) !== "data"; ++presses) await page.press("Tab", "Tab", 9);
  assert.equal(await page.run("document.activeElement.id"), "data");
  for (let presses = 0; presses < 20 && (await page.run("document.activeElement.id")) !== "copy"; ++presses) await page.press("Tab", "Tab", 9);
  assert.equal(await page.run("document.activeElement.id"), "copy");
  await page.press("Enter", "Enter", 13);
  await page.until(`document.getElementById("done").textContent === "Copied"`);
  await typeInto("#filter", "");
});

/** What reaches beyond the window's width, or is cut off. */
const OVERFLOWS = `[...document.querySelectorAll("body *")].filter((e) => !e.closest("#paper, .table, .unseen, #type-list") &&
  (e.getBoundingClientRect().right > document.documentElement.clientWidth + 1 || (e.matches("button, label") && e.scrollWidth > e.clientWidth + 1))).map((e) => e.id || e.className || e.tagName)`;

test("nothing is cut at 1280 and at 390 pixels, in four languages, light and dark; axe-core finds no serious fault", async (t) => {
  const hasAxe = existsSync(AXE);
  if (!hasAxe) t.diagnostic("axe-core is not there: accessibility is not judged");
  const axe = hasAxe ? readFileSync(AXE, "utf8") : "";
  await choose(types.find((type) => type.shortName === "ean13"));
  await typeInto("#data", "4006381333932");
  await typeInto("#dpi", "600");
  await typeInto("#column", "4006381333931\n400638133393x\n4006381333932");
  await page.run(`{ const e = document.getElementById("only-marked"); if (e.checked) e.click(); document.activeElement.blur(); }`);
  for (const language of Object.keys(LOCALES)) {
    await speak(language);
    for (const [width, scale] of [[1280, 1], [390, 2]])
      for (const scheme of ["light", "dark"]) {
        await page.size(width, width > 800 ? 900 : 844, scale);
        await page.scheme(scheme);
        await page.run("scrollTo(0, 0); new Promise((done) => setTimeout(done, 300))");
        assert.deepEqual(await page.run(OVERFLOWS), [], `${language} ${width}`);
        await page.picture(path.join(PICTURES, `${language}-${width}-${scheme}.png`));
        if (!hasAxe) continue;
        await page.run(`if (!window.axe) { ${axe} }`);
        const faults = await page.run(`axe.run(document).then(({ violations }) => violations.filter(({ impact }) => impact === "serious" || impact === "critical")
          .map(({ id, nodes }) => id + ": " + nodes.map(({ html }) => html.slice(0, 120)).join(" | ")))`);
        assert.deepEqual(faults, [], `${language} ${width} ${scheme}`);
      }
  }
  await page.scheme("light");
  await page.size(1280);
  await speak("en");
});

test("the page that reads back says what its scanner reads", { skip: !existsSync(READING_PAGE) && "the page was built without the scanner" }, async () => {
  await page.go(`file://${READING_PAGE}`);
  await page.until(IS_READY);
  for (const type of types.filter((t) => t.hasScanner)) {
    await choose(type);
    await typeInto("#data", SAMPLES[type.shortName][0]);
    await page.until(`!document.getElementById("read").hidden`);
    assert.equal(await page.run(`document.getElementById("read").className`), "agrees", `${type.shortName}: ${await content("#read")}`);
  }
  await choose(types.find((t) => t.shortName === "postnet"));
  assert.equal(await page.run(`document.getElementById("read").hidden`), true);
});
